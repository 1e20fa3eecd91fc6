"""Random NMEA sentences and what their records are to hold, for scripts/compare-fields.

A sentence is a table in the order of its fields, a line a field: type, member, and what the type
asks for. Types:

    time [text]             hhmmss with any decimals, or none, into utc; its text into the member
    date text               ddmmyy into utc, its text into the member
    lat, lon                two fields, the angle and the letter of the hemisphere
    int low high            a whole number
    single, double low high a number with decimals
    hex low high            a whole number of one or two hexadecimal digits
    letter A=1 ...          what letters stand for
    text most               so many characters
    unit X                  always this
    empty                   nothing

Any field may be empty, but of a line that ends with "always". Sentences that a kind of more room is
made of (RMC-WIDE, ...) are those of fields_nmea_further, but for GSV.
"""

from wire import Clock, Message, Scaled, Single, nmea_sentence

MESSAGES, NOT_HELD = [], {}
TALKERS = ("GP", "GN", "GL", "GA", "GB", "GQ", "GI", "BD", "QZ", "IN")
SYSTEMS = {"GP": 1, "GL": 2, "GA": 3, "GB": 4, "BD": 4, "GQ": 5, "QZ": 5, "PQ": 5, "GI": 6}
EMPTY = 0.12  # of all fields

UTC_PARTS = ("year", "month", "day", "hour", "minute", "second", "millisecond")


def _utc(expected):
    return expected.setdefault("utc", dict.fromkeys(UTC_PARTS) | {"flag": 0})


def _decimal(rng, low, high):
    """Text and value, with up to seven decimals."""
    decimals = rng.choice((0, 1, 2, 3, 4, 7))
    raw = rng.choice((low, high, 0 if low <= 0 <= high else low, rng.uniform(low, high)))
    text = f"{raw:.{decimals}f}"
    return text, float(text)


def _time(rng, expected, words):
    if rng.random() < EMPTY:
        _utc(expected)
        if words:
            expected[words[0]] = None
        return [""]
    hour, minute, second = rng.choice(((0, 0, 0), (23, 59, 59), (23, 59, 60),
                                       (rng.randrange(24), rng.randrange(60), rng.randrange(60))))
    decimals = rng.choice(("", "0", "5", "00", "99", "000", "999", "001", "1239", "123456"))
    text = f"{hour:02}{minute:02}{second:02}" + ("." + decimals if decimals else "")
    _utc(expected).update(hour=hour, minute=minute, second=second,
                          millisecond=int(decimals.ljust(3, "0")[:3]), flag=1)
    if words:
        expected[words[0]] = text
    return [text]


def _date(rng, expected, words):
    if rng.random() < EMPTY:
        _utc(expected)
        expected[words[0]] = None
        return [""]
    year, month, day = rng.randint(1980, 2079), rng.randint(1, 12), rng.randint(1, 28)
    _utc(expected).update(year=year, month=month, day=day)
    text = expected[words[0]] = f"{day:02}{month:02}{year % 100:02}"
    return [text]


def _angle(rng, expected, member, digits, most, letters):
    """Without a letter the angle is not known."""
    decimals, letter = rng.choice((0, 2, 4, 5, 7, 8)), rng.choice(letters)
    degrees, minutes = rng.randrange(most), rng.randrange(60 * 10 ** decimals)
    degrees, minutes = rng.choice(((degrees, minutes), (most, 0), (0, 0)))
    width = 3 + decimals if decimals else 2
    text = f"{degrees:0{digits}}{minutes / 10 ** decimals:0{width}.{decimals}f}"
    sign = 1 if letter == letters[0] else -1
    raw = sign * (degrees * 60 * 10 ** decimals + minutes)
    has_angle, has_letter = rng.random() > EMPTY, rng.random() > EMPTY
    expected[member] = Scaled(raw, 1 / (60 * 10 ** decimals)) if has_angle and has_letter else None
    return [text if has_angle else "", letter if has_letter else ""]


def _number(rng, expected, kind, member, words):
    low, high = int(words[0]), int(words[1])
    if rng.random() < EMPTY:
        return [""], None
    if kind in ("single", "double"):
        text, value = _decimal(rng, low, high)
        return [text], Single(value) if kind == "single" else value
    value = rng.choice((low, high, rng.randint(low, high)))
    if kind == "hex":
        return [f"{value:X}"], value
    return [str(value)], None if value == -1 else value


