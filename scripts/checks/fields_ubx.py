"""Random UBX messages and what their records are to hold, for scripts/compare-fields.

A message is a table in the order of its payload, a line a field: type, name, member, and the unit
of the number in that of the member, if it is not the same. Types are those of the interface
descriptions (U4, I2, X1, R8, ...), besides A2 and A4, accuracies of which all bits set stand for
not known, and R<n>, n reserved bytes. Lines with a dot have bits of the field above them. Of
members:

    name    a whole number; all bits set, or the most negative one, stand for not known
    name*   a whole number of which every value is one
    name[]  the next element of a list of numbers
    +       held by what the function of the message says
    - why   held by none
"""

import math
import struct
from collections import namedtuple

from wire import Clock, Message, Scaled, Single, ubx_frame

MESSAGES, NOT_HELD = [], {}

Row = namedtuple("Row", "type size name member step bits")
Bit = namedtuple("Bit", "low width name member")


def _step(text):
    base, caret, exponent = text.partition("^")
    return float(base) ** int(exponent) if caret else float(text)


def _table(text, message):
    rows = []
    for words in (line.split() for line in text.splitlines() if line.strip()):
        if words[0].startswith("."):
            low, _, high = words[0][1:].partition("-")
            rows[-1].bits.append(Bit(int(low), int(high or low) - int(low) + 1, *words[1:3]))
        elif len(words) == 1:
            rows.append(Row("reserved", int(words[0][1:]), "", "", None, []))
        else:
            member = words[2] if len(words) > 2 else ""
            step = _step(words[3]) if len(words) > 3 and member != "-" else None
            rows.append(Row(words[0][0], int(words[0][1:]), words[1], member, step, []))
        if "-" in words[2:3]:
            NOT_HELD.setdefault(message, []).append((words[1], " ".join(words[3:])))
    return rows


def draw(rng, bits):
    """A number of that many bits, often one at the limits or with a single bit set."""
    case = rng.randrange(16)
    limits = (0, (1 << bits) - 1, 1 << bits - 1, (1 << bits - 1) - 1)
    if case < 4:
        return limits[case]
    if case < 6:
        return 1 << rng.randrange(bits)
    return rng.getrandbits(rng.randint(1, bits) if case < 8 else bits)


def draw_float(rng, size):
    """The bytes and the value of any number but infinite ones and NaN."""
    data = rng.randbytes(size) if rng.random() < 0.9 else bytes(size)
    value, = struct.unpack("<f" if size == 4 else "<d", data)
    return (data, value) if math.isfinite(value) else draw_float(rng, size)


def _hold(expected, member, value):
    if member.endswith("[]"):
        expected.setdefault(member[:-2], []).append(value)
    else:
        expected[member.rstrip("*")] = value


def _whole(raw, member, unknown):
    return None if raw == unknown and not member.endswith("*") else raw


def _write(row, rng, given, wire, expected):
    if row.type == "reserved":
        return rng.randbytes(row.size)
    if row.type == "R":
        data, value = draw_float(rng, row.size)
        _hold(expected, row.member, Single(value) if row.size == 4 else value)
        return data
    bits = 8 * row.size
    raw = given[row.name] if row.name in given else draw(rng, bits)
    number = raw - (1 << bits) if row.type == "I" and raw >> bits - 1 else raw
    wire[row.name] = number
    for bit in row.bits:
        part = wire[bit.name] = raw >> bit.low & (1 << bit.width) - 1
        if bit.member not in ("+", "-"):
            _hold(expected, bit.member, part)
    if row.member not in ("", "+", "-"):
        ones = (1 << bits) - 1
        if row.step is None:
            value = _whole(number, row.member, -(1 << bits - 1) if row.type == "I" else ones)
        else:
            value = None if row.type == "A" and raw == ones else Scaled(number, row.step)
        _hold(expected, row.member, value)
    return raw.to_bytes(row.size, "little")


def _written(rows, rng, given, judge):
    wire, expected = {}, {}
    data = b"".join(_write(row, rng, given, wire, expected) for row in rows)
    if judge:
        judge(expected, wire)
    return data, wire, expected


def _count(rng, most):
    return rng.choice((0, 1, 2, 3, rng.randint(0, min(most, 40)), rng.randint(0, 12)) +
                      ((most,) if rng.random() < 0.1 else ()))


