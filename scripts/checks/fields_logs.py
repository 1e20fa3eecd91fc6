"""Random ASCII logs and what their records are to hold, for scripts/compare-fields.

A log is a table in the order of its line, a line a field: type, member, and what the type asks for:

    int, hex    bits
    single      low, high: a number with decimals
    double      the same
    word        what words stand for
    quoted      so many characters in quotation marks
    slot        a satellite, of GLONASS with its channel: two members

A member with a dot is one of a record within, with brackets an element of a list, "-" none. Logs
with a short header, and those of which the header alone is known, are not made.
"""

from wire import Clock, Message, Single, log_line

MESSAGES, NOT_HELD = [], {}

STATUS = """SOL_COMPUTED=0 INSUFFICIENT_OBS=1 NO_CONVERGENCE=2 SINGULARITY=3 COV_TRACE=4 TEST_DIST=5
COLD_START=6 V_H_LIMIT=7 VARIANCE=8 RESIDUALS=9 INTEGRITY_WARNING=13 PENDING=18 INVALID_FIX=19
UNAUTHORIZED=20""".replace("\n", " ")
TYPE = """NONE=0 FIXEDPOS=1 FIXEDHEIGHT=2 DOPPLER_VELOCITY=8 SINGLE=16 PSRDIFF=17 PROPAGATED=19
L1_FLOAT=32 IONOFREE_FLOAT=33 NARROW_FLOAT=34 L1_INT=48 WIDE_INT=49 NARROW_INT=50 INS_PSRSP=53
INS_PSRDIFF=54 INS_RTKFLOAT=55 INS_RTKFIXED=56 PPP_CONVERGING=68 PPP=69""".replace("\n", " ")
CLOCK = "VALID=1 INVALID=2"
TRUTH = "TRUE=1 FALSE=0"
PORTS = {"COM1": 1, "COM2": 2, "COM3": 3, "USB1": 8, "USB2": 9, "USB3": 10}
TIMES = {"UNKNOWN": 20, "APPROXIMATE": 60, "COARSE": 100, "FREEWHEELING": 130, "FINE": 160,
         "FINESTEERING": 180, "SATTIME": 200}


def _put(record, member, value):
    outer, dot, inner = member.partition(".")
    if dot:
        record.setdefault(outer, {})[inner] = value
    elif member.endswith("[]"):
        record.setdefault(member[:-2], []).append(value)
    else:
        record[member] = value


def _field(rng, words, record):
    kind, member, words = words[0], words[1], words[2:]
    if kind == "word":
        text, _, value = rng.choice(words).partition("=")
        value = int(value)
    elif kind == "slot":
        value, channel = rng.randrange(256), rng.choice((None, rng.randint(-7, 6)))
        text = str(value) + ("" if channel is None else f"{channel:+}")
        _put(record, words[0], channel or 0)
    elif kind == "quoted":
        value = "".join(rng.choice("aB70") for _ in range(rng.randint(0, int(words[0]))))
        text = f'"{value}"'
    elif kind in ("int", "hex"):
        bits = int(words[0])
        value = rng.choice((0, (1 << bits) - 1, 1 << bits - 1, rng.getrandbits(bits)))
        text = f"{value:x}" if kind == "hex" else str(value)
    else:
        low, high = float(words[0]), float(words[1])
        number = rng.choice((low, high, rng.uniform(low, high)))
        text = f"{number:.{rng.choice((0, 1, 4, 9))}f}" if rng.getrandbits(1) else f"{number:.12e}"
        value = Single(float(text)) if kind == "single" else float(text)
    if member != "-":
        _put(record, member, value)
    return text