def _field(rng, expected, words):
    """The fields that a line of a table stands for; their values go to `expected`."""
    if words == ["empty"]:
        return [""]
    while words[-1] == "always":
        if all(fields := _field(rng, expected, words[:-1])):
            return fields
    kind, member, words = words[0], words[1], words[2:]
    if kind == "time":
        return _time(rng, expected, [member] if member != "utc" else [])
    if kind == "date":
        return _date(rng, expected, [member])
    if kind == "lat":
        return _angle(rng, expected, member, 2, 90, "NS")
    if kind == "lon":
        return _angle(rng, expected, member, 3, 180, "EW")
    if kind == "unit":
        return [member]
    if kind == "letter":
        letter, _, value = rng.choice(words).partition("=")
        is_there = rng.random() > EMPTY
        value = int(value) if is_there else None
        text = [letter if is_there else ""]
    elif kind == "text":
        length = 0 if rng.random() < EMPTY else rng.randint(1, int(words[0]))
        text = ["".join(rng.choice("aB7 -_.:") for _ in range(length))]
        value = text[0] or None
    else:
        text, value = _number(rng, expected, kind, member, words)
    if member.endswith("[]"):
        expected.setdefault(member[:-2], []).append(value)
    else:
        expected[member] = value
    return text


def sentence(formatter, table, fixed=(), talkers=TALKERS, judge=None, kind=None, to=MESSAGES):
    """`fixed` is what the record has besides, or has instead; a member `talker` is the talker."""
    lines = [line.split() for line in table.strip().splitlines()]
    singles = [words[1].removesuffix("[]") for words in lines if words[0] == "single"]
    held_not = NOT_HELD.setdefault(kind or formatter, [])
    if singles:
        held_not.append((", ".join(dict.fromkeys(singles)),
                         "digits behind those of a 32-bit float (about seven)"))
    if ["time", "utc"] in lines:
        held_not.append(("time", "decimals behind milliseconds"))
    held_not += [(" ".join(words), "constant") for words in lines if words[0] == "unit"]

    def make(rng):
        expected = {}
        fields = [text for words in lines for text in _field(rng, expected, words)]
        expected.update(dict(fixed), gpsTime=Clock)
        if judge:
            judge(expected)
        talker = rng.choice(talkers) if talkers else ""
        if "talker" in expected:
            expected["talker"] = talker
        return nmea_sentence(",".join([talker + formatter] + fields)), expected

    to.append(Message(kind or formatter, kind or formatter, make))


TAG = {"tag": 0}
CLOCK_TEXT = {"tag": 0, "timeText": Clock}

sentence("GGA", """
time timeText
lat latitude
lon longitude
int fixQuality 0 8
int satellites 0 99
single hdop 0 100
single altitude -500 40000
unit M
single geoidSeparation -110 90
unit M
single correctionAge 0 999
int stationId 0 4095
""", TAG)

# Without the variation and the navigational status, which come as a kind of more room.
sentence("RMC", """
time timeText
letter status A=1 V=0
lat latitude
lon longitude
single speedKnots 0 2000
single course 0 360
date dateText
empty
empty
letter mode N=0 A=1 D=2 R=4 F=5 E=6
""", TAG)

sentence("GLL", """
lat latitude
lon longitude
time utc
letter status A=1 V=0
letter mode N=0 A=1 D=2 E=6
""", CLOCK_TEXT)

sentence("GST", """
time timeText
single rangeRms 0 1000
single ellipseSemiMajor 0 1000
single ellipseSemiMinor 0 1000
single ellipseOrientation 0 360
single latitudeDeviation 0 1000
single longitudeDeviation 0 1000
single altitudeDeviation 0 1000
""", TAG)

# Without the probability of a missed detection, as with the variation of RMC.
sentence("GBS", """
time timeText
single latitudeError 0 1000
single longitudeError 0 1000
single altitudeError 0 1000
int failedSatellite 0 999
empty
single bias -1000 1000
single biasDeviation 0 1000
int systemId 1 6
int signalId 0 9
""", TAG)

sentence("VTG", """
single courseTrue 0 360
unit T
single courseMagnetic 0 360
unit M
single speedKnots 0 2000
unit N
single speedKmh 0 3700
unit K
letter mode N=0 A=1 D=2 E=6
""", CLOCK_TEXT)


# In zones of Greenwich and east of it.
sentence("ZDA", """
time timeText
int day 1 28
int month 1 12
int year 1980 2079
int zoneHours 0 13
int zoneMinutes 0 59
""", TAG, judge=lambda expected: _utc(expected).update(
    {part: expected.pop(part) for part in ("day", "month", "year")}))