def ubx(name, number, kind, head, judge=None, given=None, block="", member="", counter="", most=0,
        judge_block=None):
    """A message of a head and perhaps blocks that fill `member`, as many as `counter` tells."""
    rows, block_rows = _table(head, name), _table(block, name)
    given = dict(given or {})

    def make(rng):
        count = _count(rng, most) if member else 0
        if counter:
            given[counter] = count
        payload, wire, expected = _written(rows, rng, given, judge)
        expected.setdefault("tow", Clock)
        expected.update(week=Clock, timeText=Clock)
        if member:
            blocks = [_written(block_rows, rng, {}, judge_block) for _ in range(count)]
            payload += b"".join(data for data, _, _ in blocks)
            expected["count"] = count
            expected[member] = [inner for _, _, inner in blocks]
        return ubx_frame(number >> 8, number & 0xFF, payload), expected

    MESSAGES.append(Message(name, kind, make))


def _unknown_unless(condition, *members):
    """The members are not known unless all of the wire's names say so; "!name" says so when 0."""
    def judge(expected, wire):
        if not all(wire[name.lstrip("!")] == (0 if name[0] == "!" else 1) for name in condition):
            expected.update(dict.fromkeys(members))
    return judge


def _joined(step, fine, *triples):
    """Numbers sent in two parts: member, coarse part, finer part in `fine`-ths of it."""
    def judge(expected, wire):
        for member, coarse, rest in triples:
            expected[member] = Scaled(wire[coarse] * fine + wire[rest], step)
    return judge


def _all(*judges):
    def judge(expected, wire):
        for one in judges:
            one(expected, wire)
    return judge


# --- Solution -------------------------------------------------------------------------------------

_PVT = """
U4 iTOW tow
U2 year year
U1 month month
U1 day day
U1 hour hour
U1 min minute
U1 sec second
X1 valid
.0 validDate dateValid
.1 validTime timeValid
.2 fullyResolved fullyResolved
.3 validMag magValid
U4 tAcc timeAccuracy
I4 nano nanoseconds
U1 fixType fixType
X1 flags
.0 gnssFixOK fixOk
.1 diffSoln diffSolution
.2-4 psmState powerSaveState
.5 headVehValid headingValid
.6-7 carrSoln carrierSolution
X1 flags2
.5 confirmedAvai confirmedAvailable
.6 confirmedDate confirmedDate
.7 confirmedTime confirmedTime
U1 numSV satellites
I4 lon longitude 1e-7
I4 lat latitude 1e-7
I4 height height 1e-3
I4 hMSL heightMsl 1e-3
A4 hAcc horizontalAccuracy 1e-3
A4 vAcc verticalAccuracy 1e-3
I4 velN velocityNorth 1e-3
I4 velE velocityEast 1e-3
I4 velD velocityDown 1e-3
I4 gSpeed groundSpeed 1e-3
I4 headMot motionHeading 1e-5
A4 sAcc speedAccuracy 1e-3
A4 headAcc headingAccuracy 1e-5
U2 pDOP positionDop 0.01
X2 flags3
.0 invalidLlh invalidPosition
.1-4 lastCorrectionAge correctionAge
.13 authTime timeAuthenticated
.14 nmaFixStatus fixAuthenticated
R4
"""


def _pvt_position(expected, wire):
    if wire["fixType"] == 0 or wire["invalidLlh"] == 1:
        expected.update(longitude=None, latitude=None, height=None, heightMsl=None)


def _short_pvt(expected, wire):
    _pvt_position(expected, wire)
    expected.update(vehicleHeading=None, magDeclination=None, magAccuracy=None)


ubx("NAV-PVT", 0x0107, "NAV-PVT-WIDE", _PVT + """
I4 headVeh vehicleHeading 1e-5
I2 magDec magDeclination 0.01
A2 magAcc magAccuracy 0.01
""", _all(_pvt_position, _unknown_unless(["validMag"], "magDeclination", "magAccuracy")))
ubx("NAV-PVT-84", 0x0107, "NAV-PVT-WIDE", _PVT, _short_pvt)

