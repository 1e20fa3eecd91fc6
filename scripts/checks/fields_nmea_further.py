"""Random NMEA sentences of which the Standard dialect alone makes records: see fields_nmea."""

from fields_nmea import SYSTEMS, TALKERS, _field, _utc, sentence
from wire import Clock, Message, Single, nmea_sentence

MESSAGES = []
MODES = "N=0 A=1 D=2 P=3 R=4 F=5 E=6 M=7 S=8"
STATES = "V=0 S=1 C=2 U=3"
NAMED = {"talker": None}
NAMED_CLOCK = NAMED | {"timeText": Clock}
SHORT = "digits behind those of a 32-bit float (about seven)"


def further(formatter, table, fixed=NAMED, judge=None, kind=None):
    sentence(formatter, table, fixed, TALKERS, judge, kind, MESSAGES)


def _signed(*members):
    """The sign of a number is the letter behind it, without which the number is not known."""
    def judge(expected):
        for member in members:
            sign, value = expected.pop(member + "Sign"), expected[member]
            expected[member] = None if None in (sign, value) else sign * value
    return judge


def _date_parts(expected):
    _utc(expected).update({part: expected.pop(part) for part in ("day", "month", "year")})


# With a variation or a navigational status.
further("RMC", f"""
time timeText
letter status A=1 V=0
lat latitude
lon longitude
single speedKnots 0 2000
single course 0 360
date dateText
double magneticVariation 0 180
letter magneticVariationSign E=1 W=-1
letter mode {MODES}
letter navigationalState {STATES} always
""", {}, _signed("magneticVariation"), "RMC-WIDE")

# With the probability that the fault is missed.
further("GBS", """
time timeText
single latitudeError 0 1000
single longitudeError 0 1000
single altitudeError 0 1000
int failedSatellite 0 999
single missedDetection 0 1 always
single bias -1000 1000
single biasDeviation 0 1000
int systemId 1 6
hex signalId 0 15
""", {}, None, "GBS-WIDE")

# West of Greenwich.
further("ZDA", """
time timeText
int day 1 28
int month 1 12
int year 1980 2079
letter zoneHours -01=-1 -13=-13 -5=-5 always
letter zoneMinutes 00=0 -30=-30 45=45 -1=-1
""", {}, _date_parts, "ZDA-WIDE")

further("THS", "double heading 0 360\nletter mode V=0 A=1 E=6 M=7 S=8", NAMED_CLOCK)
further("HDT", "double heading 0 360\nunit T", NAMED_CLOCK)
further("ROT", "double rate -720 720\nletter status V=0 A=1", NAMED_CLOCK)

further("DTM", """
text datum 7
text subdivision 7
double latitudeOffset 0 60
letter latitudeOffsetSign N=1 S=-1
double longitudeOffset 0 60
letter longitudeOffsetSign E=1 W=-1
double altitudeOffset -1000 1000
text reference 7
""", NAMED_CLOCK, _signed("latitudeOffset", "longitudeOffset"))

further("GRS", "time timeText\nint recomputed 0 1\n" + "single residuals[] -1000 1000\n" * 12 +
        "int systemId 1 6\nhex signalId 0 15")


def _letters(rng, member, rows, most, expected):
    """A letter each of some systems."""
    chosen = [rng.choice(rows.split()).partition("=") for _ in range(rng.randint(0, most))]
    expected[member] = [int(value) for _, _, value in chosen]
    expected[member.removesuffix("s") + "Count"] = len(chosen)
    return "".join(letter for letter, _, _ in chosen)


def _with_letters(formatter, front, member, rows, back):
    """A sentence with letters of several systems in the middle."""
    def make(rng):
        expected = {"gpsTime": Clock}
        fields = [text for line in front for text in _field(rng, expected, line.split())]
        fields.append(_letters(rng, member, rows, 6 if member == "modes" else 3, expected))
        fields += [text for line in back for text in _field(rng, expected, line.split())]
        expected["talker"] = rng.choice(TALKERS)
        return nmea_sentence(",".join([expected["talker"] + formatter] + fields)), expected
    MESSAGES.append(Message(formatter, formatter, make))