# --- Proprietary sentences, in the order of the records' members ----------------------------------

_SOLUTION = """
int solutionStatus -1 2000000000
int positionType 0 999
int datum 0 999
int stationNumber 0 4095
text text 15
int status 0 254
int count 0 254
"""
sentence("NAVPOS", _SOLUTION + """
double x -7000000 7000000
double y -7000000 7000000
double z -7000000 7000000
double sigmaX 0 1000
double sigmaY 0 1000
double sigmaZ 0 1000
""".lstrip(), {"timeText": Clock}, ())
sentence("NAVVEL", _SOLUTION + """
double velocity[] -1000 1000
double velocity[] -1000 1000
double velocity[] -1000 1000
double speedAccuracy 0 1000
""".lstrip(), {"timeText": Clock}, ())
sentence("NAVACC", """
time timeText
letter status A=1 V=0
int values[] 0 4000000
int values[] 0 4000000
int values[] 0 4000000
""", {}, (), lambda expected: expected["status"] is not None or expected.update(status=0))
sentence("CWOUT", "int values[] -2 2000000000\n" * 9, {"timeText": Clock}, (),
         lambda expected: expected.update(
             values=[-1 if value is None else value for value in expected["values"]]))
sentence("SNRSTAT", """
int count 0 4000000
int state 0 254
int levels[] -128 127
int levels[] -128 127
int levels[] -128 127
""", CLOCK_TEXT, ())

_SIX = "double values[] -1000 1000\n" * 6
sentence("IMURAW", "time timeText\ntext text[] 7\ntext text[] 7\n" + _SIX, TAG, ())
sentence("IMUVEH", "time timeText\ntext text[] 7\ntext text[] 7\n" + _SIX, TAG, (),
         lambda expected: expected.update(utc=dict.fromkeys(UTC_PARTS) | {"flag": 0}))
NOT_HELD["IMUVEH"] = [("time", "but as text")]
sentence("INSPVA", """
date dateText
time timeText
double latitude -90 90
double longitude -180 180
double height -500 40000
double velocity[] -1000 1000
double velocity[] -1000 1000
double velocity[] -1000 1000
single attitude[] -360 360
single attitude[] -360 360
single attitude[] -360 360
""", TAG, (), lambda expected: expected.update(timeText=(expected["timeText"] or "")[:10] or None))
NOT_HELD["INSPVA"].append(("time", "decimals behind milliseconds"))
sentence("NAVATT", "time timeText\n" + _SIX, TAG, ())
for _name in ("GYOACC", "GYOACC-V"):
    sentence(_name, "time timeText\n" + "double gyro[] -1000 1000\n" * 3 +
             "double acceleration[] -1000 1000\n" * 3, TAG, ())


def _times(rng):
    groups, fields = [], ["NAVTIME"]
    for _ in range(4):
        group = {}
        for line in ("int status 0 999", "int flag 0 254", "double seconds 0 1000"):
            fields += _field(rng, group, line.split())
        groups.append(group)
    return nmea_sentence(",".join(fields)), {"gpsTime": Clock, "groups": groups}


def _diagnostics(rng):
    """Two decimal numbers and fifteen hexadecimal ones; all there, all of their values."""
    head, values = rng.randbytes(2), rng.randbytes(15)
    text = ",".join(["PNAVMSG"] + [str(byte) for byte in head] + [f"{byte:02X}" for byte in values])
    return nmea_sentence(text), {"gpsTime": Clock, "timeText": Clock, "head": list(head),
                                 "values": list(values)}


MESSAGES += [Message("NAVTIME", "NAVTIME", _times), Message("PNAVMSG", "PNAVMSG", _diagnostics)]


# --- Satellites -----------------------------------------------------------------------------------

def _gsa(rng):
    talker = rng.choice(TALKERS)
    expected, used = CLOCK_TEXT | {"gpsTime": Clock}, []
    fields = _field(rng, expected, "letter selectionMode A=1".split())
    fields += _field(rng, expected, "int fixType 1 3".split())
    if expected["fixType"] is None:
        expected["fixType"] = 1  # no fix
    for _ in range(12):
        number = rng.randint(1, 254) if rng.random() < 0.6 else None
        fields.append("" if number is None else f"{number:02}")
        used += [] if number is None else [number]
    for dop in ("pdop", "hdop", "vdop"):
        fields += _field(rng, expected, f"single {dop} 0 100".split())
    system = rng.randint(1, 6) if rng.random() < 0.7 else None
    expected.update(usedCount=len(used), usedSatellites=used,
                    systemId=system or SYSTEMS.get(talker))
    fields += [f"{system:X}"] if system else []
    return nmea_sentence(",".join([talker + "GSA"] + fields)), expected