def _header(rng, name, log_id):
    port, status = rng.choice(list(PORTS)), rng.choice(list(TIMES))
    sequence, idle, week = rng.randrange(65536), rng.randrange(201), rng.randrange(65536)
    milliseconds, receiver, build = (rng.randrange(604800000), rng.getrandbits(32),
                                     rng.randrange(65536))
    text = (f"{name},{port},{sequence},{idle / 2},{status},{week},{milliseconds / 1000:.3f},"
            f"{receiver:08x},{rng.getrandbits(16):04x},{build};")
    return text, {"sync": [0xAA, 0x44, 0x12], "headerLength": 28, "messageId": log_id,
                  "messageType": 0, "port": PORTS[port], "messageLength": Clock,
                  "sequence": sequence, "idleTime": idle, "timeStatus": TIMES[status],
                  "week": week, "milliseconds": milliseconds, "receiverStatus": receiver,
                  "softwareBuild": build}


def log(name, log_id, kind, table, member="", block="", most=0):
    lines = [line.split() for line in table.strip().splitlines()]
    block_lines = [line.split() for line in block.strip().splitlines()]

    def make(rng):
        text, header = _header(rng, name, log_id)
        record = {"header": header}
        fields = [_field(rng, words, record) for words in lines]
        if member:
            count = rng.choice((0, 1, 2, most, rng.randint(0, most)))
            record["count"], record[member] = count, []
            fields.append(str(count))
            for _ in range(count):
                inner = {}
                fields += [_field(rng, words, inner) for words in block_lines]
                record[member].append(inner.get("number", inner))
        return log_line(text + ",".join(fields)), record

    MESSAGES.append(Message(kind, kind, make))
    NOT_HELD[kind] = [("reserved", "of the header and of the log")]


POSITION = f"""
word solutionStatus {STATUS}
word positionType {TYPE}
double latitude -90 90
double longitude -180 180
double height -500 40000
single undulation -110 90
word datum WGS84=61 USER=63
single latitudeDeviation 0 1000
single longitudeDeviation 0 1000
single heightDeviation 0 1000
quoted stationId 4
single differentialAge 0 100
single solutionAge 0 100
int satellites.tracked 8
int satellites.used 8
int satellites.usedL1 8
int satellites.usedMultiFreq 8
hex - 8
hex satellites.extendedStatus 8
hex satellites.galileoBdsSignals 8
hex satellites.gpsGlonassSignals 8
"""
for _name, _id in (("BESTPOS", 42), ("PSRPOS", 47), ("MATCHEDPOS", 96)):
    log(_name + "A", _id, _name, POSITION)

for _name, _id in (("BESTVEL", 99), ("PSRVEL", 100)):
    log(_name + "A", _id, _name, f"""
word solutionStatus {STATUS}
word velocityType {TYPE}
single latency 0 10
single differentialAge 0 100
double horizontalSpeed 0 1000
double track 0 360
double verticalSpeed -100 100
single - 0 1
""")

for _name, _id in (("PSRDOP", 174), ("PSRDOP2", 2059)):
    log(_name + "A", _id, _name, """
single gdop 0 100
single pdop 0 100
single hdop 0 100
single htdop 0 100
single tdop 0 100
single elevationCutoff 0 90
""", "satellites", "int number 32", 66)

log("TIMEA", 101, "TIME", f"""
word clockStatus {CLOCK}
double offset -1 1
double offsetDeviation 0 1
double utcOffset -40 0
int utcYear 32
int utcMonth 8
int utcDay 8
int utcHour 8
int utcMinute 8
int utcMilliseconds 32
word utcStatus {CLOCK}
""")

_XYZ = "double {0}[] -9e6 9e6\n" * 3 + "single {0}Deviation[] 0 1000\n" * 3
log("BESTXYZA", 241, "BESTXYZ", f"""
word positionStatus {STATUS}
word positionType {TYPE}
{_XYZ.format("position")}word velocityStatus {STATUS}
word velocityType {TYPE}
{_XYZ.format("velocity")}quoted stationId 4
single velocityLatency 0 10
single differentialAge 0 100
single solutionAge 0 100
int satellites.tracked 8
int satellites.used 8
int satellites.usedL1 8
int satellites.usedMultiFreq 8
int - 8
hex satellites.extendedStatus 8
hex satellites.galileoBdsSignals 8
hex satellites.gpsGlonassSignals 8
""")