ubx("NAV-PVAT", 0x0117, "NAV-PVAT", """
U4 iTOW tow
U1 version version
X1 valid
.0 validDate dateValid
.1 validTime timeValid
.2 fullyResolved fullyResolved
.3 validMag magValid
U2 year year
U1 month month
U1 day day
U1 hour hour
U1 min minute
U1 sec second
R3
U4 tAcc timeAccuracy
I4 nano nanoseconds
U1 fixType fixType
X1 flags
.0 gnssFixOK fixOk
.1 diffSoln diffSolution
.3 vehRollValid rollValid
.4 vehPitchValid pitchValid
.5 vehHeadingValid headingValid
.6-7 carrSoln carrierSolution
X1 flags2
.5 confirmedAvai confirmedAvailable
.6 confirmedDate confirmedDate
.7 confirmedTime confirmedTime
U1 numSV satellites
I4 lon longitude 1e-7
I4 lat latitude 1e-7
I4 height height 1e-3
I4 hMSL heightMsl 1e-3
A4 hAcc horizontalAccuracy 1e-3
A4 vAcc verticalAccuracy 1e-3
I4 velN velocityNorth 1e-3
I4 velE velocityEast 1e-3
I4 velD velocityDown 1e-3
I4 gSpeed groundSpeed 1e-3
A4 sAcc speedAccuracy 1e-3
I4 vehRoll roll 1e-5
I4 vehPitch pitch 1e-5
I4 vehHeading vehicleHeading 1e-5
I4 motHeading motionHeading 1e-5
A2 accRoll rollAccuracy 0.01
A2 accPitch pitchAccuracy 0.01
A2 accHeading headingAccuracy 0.01
I2 magDec magDeclination 0.01
A2 magAcc magAccuracy 0.01
U2 errEllipseOrient ellipseOrientation 0.01
A4 errEllipseMajor ellipseMajor 1e-3
A4 errEllipseMinor ellipseMinor 1e-3
R8
""", _all(lambda expected, wire: wire["fixType"] or expected.update(
    longitude=None, latitude=None, height=None, heightMsl=None),
          _unknown_unless(["vehRollValid"], "roll", "rollAccuracy"),
          _unknown_unless(["vehPitchValid"], "pitch", "pitchAccuracy"),
          _unknown_unless(["vehHeadingValid"], "vehicleHeading"),
          _unknown_unless(["validMag"], "magDeclination", "magAccuracy")), {"version": 0})

ubx("NAV-HPPOSLLH", 0x0114, "NAV-HPPOSLLH", """
U1 version version
R2
X1 flags
.0 invalidLlh invalidPosition
U4 iTOW tow
I4 lon +
I4 lat +
I4 height +
I4 hMSL +
I1 lonHp +
I1 latHp +
I1 heightHp +
I1 hMSLHp +
A4 hAcc horizontalAccuracy 1e-4
A4 vAcc verticalAccuracy 1e-4
""", _all(_joined(1e-9, 100, ("longitude", "lon", "lonHp"), ("latitude", "lat", "latHp")),
          _joined(1e-4, 10, ("height", "height", "heightHp"), ("heightMsl", "hMSL", "hMSLHp")),
          _unknown_unless(["!invalidLlh"], "longitude", "latitude", "height", "heightMsl")),
    {"version": 0})

ubx("NAV-HPPOSECEF", 0x0113, "NAV-HPPOSECEF", """
U1 version version
R3
U4 iTOW tow
I4 ecefX +
I4 ecefY +
I4 ecefZ +
I1 ecefXHp +
I1 ecefYHp +
I1 ecefZHp +
X1 flags
.0 invalidEcef invalidPosition
A4 pAcc accuracy 1e-4
""", _all(_joined(1e-4, 100, ("x", "ecefX", "ecefXHp"), ("y", "ecefY", "ecefYHp"),
                  ("z", "ecefZ", "ecefZHp")),
          _unknown_unless(["!invalidEcef"], "x", "y", "z")), {"version": 0})

ubx("NAV-POSLLH", 0x0102, "NAV-POSLLH", """
U4 iTOW tow
I4 lon longitude 1e-7
I4 lat latitude 1e-7
I4 height height 1e-3
I4 hMSL heightMsl 1e-3
A4 hAcc horizontalAccuracy 1e-3
A4 vAcc verticalAccuracy 1e-3
""")

ubx("NAV-POSECEF", 0x0101, "NAV-POSECEF", """
U4 iTOW tow
I4 ecefX x 0.01
I4 ecefY y 0.01
I4 ecefZ z 0.01
A4 pAcc accuracy 0.01
""")