def _signals_of(rng, talker, satellites, signal, elevations, view):
    """The GSV sentences of one signal."""
    blocks = []
    for number in satellites:
        elevation = rng.randint(*elevations) if rng.random() > EMPTY else None
        azimuth = rng.randrange(360) if rng.random() > EMPTY else None
        cn0 = rng.choice((0, 99, rng.randrange(100))) if rng.random() > EMPTY else None
        entry = view.setdefault((SYSTEMS[talker], number), {
            "number": number, "systemId": SYSTEMS[talker], "azimuth": None, "elevation": None,
            "used": 0, "signals": []})
        entry["elevation"] = entry["elevation"] if elevation is None else elevation
        entry["azimuth"] = entry["azimuth"] if azimuth is None else azimuth
        entry["signals"].append({"signalId": signal or 0, "cn0": cn0})
        blocks.append(",".join(["" if value is None else f"{value:02}"
                                for value in (number, elevation, azimuth, cn0)]))
    parts = [blocks[at:at + 4] for at in range(0, len(blocks), 4)] or [[]]
    return b"".join(nmea_sentence(",".join(
        [f"{talker}GSV", str(len(parts)), str(at + 1), f"{len(blocks):02}"] + part +
        ([f"{signal:X}"] if signal is not None else []))) for at, part in enumerate(parts))


def _view(most_number, most_signals, elevations):
    """A cycle of GSV behind a GSA of one system."""
    def make(rng):
        view, data = {}, b""
        for talker in rng.sample(("GP", "GL", "GA", "GB", "GQ", "GI"), rng.randint(1, 4)):
            satellites = rng.sample(range(1, most_number + 1), rng.choice((1, 3, 4, 5, 12)))
            if not data:
                used = satellites[:rng.randint(0, len(satellites))]
                view.update({(SYSTEMS[talker], number): {
                    "number": number, "systemId": SYSTEMS[talker], "azimuth": None,
                    "elevation": None, "used": 1, "signals": []} for number in used})
                data += nmea_sentence(",".join(["GNGSA", "A", "3"] + [str(n) for n in used] +
                                               [""] * (12 - len(used)) +
                                               ["1", "1", "1", str(SYSTEMS[talker])]))
            signals = rng.sample(range(1, 16), rng.randint(most_signals // 2, most_signals))
            for signal in signals if rng.random() < 0.8 else [None]:
                data += _signals_of(rng, talker, satellites, signal, elevations, view)
        for entry in view.values():
            entry["signalCount"] = len(entry["signals"])
        data += nmea_sentence("GPVTG,,T,,M,,N,,K,N")
        return data, {"gpsTime": Clock, "timeText": Clock, "satelliteCount": len(view),
                      "satellites": list(view.values())}
    return make


def _narrow_view(rng):
    data, expected = _view(254, 3, (0, 90))(rng)
    return data, expected | {"tag": 0, "cycleComplete": 1}


def _wide_view(rng):
    """With one satellite below the horizon behind the others, that no narrow record has."""
    data, expected = _view(999, 15, (-90, 90))(rng)
    for entry in expected["satellites"]:
        for signal in entry["signals"]:
            signal["cn0"] = None if signal["cn0"] is None else 100 * signal["cn0"]
    below = nmea_sentence("GLGSV,1,1,01,1000,-45,123,,1")
    end = data.rindex(b"$")
    expected["satellites"].append({"number": 1000, "systemId": 2, "azimuth": 123, "elevation": -45,
                                   "used": 0, "signalCount": 1,
                                   "signals": [{"signalId": 1, "cn0": None}]})
    expected["satelliteCount"] += 1
    return data[:end] + below + data[end:], expected


MESSAGES += [Message("GSA", "GSA", _gsa), Message("GSV", "GSV", _narrow_view),
             Message("GSV-WIDE", "GSV-WIDE", _wide_view)]
NOT_HELD["GSA"] = [("pdop, hdop, vdop", "digits behind those of a 32-bit float (about seven)"),
                   ("satellites", "which of the twelve places are empty")]
NOT_HELD["GSV"] = NOT_HELD["GSV-WIDE"] = [
    ("numbers of sentences and satellites", "those of the whole cycle count"),
    ("elevation, azimuth", "of all but the last signal of a satellite that tells them")]