for _name, _id in (("HEADING", 971), ("HEADING2", 1335)):
    log(_name + "A", _id, _name, f"""
word solutionStatus {STATUS}
word positionType {TYPE}
single length 0 3000
single heading 0 360
single pitch -90 90
single - 0 1
single headingDeviation 0 180
single pitchDeviation 0 180
quoted stationId 4
int satellites.tracked 8
int satellites.used 8
int satellites.usedL1 8
int satellites.usedMultiFreq 8
hex - 8
hex satellites.extendedStatus 8
hex satellites.galileoBdsSignals 8
hex satellites.gpsGlonassSignals 8
""")

for _name, _id in (("RANGE", 43), ("RANGEH", 6005)):
    log(_name + "A", _id, _name, "", "observations", """
int satellite 16
int glonassFrequency 16
double pseudorange 1.9e7 4.2e7
single pseudorangeDeviation 0 100
double carrierPhase -3e8 3e8
single carrierPhaseDeviation 0 1
single doppler -6000 6000
single carrierToNoise 0 60
single lockTime 0 100000
hex trackingStatus 32
""", 200)

log("SATVIS2A", 1043, "SATVIS2", f"""
word system GPS=0 GLONASS=1 SBAS=2 GALILEO=5 BEIDOU=6 QZSS=7 NAVIC=9
word valid {TRUTH}
word completeAlmanac {TRUTH}
""", "satellites", """
slot satellite glonassFrequency
int health 32
double elevation -90 90
double azimuth 0 360
double trueDoppler -6000 6000
double apparentDoppler -6000 6000
""", 200)


# --- Ephemerides ----------------------------------------------------------------------------------

_PERTURBATIONS = "".join(f"double {member} -1e3 1e3\n" for member in (
    "deltaN", "m0", "eccentricity", "omega", "cuc", "cus", "crc", "crs", "cic", "cis", "i0", "iDot",
    "omega0", "omegaDot"))
log("GPSEPHEMA", 7, "GPSEPHEM", f"""
int satellite 32
double timeOfWeek 0 604800
int health 32
int iode1 32
int iode2 32
int week 32
int zWeek 32
double toe 0 604800
double semiMajorAxis 2e7 5e7
{_PERTURBATIONS}int iodc 32
double toc 0 604800
double tgd -1e-7 1e-7
double af0 -1e-3 1e-3
double af1 -1e-9 1e-9
double af2 -1e-12 1e-12
word antiSpoofing {TRUTH}
double n -1e-3 1e-3
double ura 0 1e4
""")

log("GLOEPHEMERISA", 723, "GLOEPHEMERIS", """
int slot 16
int frequency 16
int satelliteType 8
int - 8
int week 16
int milliseconds 32
int timeOffset 32
int dayNumber 16
int - 8
int - 8
int issue 32
int health 32
""" + "double position[] -3e7 3e7\n" * 3 + "double velocity[] -4e3 4e3\n" * 3 +
    "double acceleration[] -1e-5 1e-5\n" * 3 + """
double tau -1e-3 1e-3
double deltaTau -1e-7 1e-7
double gamma -1e-9 1e-9
int frameTime 32
int p 32
int accuracy 32
int age 32
int flags 32
""".lstrip())

log("GALEPHEMERISA", 1122, "GALEPHEMERIS", f"""
int satellite 32
word fnavReceived {TRUTH}
word inavReceived {TRUTH}
int e1bHealth 8
int e5aHealth 8
int e5bHealth 8
int e1bDataValidity 8
int e5aDataValidity 8
int e5bDataValidity 8
int sisa 8
int - 8
int iodNav 32
int toe 32
double rootA 5000 6000
{_PERTURBATIONS}int fnavToc 32
double fnavAf[] -1e-3 1e-3
double fnavAf[] -1e-9 1e-9
double fnavAf[] -1e-12 1e-12
int inavToc 32
double inavAf[] -1e-3 1e-3
double inavAf[] -1e-9 1e-9
double inavAf[] -1e-12 1e-12
double e1E5aBgd -1e-7 1e-7
double e1E5bBgd -1e-7 1e-7
""")