ubx("NAV-VELECEF", 0x0111, "NAV-VELECEF", """
U4 iTOW tow
I4 ecefVX velocityX 0.01
I4 ecefVY velocityY 0.01
I4 ecefVZ velocityZ 0.01
A4 sAcc accuracy 0.01
""")

ubx("NAV-VELNED", 0x0112, "NAV-VELNED", """
U4 iTOW tow
I4 velN velocityNorth 0.01
I4 velE velocityEast 0.01
I4 velD velocityDown 0.01
U4 speed speed 0.01
U4 gSpeed groundSpeed 0.01
I4 heading motionHeading 1e-5
A4 sAcc speedAccuracy 0.01
A4 cAcc headingAccuracy 1e-5
""")

ubx("NAV-DOP", 0x0104, "NAV-DOP", """
U4 iTOW tow
U2 gDOP geometricDop 0.01
U2 pDOP positionDop 0.01
U2 tDOP timeDop 0.01
U2 vDOP verticalDop 0.01
U2 hDOP horizontalDop 0.01
U2 nDOP northDop 0.01
U2 eDOP eastDop 0.01
""")

ubx("NAV-STATUS", 0x0103, "NAV-STATUS", """
U4 iTOW tow
U1 gpsFix fixType
X1 flags
.0 gpsFixOk fixOk
.1 diffSoln diffSolution
.2 wknSet weekValid
.3 towSet towValid
X1 fixStat
.0 diffCorr correctionsAvailable
.1 carrSolnValid carrierValid
.6-7 mapMatching mapMatching
X1 flags2
.0-1 psmState powerSaveState
.3-4 spoofDetState spoofing
.6-7 carrSoln carrierSolution
U4 ttff timeToFirstFix
U4 msss sinceStart
""")

ubx("NAV-SOL", 0x0106, "NAV-SOL", """
U4 iTOW tow
I4 fTOW towFraction
I2 week gpsWeek
U1 gpsFix fixType
X1 flags
.0 GPSfixOK fixOk
.1 DiffSoln diffSolution
.2 WKNSET weekValid
.3 TOWSET towValid
I4 ecefX x 0.01
I4 ecefY y 0.01
I4 ecefZ z 0.01
A4 pAcc accuracy 0.01
I4 ecefVX velocityX 0.01
I4 ecefVY velocityY 0.01
I4 ecefVZ velocityZ 0.01
A4 sAcc speedAccuracy 0.01
U2 pDOP positionDop 0.01
R1
U1 numSV satellites
R4
""")

ubx("NAV-CLOCK", 0x0122, "NAV-CLOCK", """
U4 iTOW tow
I4 clkB bias
I4 clkD drift
U4 tAcc timeAccuracy
U4 fAcc frequencyAccuracy
""")

ubx("NAV-COV", 0x0136, "NAV-COV", """
U4 iTOW tow
U1 version version
U1 posCovValid positionValid
U1 velCovValid velocityValid
R9
R4 posCovNN position[]
R4 posCovNE position[]
R4 posCovND position[]
R4 posCovEE position[]
R4 posCovED position[]
R4 posCovDD position[]
R4 velCovNN velocity[]
R4 velCovNE velocity[]
R4 velCovND velocity[]
R4 velCovEE velocity[]
R4 velCovED velocity[]
R4 velCovDD velocity[]
""", given={"version": 0})

ubx("NAV-EOE", 0x0161, "NAV-EOE", "U4 iTOW tow")

ubx("NAV-TIMEGPS", 0x0120, "NAV-TIMEGPS", """
U4 iTOW tow
I4 fTOW towFraction
I2 week gpsWeek
I1 leapS leapSeconds
X1 valid
.0 towValid towValid
.1 weekValid weekValid
.2 leapSValid leapValid
U4 tAcc timeAccuracy
""")

ubx("NAV-TIMEUTC", 0x0121, "NAV-TIMEUTC", """
U4 iTOW tow
U4 tAcc timeAccuracy
I4 nano nanoseconds
U2 year year
U1 month month
U1 day day
U1 hour hour
U1 min minute
U1 sec second
X1 valid
.0 validTOW towValid
.1 validWKN weekValid
.2 validUTC utcValid
.3 authStatus timeAuthenticated
.4-7 utcStandard utcStandard
""")

