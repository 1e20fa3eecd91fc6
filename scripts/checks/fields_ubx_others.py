"""Random UBX messages of satellites, pulses, sensors and the receiver, for scripts/compare-fields;
ubx_tables has the form."""

import struct

from ubx_tables import count_of, draw, table, ubx_message, whole, written
from wire import Clock, Message, ubx_frame

MESSAGES, NOT_HELD = [], {}


def ubx(*table, **more):
    MESSAGES.append(ubx_message(NOT_HELD, *table, **more))


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
    rows = table(f"""
U1 gnssId systemId
U1 svId satelliteId
{sig_id}
U1 freqId frequencySlot
U1 numWords count*
{channel}
U1 version version
R1
""", name, NOT_HELD)

    def make(rng):
        count = count_of(rng, 16)
        # Satellites without a message to assemble: that would be a record of its own.
        given = {"version": version, "numWords": count, "gnssId": rng.choice((1, 7, 8, 255))}
        payload, _, expected = written(rows, rng, given, None)
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
    lambda expected, wire: expected.update(type=whole(wire["dataType"], "", 255)))

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
        "sensorTime": whole(time, "", ones), "providerId": whole(provider, "", 0xFFFF),
        "timeMarkSent": mark, "timeMarkEdge": edge, "hasCalibration": calibrated,
        "calibrationTime": whole(calibration, "", ones) if calibrated else None,
        "measurements": [{"data": word & 0xFFFFFF, "type": word >> 24 & 0x3F} for word in words]}


def _text(rng, most):
    """Rarely with a byte above ASCII, which JSON has by its number in ISO 8859-1."""
    length = rng.choice((0, most, rng.randint(0, most)))
    return "".join(rng.choice('aB7 -,."\\/=\xe9') for _ in range(length))


def _padded(text, width):
    return text.encode("latin-1").ljust(width, b"\0")


def _version(rng):
    software, hardware = _text(rng, 30), _text(rng, 10)
    extensions = [_text(rng, 30) for _ in range(count_of(rng, 133))]
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
        "messageClass": whole(of_class, "", 255), "messageId": whole(of_id, "", 255)}


MESSAGES += [Message("ESF-MEAS", "ESF-MEAS", _sensor_measurements),
             Message("MON-VER", "MON-VER", _version), Message("INF", "INF", _information),
             Message("ACK", "ACK", _acknowledge)]