_with_letters("GNS", ("time timeText", "lat latitude", "lon longitude"), "modes", MODES,
              ("int satellites 0 99", "single hdop 0 100", "double altitude -500 40000",
               "double geoidSeparation -110 90", "single correctionAge 0 999",
               "int stationId 0 4095", f"letter navigationalState {STATES}"))
_with_letters("GFA", ("time timeText", "single horizontalProtection 0 1000",
                      "single verticalProtection 0 1000", "single ellipseSemiMajor 0 1000",
                      "single ellipseSemiMinor 0 1000", "single ellipseOrientation 0 360",
                      "single altitudeDeviation 0 1000", "single selectedAccuracy 0 1000"),
              "integrity", STATES, ())


def _text(rng):
    """Characters that would end a field or a sentence are sent as two hexadecimal digits."""
    expected = {"gpsTime": Clock, "timeText": Clock, "talker": rng.choice(TALKERS)}
    fields = [text for line in ("int total 1 99", "int number 1 99", "int identifier 0 99")
              for text in _field(rng, expected, line.split())]
    text = "".join(rng.choice("aB7 =.,*^$\\!~\xe9") for _ in range(rng.randint(0, 61)))
    expected.update(text=text or None, length=len(text))
    sent = "".join(c if c in "aB7 =." else f"^{ord(c):02X}" for c in text)
    return nmea_sentence(",".join([expected["talker"] + "TXT"] + fields + [sent])), expected


def _gsa(rng):
    """With a number above 254."""
    talker = rng.choice(TALKERS)
    expected = {"gpsTime": Clock, "timeText": Clock}
    fields = _field(rng, expected, "letter selectionMode A=1 M=0".split())
    fields += _field(rng, expected, "int fixType 1 3".split())
    expected["fixType"] = expected["fixType"] or 1  # no fix
    numbers = [rng.choice((None, rng.randint(1, 999))) for _ in range(11)] + [rng.randint(255, 999)]
    used = [number for number in numbers if number is not None]
    fields += ["" if number is None else f"{number:02}" for number in numbers]
    for dop in ("pdop", "hdop", "vdop"):
        fields += _field(rng, expected, f"single {dop} 0 100".split())
    system = rng.choice((None, rng.randint(1, 6)))
    expected.update(usedCount=len(used), usedSatellites=used,
                    systemId=system or SYSTEMS.get(talker))
    fields += [f"{system:X}"] if system else []
    return nmea_sentence(",".join([talker + "GSA"] + fields)), expected


def _gsv(rng):
    """One satellite with decimals of its C/N0."""
    hundredths = rng.choice((101, 4999, 100 * rng.randrange(60) + rng.randrange(1, 100)))
    text = f"{hundredths / 100:.{rng.randint(2, 4)}f}"
    data = nmea_sentence(f"GPGSV,1,1,01,07,45,123,{text},1") + nmea_sentence("GPVTG,,T,,M,,N,,K,N")
    return data, {"gpsTime": Clock, "timeText": Clock, "satelliteCount": 1, "satellites": [
        {"number": 7, "systemId": 1, "azimuth": 123, "elevation": 45, "used": 0, "signalCount": 1,
         "signals": [{"signalId": 1, "cn0": hundredths}]}]}


def _modes(kind, body, member="mode"):
    """All letters of a mode, in a kind that the exports have with fewer."""
    def make(rng):
        letter, _, value = rng.choice(MODES.split()).partition("=")
        return nmea_sentence(body.format(letter)), {member: int(value)}
    MESSAGES.append(Message(kind + " modes", kind, make))


_modes("RMC", "GPRMC,,V,,,,,,,,,,{}")
_modes("GLL", "GPGLL,,,,,,V,{}")
_modes("VTG", "GPVTG,,T,,M,,N,,K,{}")
MESSAGES += [Message("TXT", "TXT", _text), Message("GSA-WIDE", "GSA-WIDE", _gsa),
             Message("GSV with decimals", "GSV-WIDE", _gsv)]
NOT_HELD = {"GSV with decimals": [("cn0", "decimals behind the second")],
            "HDT": [("unit T", "constant")],
            "GNS": [("hdop, correctionAge", SHORT)], "GFA": [("all numbers", SHORT)],
            "GSA-WIDE": [("pdop, hdop, vdop", SHORT),
                         ("satellites", "which of the twelve places are empty")]}