ubx("NAV-TIMELS", 0x0126, "NAV-TIMELS", """
U4 iTOW tow
U1 version version
R3
U1 srcOfCurrLs currentSource*
I1 currLs current
U1 srcOfLsChange changeSource
I1 lsChange change
I4 timeToLsEvent untilChange
U2 dateOfLsGpsWn changeWeek
U2 dateOfLsGpsDn changeDay
R3
X1 valid
.0 validCurrLs currentValid
.1 validTimeToLsEvent changeValid
""", given={"version": 0})

_RELATIVE_FLAGS = """
X4 flags
.0 gnssFixOK fixOk
.1 diffSoln diffSolution
.2 relPosValid relativeValid
.3-4 carrSoln carrierSolution
.5 isMoving moving
.6 refPosMiss stationMissed
.7 refObsMiss observationsMissed
"""

ubx("NAV-RELPOSNED", 0x013C, "NAV-RELPOSNED", """
U1 version version
R1
U2 refStationId stationId
U4 iTOW tow
I4 relPosN +
I4 relPosE +
I4 relPosD +
I4 relPosLength +
I4 relPosHeading heading 1e-5
R4
I1 relPosHPN +
I1 relPosHPE +
I1 relPosHPD +
I1 relPosHPLength +
A4 accN northAccuracy 1e-4
A4 accE eastAccuracy 1e-4
A4 accD downAccuracy 1e-4
A4 accLength lengthAccuracy 1e-4
A4 accHeading headingAccuracy 1e-5
R4
""" + _RELATIVE_FLAGS + """
.8 relPosHeadingValid headingValid
.9 relPosNormalized normalized
""", _all(_joined(1e-4, 100, ("north", "relPosN", "relPosHPN"), ("east", "relPosE", "relPosHPE"),
                  ("down", "relPosD", "relPosHPD"),
                  ("length", "relPosLength", "relPosHPLength")),
          _unknown_unless(["relPosValid"], "north", "east", "down", "length"),
          _unknown_unless(["relPosHeadingValid"], "heading")), {"version": 1})

ubx("NAV-RELPOSNED-0", 0x013C, "NAV-RELPOSNED", """
U1 version version
R1
U2 refStationId stationId
U4 iTOW tow
I4 relPosN +
I4 relPosE +
I4 relPosD +
I1 relPosHPN +
I1 relPosHPE +
I1 relPosHPD +
R1
A4 accN northAccuracy 1e-4
A4 accE eastAccuracy 1e-4
A4 accD downAccuracy 1e-4
""" + _RELATIVE_FLAGS,
    _all(_joined(1e-4, 100, ("north", "relPosN", "relPosHPN"), ("east", "relPosE", "relPosHPE"),
                 ("down", "relPosD", "relPosHPD")),
         _unknown_unless(["relPosValid"], "north", "east", "down"),
         lambda expected, wire: expected.update(length=None, heading=None, lengthAccuracy=None,
                                                headingAccuracy=None, headingValid=None,
                                                normalized=None)), {"version": 0})

ubx("NAV-SVIN", 0x013B, "NAV-SVIN", """
U1 version version
R3
U4 iTOW tow
U4 dur duration
I4 meanX +
I4 meanY +
I4 meanZ +
I1 meanXHP +
I1 meanYHP +
I1 meanZHP +
R1
A4 meanAcc accuracy 1e-4
U4 obs observations
U1 valid valid
U1 active active
R2
""", _joined(1e-4, 100, ("x", "meanX", "meanXHP"), ("y", "meanY", "meanYHP"),
             ("z", "meanZ", "meanZHP")), {"version": 0})

ubx("NAV-ATT", 0x0105, "NAV-ATT", """
U4 iTOW tow
U1 version version
R3
I4 roll roll 1e-5
I4 pitch pitch 1e-5
I4 heading heading 1e-5
U4 accRoll rollAccuracy 1e-5
U4 accPitch pitchAccuracy 1e-5
U4 accHeading headingAccuracy 1e-5
""", given={"version": 0})

