"""Random UBX messages of the solution, for scripts/compare-fields; ubx_tables has the form."""

from ubx_tables import all_of, joined, ubx_message, unknown_unless

MESSAGES, NOT_HELD = [], {}


def ubx(*table, **more):
    MESSAGES.append(ubx_message(NOT_HELD, *table, **more))


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
""", all_of(_pvt_position, unknown_unless(["validMag"], "magDeclination", "magAccuracy")))
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
""", all_of(lambda expected, wire: wire["fixType"] or expected.update(
    longitude=None, latitude=None, height=None, heightMsl=None),
          unknown_unless(["vehRollValid"], "roll", "rollAccuracy"),
          unknown_unless(["vehPitchValid"], "pitch", "pitchAccuracy"),
          unknown_unless(["vehHeadingValid"], "vehicleHeading"),
          unknown_unless(["validMag"], "magDeclination", "magAccuracy")), {"version": 0})

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
""", all_of(joined(1e-9, 100, ("longitude", "lon", "lonHp"), ("latitude", "lat", "latHp")),
          joined(1e-4, 10, ("height", "height", "heightHp"), ("heightMsl", "hMSL", "hMSLHp")),
          unknown_unless(["!invalidLlh"], "longitude", "latitude", "height", "heightMsl")),
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
""", all_of(joined(1e-4, 100, ("x", "ecefX", "ecefXHp"), ("y", "ecefY", "ecefYHp"),
                  ("z", "ecefZ", "ecefZHp")),
          unknown_unless(["!invalidEcef"], "x", "y", "z")), {"version": 0})

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
""", all_of(joined(1e-4, 100, ("north", "relPosN", "relPosHPN"), ("east", "relPosE", "relPosHPE"),
                  ("down", "relPosD", "relPosHPD"),
                  ("length", "relPosLength", "relPosHPLength")),
          unknown_unless(["relPosValid"], "north", "east", "down", "length"),
          unknown_unless(["relPosHeadingValid"], "heading")), {"version": 1})

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
    all_of(joined(1e-4, 100, ("north", "relPosN", "relPosHPN"), ("east", "relPosE", "relPosHPE"),
                 ("down", "relPosD", "relPosHPD")),
         unknown_unless(["relPosValid"], "north", "east", "down"),
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
""", joined(1e-4, 100, ("x", "meanX", "meanXHP"), ("y", "meanY", "meanYHP"),
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