ubx("NAV-PL", 0x0162, "NAV-PL", """
U1 msgVersion version
U1 tmirCoeff riskCoefficient
I1 tmirExp riskExponent
U1 plPosValid positionValid
U1 plPosFrame positionFrame
U1 plVelValid velocityValid
U1 plVelFrame velocityFrame
U1 plTimeValid timeValid
U1 plPosInvalidityReason positionInvalidReason
U1 plVelInvalidityReason velocityInvalidReason
U1 plTimeInvalidityReason timeInvalidReason
R1
U4 iTow tow
U4 plPos1 positionLevels[]
U4 plPos2 positionLevels[]
U4 plPos3 positionLevels[]
U4 plVel1 velocityLevels[]
U4 plVel2 velocityLevels[]
U4 plVel3 velocityLevels[]
U2 plPosHorizOrient positionOrientation
U2 plVelHorizOrient velocityOrientation
U4 plTime timeLevel
U4 reserved1 reservedAtEnd*
""", given={"msgVersion": 1})


# --- Satellites -----------------------------------------------------------------------------------

def _direction(expected, wire):
    if not -90 <= wire["elev"] <= 90:
        expected.update(elevation=None, azimuth=None)


ubx("NAV-SAT", 0x0135, "NAV-SAT-WIDE", """
U4 iTOW tow
U1 version version
U1 numSvs +
R2
""", None, {"version": 1}, """
U1 gnssId systemId
U1 svId satelliteId
U1 cno cn0
I1 elev elevation
I2 azim azimuth
I2 prRes residual
X4 flags
.0-2 qualityInd quality
.3 svUsed used
.4-5 health health
.6 diffCorr corrected
.7 smoothed smoothed
.8-10 orbitSource orbitSource
.11 ephAvail ephemeris
.12 almAvail almanac
.13 anoAvail offlinePrediction
.14 aopAvail autonomousPrediction
.16 sbasCorrUsed sbasCorrections
.17 rtcmCorrUsed rtcmCorrections
.18 slasCorrUsed slasCorrections
.19 spartnCorrUsed spartnCorrections
.20 prCorrUsed rangeCorrections
.21 crCorrUsed carrierCorrections
.22 doCorrUsed dopplerCorrections
.23 clasCorrUsed clasCorrections
.24 lppCorrUsed lppCorrections
.25 hasCorrUsed hasCorrections
""", "satellites", "numSvs", 255, _direction)

ubx("NAV-SIG", 0x0143, "NAV-SIG", """
U4 iTOW tow
U1 version version
U1 numSigs +
R2
""", None, {"version": 0}, """
U1 gnssId systemId
U1 svId satelliteId
U1 sigId signalId
U1 freqId frequencySlot
I2 prRes residual
U1 cno cn0
U1 qualityInd quality
U1 corrSource correctionSource
U1 ionoModel ionosphereModel
X2 sigFlags
.0-1 health health
.2 prSmoothed smoothed
.3 prUsed rangeUsed
.4 crUsed carrierUsed
.5 doUsed dopplerUsed
.6 prCorrUsed rangeCorrections
.7 crCorrUsed carrierCorrections
.8 doCorrUsed dopplerCorrections
.9 authStatus authenticated
R4
""", "signals", "numSigs", 252)

ubx("NAV-SVINFO", 0x0130, "NAV-SVINFO", """
U4 iTOW tow
U1 numCh +
X1 globalFlags
.0-2 chipGen chipGeneration
R2
""", None, {}, """
U1 chn channel
U1 svid satelliteId
X1 flags
.0 svUsed used
.1 diffCorr corrected
.2 orbitAvail orbitAvailable
.3 orbitEph orbitEphemeris
.4 unhealthy unhealthy
.5 orbitAlm orbitAlmanac
.6 orbitAop orbitPrediction
.7 smoothed smoothed
X1 quality
.0-3 qualityInd quality
U1 cno cn0
I1 elev elevation
I2 azim azimuth
I4 prRes residual
""", "channels", "numCh", 255, _direction)


def _subframe(name, version, sig_id, channel):
    """The words are plain numbers, and not elements with members."""
    rows = _table(f"""
U1 gnssId systemId
U1 svId satelliteId
{sig_id}
U1 freqId frequencySlot
U1 numWords count*
{channel}
U1 version version
R1
""", name)

    def make(rng):
        count = _count(rng, 16)
        # Satellites without a message to assemble: that would be a record of its own.
        given = {"version": version, "numWords": count, "gnssId": rng.choice((1, 7, 8, 255))}
        payload, _, expected = _written(rows, rng, given, None)
        words = [draw(rng, 32) for _ in range(count)]
        expected.update(tow=Clock, week=Clock, timeText=Clock,
                        words=[None if word == 0xFFFFFFFF else word for word in words])
        if version == 1:
            expected["channel"] = None
        return ubx_frame(0x02, 0x13, payload + struct.pack(f"<{count}I", *words)), expected

    MESSAGES.append(Message(name, "RXM-SFRBX", make))


_subframe("RXM-SFRBX", 2, "U1 sigId signalId", "U1 chn channel")
_subframe("RXM-SFRBX-1", 1, "U1 sigId signalId", "R1")

ubx("RXM-RTCM", 0x0232, "RXM-RTCM", """
U1 version version
X1 flags
.0 crcFailed crcFailed
.1-2 msgUsed used
U2 subType subType
U2 refStation stationId
U2 msgType messageType
""", given={"version": 2})

ubx("RXM-MEASX", 0x0214, "RXM-MEASX", """
U1 version version
R3
U4 gpsTOW gpsTow
U4 gloTOW glonassTow
U4 bdsTOW bdsTow
R4
U4 qzssTOW qzssTow
U2 gpsTOWacc gpsAccuracy 2^-4
U2 gloTOWacc glonassAccuracy 2^-4
U2 bdsTOWacc bdsAccuracy 2^-4
R2
U2 qzssTOWacc qzssAccuracy 2^-4
U1 numSV +
X1 flags
.0-1 towSet towSet
R8
""", None, {"version": 1}, """
U1 gnssId systemId
U1 svId satelliteId
U1 cNo cn0
U1 mpathIndic multipath
I4 dopplerMS dopplerSpeed 0.04
I4 dopplerHz doppler 0.2
U2 wholeChips wholeChips
U2 fracChips fractionalChips
U4 codePhase codePhase 2^-21
U1 intCodePhase wholeCodePhase
U1 pseuRangeRMSErr rangeErrorIndex
R2
""", "measurements", "numSV", 166)


# --- Pulses, sensors, the receiver ----------------------------------------------------------------

ubx("TIM-TP", 0x0D01, "TIM-TP", """
U4 towMS pulseTow
U4 towSubMS pulseTowFraction 2^-32
I4 qErr quantizationError
U2 week pulseWeek
X1 flags
.0 timeBase utcBase
.1 utc utcAvailable
.2-3 raim raim
.4 qErrInvalid quantizationInvalid
.5 TpNotLocked notLocked
X1 refInfo
.0-3 timeRefGnss gnssReference
.4-7 utcStandard utcStandard
""")

ubx("TIM-TM2", 0x0D03, "TIM-TM2", """
U1 ch channel
X1 flags
.0 mode running
.1 run stopped
.2 newFallingEdge newFalling
.3-4 timeBase timeBase
.5 utc utcAvailable
.6 time timeValid
.7 newRisingEdge newRising
U2 count edges*
U2 wnR risingWeek
U2 wnF fallingWeek
U4 towMsR risingTow
U4 towSubMsR risingNanoseconds
U4 towMsF fallingTow
U4 towSubMsF fallingNanoseconds
U4 accEst accuracy
""")

ubx("ESF-STATUS", 0x1010, "ESF-STATUS", """
U4 iTOW tow
U1 version version
X1 initStatus1
.0-1 wtInitStatus wheelTicks
.2-4 mntAlgStatus mounting
.5-7 insInitStatus inertial
X1 initStatus2
.0-1 imuInitStatus inertialSensors
R5
U1 fusionMode fusionMode
R2
U1 numSens +
""", None, {"version": 2}, """
X1 sensStatus1
.0-5 type type
.6 used used
.7 ready ready
X1 sensStatus2
.0-1 calibStatus calibration
.2-3 timeStatus timing
U1 freq rate
X1 faults
.0 badMeas badMeasurement
.1 badTTag badTime
.2 missingMeas missing
.3 noisyMeas noisy
""", "sensors", "numSens", 255)

ubx("ESF-RAW", 0x1003, "ESF-RAW", "R4", None, {}, """
X4 data
.0-23 dataField data
.24-31 dataType +
U4 sTtag sensorTime
""", "measurements", "", 505,
    lambda expected, wire: expected.update(type=_whole(wire["dataType"], "", 255)))

ubx("ESF-INS", 0x1015, "ESF-INS", """
U1 version version
X1 valid
.0 xAngRateValid rateXValid
.1 yAngRateValid rateYValid
.2 zAngRateValid rateZValid
.3 xAccelValid accelerationXValid
.4 yAccelValid accelerationYValid
.5 zAccelValid accelerationZValid
R2
R4
U4 iTOW tow
I4 xAngRate rateX 1e-3
I4 yAngRate rateY 1e-3
I4 zAngRate rateZ 1e-3
I4 xAccel accelerationX 0.01
I4 yAccel accelerationY 0.01
I4 zAccel accelerationZ 0.01
""", given={"version": 1})

ubx("ESF-ALG", 0x1014, "ESF-ALG", """
U4 iTOW tow
U1 version version
X1 flags
.0 autoMntAlgOn automatic
.1-3 status state
X1 error
.0 tiltAlgError tiltError
.1 yawAlgError yawError
.2 angleError angleError
R1
U4 yaw yaw 0.01
I2 pitch pitch 0.01
I2 roll roll 0.01
""", given={"version": 1})


def _sensor_measurements(rng):
    count, calibrated = rng.choice((0, 1, 7, 31, rng.randint(0, 31))), rng.getrandbits(1)
    mark, edge, spare = rng.getrandbits(2), rng.getrandbits(1), rng.getrandbits(7)
    flags = mark | edge << 2 | calibrated << 3 | spare << 4 | count << 11
    time, provider, calibration = draw(rng, 32), draw(rng, 16), draw(rng, 32)
    words = [draw(rng, 32) for _ in range(count)]
    payload = struct.pack(f"<IHH{count}I", time, flags, provider, *words)
    if calibrated:
        payload += struct.pack("<I", calibration)
    ones = 0xFFFFFFFF
    return ubx_frame(0x10, 0x02, payload), {
        "tow": Clock, "week": Clock, "timeText": Clock, "count": count,
        "sensorTime": _whole(time, "", ones), "providerId": _whole(provider, "", 0xFFFF),
        "timeMarkSent": mark, "timeMarkEdge": edge, "hasCalibration": calibrated,
        "calibrationTime": _whole(calibration, "", ones) if calibrated else None,
        "measurements": [{"data": word & 0xFFFFFF, "type": word >> 24 & 0x3F} for word in words]}


def _text(rng, most):
    """Rarely with a byte above ASCII, which JSON has by its number in ISO 8859-1."""
    length = rng.choice((0, most, rng.randint(0, most)))
    return "".join(rng.choice('aB7 -,."\\/=\xe9') for _ in range(length))


def _padded(text, width):
    return text.encode("latin-1").ljust(width, b"\0")


def _version(rng):
    software, hardware = _text(rng, 30), _text(rng, 10)
    extensions = [_text(rng, 30) for _ in range(_count(rng, 133))]
    payload = _padded(software, 30) + _padded(hardware, 10)
    payload += b"".join(_padded(text, 30) for text in extensions)
    return ubx_frame(0x0A, 0x04, payload), {
        "tow": Clock, "week": Clock, "timeText": Clock, "software": software or None,
        "hardware": hardware or None, "count": len(extensions),
        "extensions": [text or None for text in extensions]}


def _information(rng):
    severity, text = rng.randrange(5), _text(rng, rng.choice((60, 4048)))
    return ubx_frame(0x04, severity, text.encode("latin-1")), {
        "tow": Clock, "week": Clock, "timeText": Clock, "severity": severity, "text": text or None}


def _acknowledge(rng):
    accepted, of_class, of_id = rng.getrandbits(1), draw(rng, 8), draw(rng, 8)
    return ubx_frame(0x05, accepted, bytes((of_class, of_id))), {
        "tow": Clock, "week": Clock, "timeText": Clock, "accepted": accepted,
        "messageClass": _whole(of_class, "", 255), "messageId": _whole(of_id, "", 255)}


MESSAGES += [Message("ESF-MEAS", "ESF-MEAS", _sensor_measurements),
             Message("MON-VER", "MON-VER", _version), Message("INF", "INF", _information),
             Message("ACK", "ACK", _acknowledge)]
