# Types of navframe.records. Made by scripts/catalogue from the public headers: do not edit.
from typing import final

from ._navframe import Entry, Record

@final
class UTCTIME(Entry):
    @property
    def year(self) -> int | None: "four digits"
    @property
    def month(self) -> int | None: "1 to 12"
    @property
    def day(self) -> int | None: "1 to 31"
    @property
    def hour(self) -> int | None: "[h] 0 to 23"
    @property
    def minute(self) -> int | None: "[min] 0 to 59"
    @property
    def second(self) -> int | None: "[s] 0 to 60, 60 being a leap second"
    @property
    def millisecond(self) -> int | None: "[ms] 0 to 999"
    @property
    def flag(self) -> int: "the message's time field was read"

@final
class GPSTIME(Entry):
    @property
    def tow(self) -> int | None: "[ms] time of week"
    @property
    def week(self) -> int | None: "weeks since 1980-01-06, never rolled over"

@final
class GgaRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def fixQuality(self) -> int | None: "quality of the fix"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def hdop(self) -> float | None: "horizontal dilution of precision"
    @property
    def altitude(self) -> float | None: "[m] above mean sea level"
    @property
    def geoidSeparation(self) -> float | None: "[m] geoid above the ellipsoid"
    @property
    def correctionAge(self) -> float | None: "[s] age of differential data"
    @property
    def stationId(self) -> int | None: "differential reference station"

@final
class RmcRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def dateText(self) -> str | None: "date field, ddmmyy"
    @property
    def status(self) -> int | None: "state of the receiver"
    @property
    def mode(self) -> int | None: "positioning mode"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def speedKnots(self) -> float | None: "[kn] speed over ground"
    @property
    def course(self) -> float | None: "[deg] course over ground, true"
    @property
    def utc(self) -> UTCTIME: "date and time of day of the sentence"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"

@final
class GsaRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def systemId(self) -> int | None: "system of the satellites"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def selectionMode(self) -> int | None: "choice between two and three dimensions"
    @property
    def fixType(self) -> int | None: "dimensions of the fix"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def pdop(self) -> float | None: "position dilution of precision"
    @property
    def hdop(self) -> float | None: "horizontal dilution of precision"
    @property
    def vdop(self) -> float | None: "vertical dilution of precision"
    @property
    def usedCount(self) -> int: "satellites in use, 0 to 12"
    @property
    def usedSatellites(self) -> list[int | None]: "satellite numbers"

@final
class SatelliteSignal(Entry):
    @property
    def signalId(self) -> int | None: "NMEA signal id, 0 when the sentence has none"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density, integer part"

@final
class SatelliteInView(Entry):
    @property
    def number(self) -> int | None: "satellite number"
    @property
    def systemId(self) -> int | None: "system of the satellite"
    @property
    def azimuth(self) -> int | None: "[deg] from true north"
    @property
    def elevation(self) -> int | None: "[deg] above the horizon"
    @property
    def used(self) -> int: "a GSA sentence listed the satellite"
    @property
    def signalCount(self) -> int: "signals, 0 to 3"
    @property
    def signals(self) -> list[SatelliteSignal]: "signals in the order of their sentences"

@final
class GsvRecord(Record):
    @property
    def tag(self) -> int: "the sentences stood behind tag blocks, which is never the case"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the cycle's sentences arrived"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the cycle's sentences arrived"
    @property
    def cycleComplete(self) -> int: "the cycle is complete, which it always is"
    @property
    def satelliteCount(self) -> int: "satellites, 0 to 96"
    @property
    def satellites(self) -> list[SatelliteInView]: "numbered ones in order of appearance, then unnumbered ones"

@final
class WideSatelliteSignal(Entry):
    @property
    def signalId(self) -> int | None: "NMEA signal id, 0 when the sentence has none"
    @property
    def cn0(self) -> int | None: "[0.01 dB-Hz] carrier-to-noise density"

@final
class WideSatelliteInView(Entry):
    @property
    def number(self) -> int | None: "satellite number"
    @property
    def azimuth(self) -> int | None: "[deg] from true north"
    @property
    def elevation(self) -> int | None: "[deg] above the horizon, negative below it"
    @property
    def systemId(self) -> int | None: "system of the satellite"
    @property
    def used(self) -> int: "a GSA sentence listed the satellite"
    @property
    def signalCount(self) -> int: "signals, 0 to 16"
    @property
    def signals(self) -> list[WideSatelliteSignal]: "signals in the order of their sentences"

@final
class WideGsvRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the cycle's sentences arrived"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the cycle's sentences arrived"
    @property
    def satelliteCount(self) -> int: "satellites, 0 to 256"
    @property
    def satellites(self) -> list[WideSatelliteInView]: "satellites in order of appearance"

@final
class GllRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def status(self) -> int | None: "state of the data"
    @property
    def mode(self) -> int | None: "positioning mode"

@final
class GstRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def rangeRms(self) -> float | None: "[m] RMS of the range residuals"
    @property
    def ellipseSemiMajor(self) -> float | None: "[m] semi-major axis of the error ellipse"
    @property
    def ellipseSemiMinor(self) -> float | None: "[m] semi-minor axis of the error ellipse"
    @property
    def ellipseOrientation(self) -> float | None: "[deg] of the semi-major axis, from true north"
    @property
    def latitudeDeviation(self) -> float | None: "[m] standard deviation of the latitude"
    @property
    def longitudeDeviation(self) -> float | None: "[m] standard deviation of the longitude"
    @property
    def altitudeDeviation(self) -> float | None: "[m] standard deviation of the altitude"

@final
class GbsRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def latitudeError(self) -> float | None: "[m] expected error of the latitude"
    @property
    def longitudeError(self) -> float | None: "[m] expected error of the longitude"
    @property
    def altitudeError(self) -> float | None: "[m] expected error of the altitude"
    @property
    def failedSatellite(self) -> int | None: "number of the most likely failed satellite"
    @property
    def bias(self) -> float | None: "[m] estimated range bias of that satellite"
    @property
    def biasDeviation(self) -> float | None: "[m] standard deviation of the bias"
    @property
    def systemId(self) -> int | None: "system of that satellite"
    @property
    def signalId(self) -> int | None: "NMEA signal id, as in GNSSSigIdToName"

@final
class VtgRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def courseTrue(self) -> float | None: "[deg] course over ground from true north"
    @property
    def courseMagnetic(self) -> float | None: "[deg] course over ground from magnetic north"
    @property
    def speedKnots(self) -> float | None: "[kn] speed over ground"
    @property
    def speedKmh(self) -> float | None: "[km/h] speed over ground"
    @property
    def mode(self) -> int | None: "positioning mode"

@final
class ZdaRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def utc(self) -> UTCTIME: "date and time of day of the sentence"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def zoneHours(self) -> int | None: "[h] local zone, modulo 256 (-5 is 251)"
    @property
    def zoneMinutes(self) -> int | None: "[min] local zone"

@final
class WideRmcRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "date and time of day of the sentence"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def dateText(self) -> str | None: "date field, ddmmyy"
    @property
    def status(self) -> int | None: "state of the receiver"
    @property
    def mode(self) -> int | None: "positioning mode"
    @property
    def navigationalState(self) -> int | None: "whether to rely on the position"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def speedKnots(self) -> float | None: "[kn] speed over ground"
    @property
    def course(self) -> float | None: "[deg] course over ground, true"
    @property
    def magneticVariation(self) -> float | None: "[deg] of magnetic north from true north, east positive"

@final
class WideGsaRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def selectionMode(self) -> int | None: "choice between two and three dimensions"
    @property
    def fixType(self) -> int | None: "dimensions of the fix"
    @property
    def usedCount(self) -> int: "satellites in use, 0 to 12"
    @property
    def systemId(self) -> int | None: "system of the satellites"
    @property
    def pdop(self) -> float | None: "position dilution of precision"
    @property
    def hdop(self) -> float | None: "horizontal dilution of precision"
    @property
    def vdop(self) -> float | None: "vertical dilution of precision"
    @property
    def usedSatellites(self) -> list[int | None]: "satellite numbers"

@final
class WideGbsRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def systemId(self) -> int | None: "system of the failed satellite"
    @property
    def signalId(self) -> int | None: "NMEA signal id, as in GNSSSigIdToName"
    @property
    def failedSatellite(self) -> int | None: "number of the most likely failed satellite"
    @property
    def latitudeError(self) -> float | None: "[m] expected error of the latitude"
    @property
    def longitudeError(self) -> float | None: "[m] expected error of the longitude"
    @property
    def altitudeError(self) -> float | None: "[m] expected error of the altitude"
    @property
    def missedDetection(self) -> float | None: "probability that the failure of that satellite is missed"
    @property
    def bias(self) -> float | None: "[m] estimated range bias of that satellite"
    @property
    def biasDeviation(self) -> float | None: "[m] standard deviation of the bias"

@final
class WideZdaRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "date and time of day of the sentence"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def zoneHours(self) -> int | None: "[h] local zone"
    @property
    def zoneMinutes(self) -> int | None: "[min] local zone"

@final
class GnsRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def altitude(self) -> float | None: "[m] above mean sea level"
    @property
    def geoidSeparation(self) -> float | None: "[m] geoid above the ellipsoid"
    @property
    def hdop(self) -> float | None: "horizontal dilution of precision"
    @property
    def correctionAge(self) -> float | None: "[s] age of differential data"
    @property
    def stationId(self) -> int | None: "differential reference station"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def navigationalState(self) -> int | None: "whether to rely on the position"
    @property
    def modeCount(self) -> int: "systems that the sentence has a mode of, 0 to 8"
    @property
    def modes(self) -> list[int | None]: "positioning mode of GPS, GLONASS, Galileo, BeiDou, QZSS and NavIC, in this order"

@final
class ThsRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def mode(self) -> int | None: "how the heading was found"
    @property
    def heading(self) -> float | None: "[deg] from true north"

@final
class HdtRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def heading(self) -> float | None: "[deg] from true north"

@final
class RotRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def status(self) -> int | None: "state of the data"
    @property
    def rate(self) -> float | None: "[deg/min] negative when the bow turns to port"

@final
class TextRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def total(self) -> int | None: "sentences of the text"
    @property
    def number(self) -> int | None: "number of this sentence, from 1 on"
    @property
    def identifier(self) -> int | None: "what kind of text it is, by the talker"
    @property
    def length(self) -> int: "[B] of the text"
    @property
    def text(self) -> str | None: "ISO 8859-1; characters that were sent as ^ and two digits are decoded"

@final
class DtmRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the stream's time of day"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def datum(self) -> str | None: "datum of the positions: W84, W72, S85, P90, 999 (user defined) or a code of the hydrographic tables"
    @property
    def subdivision(self) -> str | None: "subdivision of the datum"
    @property
    def reference(self) -> str | None: "datum that the offsets are from"
    @property
    def latitudeOffset(self) -> float | None: "[min] of arc, north positive"
    @property
    def longitudeOffset(self) -> float | None: "[min] of arc, east positive"
    @property
    def altitudeOffset(self) -> float | None: "[m] of the altitude"

@final
class GrsRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "time of day of the position; no date"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def recomputed(self) -> int | None: "what the residuals belong to"
    @property
    def systemId(self) -> int | None: "system of the satellites"
    @property
    def signalId(self) -> int | None: "NMEA signal id, as in GNSSSigIdToName"
    @property
    def residuals(self) -> list[float | None]: "[m] in the order of the satellites of GSA"

@final
class GfaRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the stream's GPS time when the sentence was decoded"
    @property
    def utc(self) -> UTCTIME: "time of day of the position; no date"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def talker(self) -> str | None: "talker"
    @property
    def horizontalProtection(self) -> float | None: "[m] horizontal protection level"
    @property
    def verticalProtection(self) -> float | None: "[m] vertical protection level"
    @property
    def ellipseSemiMajor(self) -> float | None: "[m] standard deviation along the major axis of the error ellipse"
    @property
    def ellipseSemiMinor(self) -> float | None: "[m] standard deviation along the minor axis"
    @property
    def ellipseOrientation(self) -> float | None: "[deg] of the semi-major axis, from true north"
    @property
    def altitudeDeviation(self) -> float | None: "[m] standard deviation of the altitude"
    @property
    def selectedAccuracy(self) -> float | None: "[m] accuracy level that was selected"
    @property
    def integrityCount(self) -> int: "states that the sentence has, 0 to 8"
    @property
    def integrity(self) -> list[int | None]: "integrity by RAIM, SBAS and Galileo, in this order"

@final
class NavPosRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def solutionStatus(self) -> int | None: "state of the solution"
    @property
    def positionType(self) -> int | None: "type of the solution"
    @property
    def datum(self) -> int | None: "datum"
    @property
    def stationNumber(self) -> int | None: "reference station"
    @property
    def text(self) -> str | None: "text of at most 15 characters"
    @property
    def status(self) -> int | None: "state"
    @property
    def count(self) -> int | None: "count"
    @property
    def x(self) -> float | None: "[m] Cartesian coordinate X"
    @property
    def y(self) -> float | None: "[m] Cartesian coordinate Y"
    @property
    def z(self) -> float | None: "[m] Cartesian coordinate Z"
    @property
    def sigmaX(self) -> float | None: "[m] standard deviation of X"
    @property
    def sigmaY(self) -> float | None: "[m] standard deviation of Y"
    @property
    def sigmaZ(self) -> float | None: "[m] standard deviation of Z"

@final
class NavVelRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def solutionStatus(self) -> int | None: "state of the solution"
    @property
    def positionType(self) -> int | None: "type of the solution"
    @property
    def datum(self) -> int | None: "datum"
    @property
    def stationNumber(self) -> int | None: "reference station"
    @property
    def text(self) -> str | None: "text of at most 15 characters"
    @property
    def status(self) -> int | None: "state"
    @property
    def count(self) -> int | None: "count"
    @property
    def velocity(self) -> list[float | None]: "[m/s] components of the velocity"
    @property
    def speedAccuracy(self) -> float | None: "[m/s] accuracy of the velocity"

@final
class NavTimeGroup(Entry):
    @property
    def status(self) -> int | None: "state of the time"
    @property
    def flag(self) -> int | None: "flag of the time"
    @property
    def seconds(self) -> float | None: "[s] the time"

@final
class NavTimeRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def groups(self) -> list[NavTimeGroup]: "times with their states"

@final
class NavAccRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "time field"
    @property
    def utc(self) -> UTCTIME: "time of day of the sentence; no date"
    @property
    def status(self) -> int: "state"
    @property
    def values(self) -> list[int | None]: "accuracies"

@final
class PNavMsgRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def head(self) -> list[int]: "first two numbers"
    @property
    def values(self) -> list[int]: "diagnostic bytes"

@final
class CwOutRecord(Record):
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the sentence was decoded"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def values(self) -> list[int]: "interference values"

@final
class GyoAccRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field, nothing in 71"
    @property
    def utc(self) -> UTCTIME: "time of day of the message"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the message was decoded"
    @property
    def gyro(self) -> list[float | None]: "angular rates about x, y and z"
    @property
    def acceleration(self) -> list[float | None]: "accelerations along x, y and z"

@final
class SnrStatRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "the decoder's time of day"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the message was decoded"
    @property
    def count(self) -> int | None: "first number"
    @property
    def state(self) -> int | None: "second number"
    @property
    def levels(self) -> list[int | None]: "signed numbers"

@final
class NavAttRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field, hhmmss.ss in 73"
    @property
    def utc(self) -> UTCTIME: "time of day of the message"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the message was decoded"
    @property
    def values(self) -> list[float | None]: "angles and their deviations"

@final
class ImuRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field, hhmmss.ss in 74"
    @property
    def utc(self) -> UTCTIME: "time of day of the message"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the message was decoded"
    @property
    def text(self) -> list[str | None]: "texts"
    @property
    def values(self) -> list[float | None]: "measurements"

@final
class InsPvaRecord(Record):
    @property
    def tag(self) -> int: "the sentence stood behind a tag block, which is never the case"
    @property
    def timeText(self) -> str | None: "time field, hhmmss.ss in 75"
    @property
    def dateText(self) -> str | None: "date field, ddmmyy in 75"
    @property
    def utc(self) -> UTCTIME: "time of day of the message"
    @property
    def gpsTime(self) -> GPSTIME: "the decoder's GPS time when the message was decoded"
    @property
    def latitude(self) -> float | None: "[deg] north positive; in 75 the one 64-bit value of the message, in units of 2^-32"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def height(self) -> float | None: "[m] height"
    @property
    def velocity(self) -> list[float | None]: "[m/s] components of the velocity"
    @property
    def attitude(self) -> list[float | None]: "[deg] angles of the attitude"

@final
class StationPositionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week when the message was decoded"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def itrfYear(self) -> int: "ITRF realization year"
    @property
    def gps(self) -> int: "the station serves GPS"
    @property
    def glonass(self) -> int: "the station serves GLONASS"
    @property
    def galileo(self) -> int: "the station serves Galileo"
    @property
    def referenceStation(self) -> int: "a computed (virtual) station, not a physical one"
    @property
    def x(self) -> int: "[0.0001 m] ECEF X without its sign"
    @property
    def y(self) -> int: "[0.0001 m] ECEF Y without its sign"
    @property
    def z(self) -> int: "[0.0001 m] ECEF Z without its sign"

@final
class MessageAnnouncement(Entry):
    @property
    def messageId(self) -> int: "message number"
    @property
    def synchronous(self) -> int: "sent at fixed times"
    @property
    def interval(self) -> int: "[0.1 s] interval of transmission"

@final
class SystemParametersRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week when the message was decoded"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def modifiedJulianDay(self) -> int: "[d] modified Julian day"
    @property
    def secondsOfDay(self) -> int: "[s] second of the day, UTC"
    @property
    def count(self) -> int: "announcements, 0 to 31"
    @property
    def leapSeconds(self) -> int: "[s] GPS time less UTC"
    @property
    def announcements(self) -> list[MessageAnnouncement]: "messages that the station sends"

@final
class MsmObservation(Entry):
    @property
    def system(self) -> int | None: "satellite system"
    @property
    def satellite(self) -> int: "satellite, 1 to 64"
    @property
    def signal(self) -> int: "RTCM MSM signal id, 1 to 32"
    @property
    def pseudorangeValid(self) -> int: "the pseudorange is set"
    @property
    def phaseStatus(self) -> int: "state of the phase"
    @property
    def rateValid(self) -> int: "the rate is set (MSM5 and MSM7 alone)"
    @property
    def cn0(self) -> int: "[dB-Hz] carrier-to-noise density, integer part"
    @property
    def halfCycleAmbiguity(self) -> int: "the phase may be off by half a cycle"
    @property
    def pseudorange(self) -> float | None: "[m] pseudorange"
    @property
    def carrierPhase(self) -> float | None: "[cycles] carrier phase, of the frequency that this library takes for the signal's"
    @property
    def phaseRangeRate(self) -> float | None: "[m/s] grows with the range, 0 when rateValid is"
    @property
    def lockTime(self) -> int: "[ms] time of continuous lock, at least"

@final
class MsmRecord(Record):
    @property
    def epochTime(self) -> int | None: "[ms] GPS time of week; BeiDou and GLONASS epochs are converted"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day, hhmmss.mmm, after this epoch set it"
    @property
    def count(self) -> int: "observations, 0 to 64"
    @property
    def system(self) -> int | None: "satellite system"
    @property
    def epochComplete(self) -> int: "the last message of its epoch"
    @property
    def observations(self) -> list[MsmObservation]: "by satellite, then signal"

@final
class RtcmSnrStatRecord(Record):
    @property
    def count(self) -> int: "always 1"
    @property
    def state(self) -> int: "first of four small numbers"
    @property
    def levels(self) -> list[int]: "the others"

@final
class TimeStatusRecord(Record):
    @property
    def tow(self) -> int: "[ms] GPS time of week, 0 when the message has none"
    @property
    def week(self) -> int | None: "GPS week"
    @property
    def timeText(self) -> str | None: "always empty"
    @property
    def status(self) -> list[int | None]: "states"

@final
class Sub249Record(Record):
    @property
    def tow(self) -> int | None: "[ms] always unknown"
    @property
    def week(self) -> int | None: "always unknown"

@final
class ClockOrbitRecord(Record):
    @property
    def system(self) -> int | None: "satellite system, always unknown"
    @property
    def tow(self) -> int | None: "[ms] always unknown"
    @property
    def week(self) -> int | None: "always unknown"
    @property
    def values(self) -> list[float | None]: "always unknown"
    @property
    def integers(self) -> list[float | None]: "whole numbers, always unknown"

@final
class SystemCount(Entry):
    @property
    def values(self) -> list[int]: "always 0, where 0 as the first stands for no entry"

@final
class SystemCountsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] always unknown"
    @property
    def week(self) -> int | None: "always unknown"
    @property
    def timeText(self) -> str | None: "always empty"
    @property
    def counts(self) -> list[int]: "of GPS, BeiDou, Galileo and QZSS, always 0"
    @property
    def entries(self) -> list[SystemCount]: "always 0"

@final
class SignalObservationsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week"
    @property
    def week(self) -> int | None: "GPS week"
    @property
    def timeText(self) -> str | None: "always empty"
    @property
    def count(self) -> int: "satellites, always 0"
    @property
    def satellites(self) -> list[SatelliteInView]: "satellites with their signals"

@final
class IntegerSetRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week"
    @property
    def week(self) -> int | None: "GPS week"
    @property
    def timeText(self) -> str | None: "always empty"
    @property
    def latitude(self) -> float | None: "[deg] always unknown"
    @property
    def longitude(self) -> float | None: "[deg] always unknown"
    @property
    def integers(self) -> list[int]: "always 0"

@final
class Sub17Record(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week when the message was decoded"
    @property
    def first(self) -> list[int]: "first bytes"
    @property
    def second(self) -> list[int]: "the bytes behind them"

@final
class Sub33Record(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week when the message was decoded"
    @property
    def values(self) -> list[int]: "numbers, 0 to 15"

@final
class Sub34Record(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week"
    @property
    def week(self) -> int | None: "GPS week"
    @property
    def state(self) -> int | None: "state"
    @property
    def mode(self) -> int: "0 to 15, 0 where a short message does not reach"
    @property
    def values(self) -> list[int]: "bytes, 0 where a short message does not reach"

@final
class Sub21Record(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week"
    @property
    def week(self) -> int | None: "GPS week"
    @property
    def body(self) -> list[int]: "bytes of the message"

@final
class Binary55AaRecord(Record):
    @property
    def payloadLength(self) -> int: "bytes of the payload"
    @property
    def payload(self) -> list[int]: "the payload, little-endian, without header and checksum"
    @property
    def stampWhole(self) -> int: "u32 at payload offset 0, in hundredths: whole units"
    @property
    def stampHundredths(self) -> int: "and the rest, 0 to 99"
    @property
    def angles(self) -> list[float | None]: "[rad] i32 in 0.001 degrees at payload offsets 4, 8 and 12"
    @property
    def rates(self) -> list[float | None]: "i32 * 0.001 at payload offsets 16, 20 and 24"
    @property
    def tenths(self) -> list[float | None]: "i32 * 0.1 at payload offsets 28 and 32"

@final
class UbxProtectionLevelsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def riskCoefficient(self) -> int | None: "target risk of misleading information: riskCoefficient * 10^riskExponent per coverage interval"
    @property
    def riskExponent(self) -> int | None: "see riskCoefficient"
    @property
    def positionValid(self) -> int | None: "position levels can be used"
    @property
    def positionFrame(self) -> int | None: "frame of the position levels"
    @property
    def velocityValid(self) -> int | None: "velocity levels can be used"
    @property
    def velocityFrame(self) -> int | None: "frame of the velocity levels"
    @property
    def timeValid(self) -> int | None: "the time level can be used"
    @property
    def positionInvalidReason(self) -> int | None: "the receiver's code, 0 when valid"
    @property
    def velocityInvalidReason(self) -> int | None: "the receiver's code, 0 when valid"
    @property
    def timeInvalidReason(self) -> int | None: "the receiver's code, 0 when valid"
    @property
    def positionLevels(self) -> list[int | None]: "[mm] position levels along the axes of their frame"
    @property
    def velocityLevels(self) -> list[int | None]: "[mm/s] velocity levels along the axes of their frame"
    @property
    def positionOrientation(self) -> int | None: "[0.01 deg] of the horizontal ellipse, clockwise from north"
    @property
    def velocityOrientation(self) -> int | None: "[0.01 deg] of the horizontal ellipse, clockwise from north"
    @property
    def timeLevel(self) -> int | None: "[ns] time level"
    @property
    def reservedAtEnd(self) -> int: "last bytes of the message, reserved there"

@final
class UbxNavigationRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's date and time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def year(self) -> int | None: "UTC"
    @property
    def month(self) -> int | None: "1 to 12"
    @property
    def day(self) -> int | None: "1 to 31"
    @property
    def hour(self) -> int | None: "[h] 0 to 23"
    @property
    def minute(self) -> int | None: "[min] 0 to 59"
    @property
    def second(self) -> int | None: "[s] 0 to 60"
    @property
    def millisecond(self) -> int: "[ms] of the second: nanoseconds / 1000000 towards 0, a negative one modulo 2^32"
    @property
    def dateValid(self) -> int | None: "the date is valid"
    @property
    def timeValid(self) -> int | None: "the time of day is valid"
    @property
    def fullyResolved(self) -> int | None: "no uncertainty of whole seconds is left"
    @property
    def magValid(self) -> int | None: "the magnetic declination is valid"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"
    @property
    def nanoseconds(self) -> int | None: "[ns] fraction of the second, -10^9 to 10^9"
    @property
    def fixType(self) -> int | None: "type of the fix"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def powerSaveState(self) -> int | None: "0 to 7, 0 without power saving"
    @property
    def headingValid(self) -> int | None: "the vehicle's heading is valid"
    @property
    def carrierSolution(self) -> int | None: "carrier phase solution"
    @property
    def confirmedAvailable(self) -> int | None: "the confirmations below are available"
    @property
    def confirmedDate(self) -> int | None: "the date was confirmed"
    @property
    def confirmedTime(self) -> int | None: "the time of day was confirmed"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def longitude(self) -> float | None: "[deg] east positive; unknown while fixType is 0"
    @property
    def latitude(self) -> float | None: "[deg] north positive; unknown while fixType is 0"
    @property
    def height(self) -> float | None: "[m] above the ellipsoid; unknown while fixType is 0"
    @property
    def heightMsl(self) -> float | None: "[m] above mean sea level; unknown while fixType is 0"
    @property
    def horizontalAccuracy(self) -> int | None: "[mm] accuracy of the horizontal position"
    @property
    def verticalAccuracy(self) -> int | None: "[mm] accuracy of the height"
    @property
    def velocityEast(self) -> int | None: "[mm/s] velocity to the east"
    @property
    def velocityNorth(self) -> int | None: "[mm/s] velocity to the north"
    @property
    def velocityUp(self) -> int | None: "[mm/s] velocity upwards"
    @property
    def groundSpeed(self) -> int | None: "[mm/s] speed over ground"
    @property
    def motionHeading(self) -> int | None: "[1e-5 deg] heading of motion"
    @property
    def speedAccuracy(self) -> int | None: "[mm/s] accuracy of the speed"
    @property
    def headingAccuracy(self) -> int | None: "[1e-5 deg] accuracy of the heading"
    @property
    def positionDop(self) -> float | None: "a tenth of the position DOP: the number sent, in hundredths, / 1000"
    @property
    def invalidHeight(self) -> int | None: "position and heights are not valid"
    @property
    def correctionAge(self) -> int | None: "of the last differential correction, the receiver's code, 0 to 15"
    @property
    def reservedWord(self) -> int: "bytes that the message reserves"
    @property
    def vehicleHeading(self) -> int: "[1e-5 deg] low 16 bits of the heading of the vehicle"

@final
class UbxSatellite(Entry):
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density; unknown for a 0 sent"
    @property
    def elevation(self) -> int | None: "[deg] 0 to 90; unknown for any other value sent"
    @property
    def azimuth(self) -> int | None: "[deg] unknown when the elevation is"
    @property
    def residual(self) -> int | None: "[0.1 m] residual of the pseudorange"
    @property
    def quality(self) -> int | None: "quality of the signal"
    @property
    def used(self) -> int | None: "in the solution"
    @property
    def health(self) -> int | None: "health"
    @property
    def corrected(self) -> int | None: "differential corrections are available"
    @property
    def smoothed(self) -> int | None: "carrier smoothed pseudorange"
    @property
    def orbitSource(self) -> int | None: "source of the orbit"
    @property
    def ephemeris(self) -> int | None: "an ephemeris is available"
    @property
    def almanac(self) -> int | None: "an almanac is available"
    @property
    def offlinePrediction(self) -> int | None: "a downloaded orbit prediction is available"
    @property
    def autonomousPrediction(self) -> int | None: "an orbit prediction of the receiver is available"
    @property
    def spareFlag(self) -> int | None: "bit 15 of the flags sent"
    @property
    def sbasCorrections(self) -> int | None: "SBAS corrections were used"
    @property
    def rtcmCorrections(self) -> int | None: "RTCM corrections were used"
    @property
    def slasCorrections(self) -> int | None: "QZSS SLAS corrections were used"
    @property
    def spartnCorrections(self) -> int | None: "SPARTN corrections were used"
    @property
    def rangeCorrections(self) -> int | None: "corrections of the pseudorange were used"
    @property
    def carrierCorrections(self) -> int | None: "corrections of the carrier range were used"
    @property
    def dopplerCorrections(self) -> int | None: "corrections of the range rate were used"

@final
class UbxSatellitesRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def count(self) -> int: "satellites: as many as the message counts, has bytes for and the record has room for"
    @property
    def satellites(self) -> list[UbxSatellite]: "satellites in the order of the message, unknown values behind the last one"

@final
class UbxRawMeasurement(Entry):
    @property
    def pseudorange(self) -> float | None: "[m] pseudorange"
    @property
    def carrierPhase(self) -> float | None: "[cycles] carrier phase"
    @property
    def doppler(self) -> float | None: "[Hz] Doppler, positive for approaching satellites"
    @property
    def pseudorangeDeviation(self) -> float | None: "[m] standard deviation of the pseudorange"
    @property
    def carrierPhaseDeviation(self) -> float | None: "[cycles] standard deviation of the carrier phase"
    @property
    def dopplerDeviation(self) -> float | None: "[Hz] standard deviation of the Doppler"
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def signalId(self) -> int | None: "signal of the system"
    @property
    def frequencySlot(self) -> int | None: "of GLONASS the slot + 7, 0 to 13"
    @property
    def lockTime(self) -> int | None: "[ms] lock of the carrier phase, 64500 at most"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density"
    @property
    def pseudorangeValid(self) -> int | None: "the pseudorange is valid"
    @property
    def carrierPhaseValid(self) -> int | None: "the carrier phase is valid"
    @property
    def halfCycleResolved(self) -> int | None: "the half cycle is resolved"
    @property
    def halfCycleSubtracted(self) -> int | None: "a half cycle was subtracted from the phase"

@final
class UbxRawMeasurementsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the receiver's time of week rounded; unknown when it is no time of a week"
    @property
    def week(self) -> int | None: "the receiver's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def leapSeconds(self) -> int | None: "[s] GPS time less UTC"
    @property
    def count(self) -> int: "measurements: as many as the message counts and has bytes for"
    @property
    def leapKnown(self) -> int | None: "leapSeconds was received, not assumed"
    @property
    def clockReset(self) -> int | None: "the receiver's clock was reset"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def measurements(self) -> list[UbxRawMeasurement]: "measurements in the order of the message, unknown values behind the last one"

@final
class UbxAttitudeRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def roll(self) -> float | None: "[deg] roll"
    @property
    def pitch(self) -> float | None: "[deg] pitch"
    @property
    def heading(self) -> float | None: "[deg] heading"
    @property
    def rollAccuracy(self) -> float | None: "[deg] accuracy of the roll"
    @property
    def pitchAccuracy(self) -> float | None: "[deg] accuracy of the pitch"
    @property
    def headingAccuracy(self) -> float | None: "[deg] accuracy of the heading"

@final
class DiagnosticRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def code(self) -> int: "what happened"
    @property
    def text(self) -> str | None: "the same in words"

@final
class UbxFullNavigationRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def year(self) -> int | None: "UTC"
    @property
    def month(self) -> int | None: "1 to 12"
    @property
    def day(self) -> int | None: "1 to 31"
    @property
    def hour(self) -> int | None: "[h] 0 to 23"
    @property
    def minute(self) -> int | None: "[min] 0 to 59"
    @property
    def second(self) -> int | None: "[s] 0 to 60"
    @property
    def dateValid(self) -> int | None: "the date is valid"
    @property
    def timeValid(self) -> int | None: "the time of day is valid"
    @property
    def fullyResolved(self) -> int | None: "no uncertainty of whole seconds is left"
    @property
    def magValid(self) -> int | None: "the magnetic declination is valid"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"
    @property
    def nanoseconds(self) -> int | None: "[ns] fraction of the second, -10^9 to 10^9"
    @property
    def fixType(self) -> int | None: "type of the fix"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def powerSaveState(self) -> int | None: "state of power saving"
    @property
    def headingValid(self) -> int | None: "vehicleHeading is that of the vehicle, and not the heading of motion"
    @property
    def carrierSolution(self) -> int | None: "carrier phase solution"
    @property
    def confirmedAvailable(self) -> int | None: "the confirmations below are available"
    @property
    def confirmedDate(self) -> int | None: "the date was confirmed"
    @property
    def confirmedTime(self) -> int | None: "the time of day was confirmed"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def invalidPosition(self) -> int | None: "longitude, latitude and heights are not valid"
    @property
    def correctionAge(self) -> int | None: "of the last differential correction, the receiver's code, 0 to 15"
    @property
    def timeAuthenticated(self) -> int | None: "the time was checked against a trusted source"
    @property
    def fixAuthenticated(self) -> int | None: "the fix is of authenticated navigation messages"
    @property
    def longitude(self) -> float | None: "[deg] east positive; unknown without a fix"
    @property
    def latitude(self) -> float | None: "[deg] north positive; unknown without a fix"
    @property
    def height(self) -> float | None: "[m] above the ellipsoid; unknown without a fix"
    @property
    def heightMsl(self) -> float | None: "[m] above mean sea level; unknown without a fix"
    @property
    def horizontalAccuracy(self) -> float | None: "[m] accuracy of the horizontal position"
    @property
    def verticalAccuracy(self) -> float | None: "[m] accuracy of the height"
    @property
    def velocityNorth(self) -> float | None: "[m/s] velocity to the north"
    @property
    def velocityEast(self) -> float | None: "[m/s] velocity to the east"
    @property
    def velocityDown(self) -> float | None: "[m/s] velocity downwards"
    @property
    def groundSpeed(self) -> float | None: "[m/s] speed over ground"
    @property
    def motionHeading(self) -> float | None: "[deg] heading of motion"
    @property
    def speedAccuracy(self) -> float | None: "[m/s] accuracy of the speed"
    @property
    def headingAccuracy(self) -> float | None: "[deg] accuracy of both headings"
    @property
    def positionDop(self) -> float | None: "position DOP"
    @property
    def vehicleHeading(self) -> float | None: "[deg] heading of the vehicle, of motion while headingValid is 0"
    @property
    def magDeclination(self) -> float | None: "[deg] magnetic declination, east positive; unknown without magValid"
    @property
    def magAccuracy(self) -> float | None: "[deg] accuracy of the magnetic declination; unknown without magValid"

@final
class UbxHighPrecisionPositionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def invalidPosition(self) -> int | None: "longitude, latitude and heights are not valid"
    @property
    def longitude(self) -> float | None: "[deg] east positive; unknown when not valid"
    @property
    def latitude(self) -> float | None: "[deg] north positive; unknown when not valid"
    @property
    def height(self) -> float | None: "[m] above the ellipsoid; unknown when not valid"
    @property
    def heightMsl(self) -> float | None: "[m] above mean sea level; unknown when not valid"
    @property
    def horizontalAccuracy(self) -> float | None: "[m] accuracy of the horizontal position"
    @property
    def verticalAccuracy(self) -> float | None: "[m] accuracy of the height"

@final
class UbxHighPrecisionEcefRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def invalidPosition(self) -> int | None: "the coordinates are not valid"
    @property
    def x(self) -> float | None: "[m] ECEF X; unknown when not valid"
    @property
    def y(self) -> float | None: "[m] ECEF Y; unknown when not valid"
    @property
    def z(self) -> float | None: "[m] ECEF Z; unknown when not valid"
    @property
    def accuracy(self) -> float | None: "[m] accuracy of the position"

@final
class UbxPositionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def height(self) -> float | None: "[m] above the ellipsoid"
    @property
    def heightMsl(self) -> float | None: "[m] above mean sea level"
    @property
    def horizontalAccuracy(self) -> float | None: "[m] accuracy of the horizontal position"
    @property
    def verticalAccuracy(self) -> float | None: "[m] accuracy of the height"

@final
class UbxEcefRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def x(self) -> float | None: "[m] ECEF X"
    @property
    def y(self) -> float | None: "[m] ECEF Y"
    @property
    def z(self) -> float | None: "[m] ECEF Z"
    @property
    def accuracy(self) -> float | None: "[m] accuracy of the position"

@final
class UbxVelocityRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def velocityNorth(self) -> float | None: "[m/s] velocity to the north"
    @property
    def velocityEast(self) -> float | None: "[m/s] velocity to the east"
    @property
    def velocityDown(self) -> float | None: "[m/s] velocity downwards"
    @property
    def speed(self) -> float | None: "[m/s] speed in three dimensions"
    @property
    def groundSpeed(self) -> float | None: "[m/s] speed over ground"
    @property
    def motionHeading(self) -> float | None: "[deg] heading of motion"
    @property
    def speedAccuracy(self) -> float | None: "[m/s] accuracy of the speed"
    @property
    def headingAccuracy(self) -> float | None: "[deg] accuracy of the heading"

@final
class UbxEcefVelocityRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def velocityX(self) -> float | None: "[m/s] ECEF X"
    @property
    def velocityY(self) -> float | None: "[m/s] ECEF Y"
    @property
    def velocityZ(self) -> float | None: "[m/s] ECEF Z"
    @property
    def accuracy(self) -> float | None: "[m/s] accuracy of the speed"

@final
class UbxDopRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def geometricDop(self) -> float | None: "geometric DOP"
    @property
    def positionDop(self) -> float | None: "position DOP"
    @property
    def timeDop(self) -> float | None: "time DOP"
    @property
    def verticalDop(self) -> float | None: "vertical DOP"
    @property
    def horizontalDop(self) -> float | None: "horizontal DOP"
    @property
    def northDop(self) -> float | None: "DOP to the north"
    @property
    def eastDop(self) -> float | None: "DOP to the east"

@final
class UbxStatusRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def fixType(self) -> int | None: "type of the fix"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def weekValid(self) -> int | None: "the week number is valid"
    @property
    def towValid(self) -> int | None: "the time of week is valid"
    @property
    def correctionsAvailable(self) -> int | None: "differential corrections are available"
    @property
    def carrierValid(self) -> int | None: "carrierSolution is valid"
    @property
    def mapMatching(self) -> int | None: "map matching"
    @property
    def powerSaveState(self) -> int | None: "state of power saving"
    @property
    def spoofing(self) -> int | None: "detection of spoofing"
    @property
    def carrierSolution(self) -> int | None: "carrier phase solution"
    @property
    def timeToFirstFix(self) -> int | None: "[ms] time to first fix"
    @property
    def sinceStart(self) -> int | None: "[ms] since the receiver started"

@final
class UbxSolutionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def towFraction(self) -> int | None: "[ns] to be added to tow, -500000 to 500000"
    @property
    def gpsWeek(self) -> int | None: "GPS week"
    @property
    def fixType(self) -> int | None: "type of the fix"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def weekValid(self) -> int | None: "gpsWeek is valid"
    @property
    def towValid(self) -> int | None: "the time of week is valid"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def x(self) -> float | None: "[m] ECEF X"
    @property
    def y(self) -> float | None: "[m] ECEF Y"
    @property
    def z(self) -> float | None: "[m] ECEF Z"
    @property
    def accuracy(self) -> float | None: "[m] accuracy of the position"
    @property
    def velocityX(self) -> float | None: "[m/s] ECEF X"
    @property
    def velocityY(self) -> float | None: "[m/s] ECEF Y"
    @property
    def velocityZ(self) -> float | None: "[m/s] ECEF Z"
    @property
    def speedAccuracy(self) -> float | None: "[m/s] accuracy of the speed"
    @property
    def positionDop(self) -> float | None: "position DOP"

@final
class UbxClockRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def bias(self) -> int | None: "[ns] bias of the clock"
    @property
    def drift(self) -> int | None: "[ns/s] drift of the clock"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"
    @property
    def frequencyAccuracy(self) -> int | None: "[ps/s] accuracy of the frequency"

@final
class UbxCovarianceRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def positionValid(self) -> int | None: "the covariances of the position are valid"
    @property
    def velocityValid(self) -> int | None: "the covariances of the velocity are valid"
    @property
    def position(self) -> list[float | None]: "[m2] of the position: NN, NE, ND, EE, ED, DD (north, east, down)"
    @property
    def velocity(self) -> list[float | None]: "[m2/s2] of the velocity, in the same order"

@final
class UbxEndOfEpochRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"

@final
class UbxGpsTimeRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def towFraction(self) -> int | None: "[ns] to be added to tow, -500000 to 500000"
    @property
    def gpsWeek(self) -> int | None: "GPS week"
    @property
    def leapSeconds(self) -> int | None: "[s] GPS time less UTC"
    @property
    def towValid(self) -> int | None: "the time of week is valid"
    @property
    def weekValid(self) -> int | None: "gpsWeek is valid"
    @property
    def leapValid(self) -> int | None: "leapSeconds is valid"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"

@final
class UbxUtcRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"
    @property
    def nanoseconds(self) -> int | None: "[ns] fraction of the second, -10^9 to 10^9"
    @property
    def year(self) -> int | None: "UTC"
    @property
    def month(self) -> int | None: "1 to 12"
    @property
    def day(self) -> int | None: "1 to 31"
    @property
    def hour(self) -> int | None: "[h] 0 to 23"
    @property
    def minute(self) -> int | None: "[min] 0 to 59"
    @property
    def second(self) -> int | None: "[s] 0 to 60"
    @property
    def towValid(self) -> int | None: "the time of week is valid"
    @property
    def weekValid(self) -> int | None: "the week number is valid"
    @property
    def utcValid(self) -> int | None: "UTC is valid: the leap seconds are known"
    @property
    def timeAuthenticated(self) -> int | None: "the time was checked against a trusted source"
    @property
    def utcStandard(self) -> int | None: "whose UTC"

@final
class UbxLeapSecondsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def currentSource(self) -> int: "source of current"
    @property
    def current(self) -> int | None: "[s] GPS time less UTC"
    @property
    def changeSource(self) -> int | None: "source of the change"
    @property
    def change(self) -> int | None: "[s] the next change"
    @property
    def untilChange(self) -> int | None: "[s] until the next change, or since the last one when negative"
    @property
    def changeWeek(self) -> int | None: "GPS week of the change"
    @property
    def changeDay(self) -> int | None: "GPS day of the week of the change, 1 to 7"
    @property
    def currentValid(self) -> int | None: "current is valid"
    @property
    def changeValid(self) -> int | None: "untilChange, changeWeek and changeDay are valid"

@final
class UbxRelativePositionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def stationId(self) -> int | None: "of the reference station"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def relativeValid(self) -> int | None: "the relative position is valid"
    @property
    def carrierSolution(self) -> int | None: "carrier phase solution"
    @property
    def moving(self) -> int | None: "the receiver works with a moving base"
    @property
    def stationMissed(self) -> int | None: "extrapolated: the station's position was missed"
    @property
    def observationsMissed(self) -> int | None: "extrapolated: the station's observations were missed"
    @property
    def headingValid(self) -> int | None: "heading is valid"
    @property
    def normalized(self) -> int | None: "the components are those of a vector of length 1"
    @property
    def north(self) -> float | None: "[m] to the north; unknown when not valid"
    @property
    def east(self) -> float | None: "[m] to the east; unknown when not valid"
    @property
    def down(self) -> float | None: "[m] downwards; unknown when not valid"
    @property
    def length(self) -> float | None: "[m] length of the vector; unknown when not valid"
    @property
    def heading(self) -> float | None: "[deg] heading of the vector; unknown when not valid"
    @property
    def northAccuracy(self) -> float | None: "[m] accuracy to the north"
    @property
    def eastAccuracy(self) -> float | None: "[m] accuracy to the east"
    @property
    def downAccuracy(self) -> float | None: "[m] accuracy downwards"
    @property
    def lengthAccuracy(self) -> float | None: "[m] accuracy of the length"
    @property
    def headingAccuracy(self) -> float | None: "[deg] accuracy of the heading"

@final
class UbxSurveyInRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def valid(self) -> int | None: "the mean position is valid"
    @property
    def active(self) -> int | None: "the survey goes on"
    @property
    def duration(self) -> int | None: "[s] of the survey"
    @property
    def observations(self) -> int | None: "positions that the mean is made of"
    @property
    def x(self) -> float | None: "[m] ECEF X of the mean"
    @property
    def y(self) -> float | None: "[m] ECEF Y of the mean"
    @property
    def z(self) -> float | None: "[m] ECEF Z of the mean"
    @property
    def accuracy(self) -> float | None: "[m] accuracy of the mean"

@final
class UbxVehicleNavigationRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week, after it has taken this message's time"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def year(self) -> int | None: "UTC"
    @property
    def month(self) -> int | None: "1 to 12"
    @property
    def day(self) -> int | None: "1 to 31"
    @property
    def hour(self) -> int | None: "[h] 0 to 23"
    @property
    def minute(self) -> int | None: "[min] 0 to 59"
    @property
    def second(self) -> int | None: "[s] 0 to 60"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def dateValid(self) -> int | None: "the date is valid"
    @property
    def timeValid(self) -> int | None: "the time of day is valid"
    @property
    def fullyResolved(self) -> int | None: "no uncertainty of whole seconds is left"
    @property
    def magValid(self) -> int | None: "the magnetic declination is valid"
    @property
    def timeAccuracy(self) -> int | None: "[ns] accuracy of the time"
    @property
    def nanoseconds(self) -> int | None: "[ns] fraction of the second, -10^9 to 10^9"
    @property
    def fixType(self) -> int | None: "type of the fix"
    @property
    def fixOk(self) -> int | None: "within the limits of DOP and accuracy"
    @property
    def diffSolution(self) -> int | None: "differential corrections were applied"
    @property
    def rollValid(self) -> int | None: "roll is valid"
    @property
    def pitchValid(self) -> int | None: "pitch is valid"
    @property
    def headingValid(self) -> int | None: "vehicleHeading is valid"
    @property
    def carrierSolution(self) -> int | None: "carrier phase solution"
    @property
    def confirmedAvailable(self) -> int | None: "the confirmations below are available"
    @property
    def confirmedDate(self) -> int | None: "the date was confirmed"
    @property
    def confirmedTime(self) -> int | None: "the time of day was confirmed"
    @property
    def satellites(self) -> int | None: "satellites used in the solution"
    @property
    def longitude(self) -> float | None: "[deg] east positive; unknown without a fix"
    @property
    def latitude(self) -> float | None: "[deg] north positive; unknown without a fix"
    @property
    def height(self) -> float | None: "[m] above the ellipsoid; unknown without a fix"
    @property
    def heightMsl(self) -> float | None: "[m] above mean sea level; unknown without a fix"
    @property
    def horizontalAccuracy(self) -> float | None: "[m] accuracy of the horizontal position"
    @property
    def verticalAccuracy(self) -> float | None: "[m] accuracy of the height"
    @property
    def velocityNorth(self) -> float | None: "[m/s] velocity to the north"
    @property
    def velocityEast(self) -> float | None: "[m/s] velocity to the east"
    @property
    def velocityDown(self) -> float | None: "[m/s] velocity downwards"
    @property
    def groundSpeed(self) -> float | None: "[m/s] speed over ground"
    @property
    def speedAccuracy(self) -> float | None: "[m/s] accuracy of the speed"
    @property
    def roll(self) -> float | None: "[deg] roll of the vehicle; unknown without rollValid"
    @property
    def pitch(self) -> float | None: "[deg] pitch of the vehicle; unknown without pitchValid"
    @property
    def vehicleHeading(self) -> float | None: "[deg] heading of the vehicle; unknown without headingValid"
    @property
    def motionHeading(self) -> float | None: "[deg] heading of motion"
    @property
    def rollAccuracy(self) -> float | None: "[deg] accuracy of the roll; unknown without rollValid"
    @property
    def pitchAccuracy(self) -> float | None: "[deg] accuracy of the pitch; unknown without pitchValid"
    @property
    def headingAccuracy(self) -> float | None: "[deg] accuracy of both headings"
    @property
    def magDeclination(self) -> float | None: "[deg] magnetic declination, east positive; unknown without magValid"
    @property
    def magAccuracy(self) -> float | None: "[deg] accuracy of the magnetic declination; unknown without magValid"
    @property
    def ellipseOrientation(self) -> float | None: "[deg] of the error ellipse's larger axis, from north"
    @property
    def ellipseMajor(self) -> float | None: "[m] larger half axis of the horizontal error ellipse"
    @property
    def ellipseMinor(self) -> float | None: "[m] smaller half axis of the horizontal error ellipse"

@final
class UbxFullSatellite(Entry):
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density"
    @property
    def elevation(self) -> int | None: "[deg] -90 to 90; unknown with a false elevation"
    @property
    def azimuth(self) -> int | None: "[deg] 0 to 360; unknown with a false elevation"
    @property
    def residual(self) -> int | None: "[0.1 m] residual of the pseudorange"
    @property
    def quality(self) -> int | None: "quality of the signal"
    @property
    def used(self) -> int | None: "in the solution"
    @property
    def health(self) -> int | None: "health"
    @property
    def corrected(self) -> int | None: "differential corrections are available"
    @property
    def smoothed(self) -> int | None: "carrier smoothed pseudorange"
    @property
    def orbitSource(self) -> int | None: "source of the orbit"
    @property
    def ephemeris(self) -> int | None: "an ephemeris is available"
    @property
    def almanac(self) -> int | None: "an almanac is available"
    @property
    def offlinePrediction(self) -> int | None: "a downloaded orbit prediction is available"
    @property
    def autonomousPrediction(self) -> int | None: "an orbit prediction of the receiver is available"
    @property
    def sbasCorrections(self) -> int | None: "SBAS corrections were used"
    @property
    def rtcmCorrections(self) -> int | None: "RTCM corrections were used"
    @property
    def slasCorrections(self) -> int | None: "QZSS SLAS corrections were used"
    @property
    def spartnCorrections(self) -> int | None: "SPARTN corrections were used"
    @property
    def rangeCorrections(self) -> int | None: "corrections of the pseudorange were used"
    @property
    def carrierCorrections(self) -> int | None: "corrections of the carrier range were used"
    @property
    def dopplerCorrections(self) -> int | None: "corrections of the range rate were used"
    @property
    def clasCorrections(self) -> int | None: "QZSS CLAS corrections were used"
    @property
    def lppCorrections(self) -> int | None: "corrections over LPP were used"
    @property
    def hasCorrections(self) -> int | None: "Galileo HAS corrections were used"

@final
class UbxFullSatellitesRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def count(self) -> int: "satellites"
    @property
    def satellites(self) -> list[UbxFullSatellite]: "satellites in the order of the message, unknown values behind the last one"

@final
class UbxSignal(Entry):
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def signalId(self) -> int | None: "signal of the system"
    @property
    def frequencySlot(self) -> int | None: "of GLONASS the slot + 7, 0 to 13"
    @property
    def residual(self) -> int | None: "[0.1 m] residual of the pseudorange"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density"
    @property
    def quality(self) -> int | None: "quality of the signal"
    @property
    def correctionSource(self) -> int | None: "where corrections come from"
    @property
    def ionosphereModel(self) -> int | None: "model of the ionosphere"
    @property
    def health(self) -> int | None: "health"
    @property
    def smoothed(self) -> int | None: "carrier smoothed pseudorange"
    @property
    def rangeUsed(self) -> int | None: "the pseudorange was used"
    @property
    def carrierUsed(self) -> int | None: "the carrier range was used"
    @property
    def dopplerUsed(self) -> int | None: "the range rate was used"
    @property
    def rangeCorrections(self) -> int | None: "corrections of the pseudorange were used"
    @property
    def carrierCorrections(self) -> int | None: "corrections of the carrier range were used"
    @property
    def dopplerCorrections(self) -> int | None: "corrections of the range rate were used"
    @property
    def authenticated(self) -> int | None: "the navigation message was authenticated"

@final
class UbxSignalsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def count(self) -> int: "signals"
    @property
    def signals(self) -> list[UbxSignal]: "signals in the order of the message, unknown values behind the last one"

@final
class UbxChannel(Entry):
    @property
    def channel(self) -> int | None: "number of the channel"
    @property
    def satelliteId(self) -> int | None: "satellite number over all systems"
    @property
    def used(self) -> int | None: "in the solution"
    @property
    def corrected(self) -> int | None: "differential corrections are available"
    @property
    def orbitAvailable(self) -> int | None: "an orbit is available"
    @property
    def orbitEphemeris(self) -> int | None: "the orbit is of an ephemeris"
    @property
    def unhealthy(self) -> int | None: "not to be used"
    @property
    def orbitAlmanac(self) -> int | None: "the orbit is of an almanac"
    @property
    def orbitPrediction(self) -> int | None: "the orbit is a prediction of the receiver"
    @property
    def smoothed(self) -> int | None: "carrier smoothed pseudorange"
    @property
    def quality(self) -> int | None: "quality of the signal"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density"
    @property
    def elevation(self) -> int | None: "[deg] -90 to 90; unknown with a false elevation"
    @property
    def azimuth(self) -> int | None: "[deg] 0 to 360; unknown with a false elevation"
    @property
    def residual(self) -> int | None: "[0.01 m] residual of the pseudorange"

@final
class UbxChannelsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def chipGeneration(self) -> int | None: "generation of the receiver's hardware, 0 to 7"
    @property
    def count(self) -> int: "channels"
    @property
    def channels(self) -> list[UbxChannel]: "channels in the order of the message, unknown values behind the last one"

@final
class UbxSubframeRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def signalId(self) -> int | None: "signal of the system, 0 of receivers that do not tell it"
    @property
    def frequencySlot(self) -> int | None: "of GLONASS the slot + 7, 0 to 13"
    @property
    def channel(self) -> int | None: "tracking channel; unknown of version 1"
    @property
    def count(self) -> int: "words"
    @property
    def words(self) -> list[int | None]: "words as the receiver arranges them, unknown values behind the last one"

@final
class UbxRtcmInputRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def crcFailed(self) -> int | None: "the message's check failed"
    @property
    def used(self) -> int | None: "use of the message"
    @property
    def subType(self) -> int | None: "of message 4072"
    @property
    def stationId(self) -> int | None: "of the reference station"
    @property
    def messageType(self) -> int | None: "RTCM message number"

@final
class UbxMeasurement(Entry):
    @property
    def systemId(self) -> int | None: "satellite system"
    @property
    def satelliteId(self) -> int | None: "satellite number"
    @property
    def cn0(self) -> int | None: "[dB-Hz] carrier-to-noise density, 0 to 63"
    @property
    def multipath(self) -> int | None: "multipath"
    @property
    def dopplerSpeed(self) -> float | None: "[m/s] Doppler as a speed"
    @property
    def doppler(self) -> float | None: "[Hz] Doppler"
    @property
    def wholeChips(self) -> int | None: "whole code chips of the code phase, 0 to 1022 of GPS"
    @property
    def fractionalChips(self) -> int | None: "[1/1024 chip] fraction of the code phase, 0 to 1023"
    @property
    def codePhase(self) -> float | None: "[ms] code phase"
    @property
    def wholeCodePhase(self) -> int | None: "[ms] whole milliseconds of the code phase"
    @property
    def rangeErrorIndex(self) -> int | None: "deviation of the pseudorange, the receiver's code, 0 to 63"

@final
class UbxMeasurementsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def towSet(self) -> int | None: "time of week"
    @property
    def gpsTow(self) -> int | None: "[ms] GPS time of week of the measurements"
    @property
    def glonassTow(self) -> int | None: "[ms] the same in GLONASS time"
    @property
    def bdsTow(self) -> int | None: "[ms] the same in BeiDou time"
    @property
    def qzssTow(self) -> int | None: "[ms] the same in QZSS time"
    @property
    def gpsAccuracy(self) -> float | None: "[ms] accuracy of gpsTow"
    @property
    def glonassAccuracy(self) -> float | None: "[ms] accuracy of glonassTow"
    @property
    def bdsAccuracy(self) -> float | None: "[ms] accuracy of bdsTow"
    @property
    def qzssAccuracy(self) -> float | None: "[ms] accuracy of qzssTow"
    @property
    def count(self) -> int: "measurements"
    @property
    def measurements(self) -> list[UbxMeasurement]: "measurements in the order of the message, unknown values behind the last one"

@final
class UbxTimePulseRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def pulseTow(self) -> int | None: "[ms] time of week of the pulse, in its time base"
    @property
    def pulseTowFraction(self) -> float | None: "[ms] to be added to pulseTow"
    @property
    def quantizationError(self) -> int | None: "[ps] quantization error of the pulse"
    @property
    def pulseWeek(self) -> int | None: "week of the pulse, in its time base"
    @property
    def utcBase(self) -> int | None: "time base"
    @property
    def utcAvailable(self) -> int | None: "UTC is available"
    @property
    def raim(self) -> int | None: "integrity"
    @property
    def quantizationInvalid(self) -> int | None: "quantizationError is not valid"
    @property
    def notLocked(self) -> int | None: "the pulse does not follow GNSS time"
    @property
    def gnssReference(self) -> int | None: "system of a GNSS time base"
    @property
    def utcStandard(self) -> int | None: "whose UTC"

@final
class UbxTimeMarkRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def channel(self) -> int | None: "input of the signal"
    @property
    def running(self) -> int | None: "mode"
    @property
    def stopped(self) -> int | None: "state"
    @property
    def newFalling(self) -> int | None: "a falling edge was seen"
    @property
    def timeBase(self) -> int | None: "time base"
    @property
    def utcAvailable(self) -> int | None: "UTC is available"
    @property
    def timeValid(self) -> int | None: "the times are valid"
    @property
    def newRising(self) -> int | None: "a rising edge was seen"
    @property
    def edges(self) -> int: "rising edges so far, modulo 65536"
    @property
    def risingWeek(self) -> int | None: "week of the last rising edge"
    @property
    def fallingWeek(self) -> int | None: "week of the last falling edge"
    @property
    def risingTow(self) -> int | None: "[ms] time of week of the last rising edge"
    @property
    def risingNanoseconds(self) -> int | None: "[ns] to be added to risingTow"
    @property
    def fallingTow(self) -> int | None: "[ms] time of week of the last falling edge"
    @property
    def fallingNanoseconds(self) -> int | None: "[ns] to be added to fallingTow"
    @property
    def accuracy(self) -> int | None: "[ns] accuracy of the times"

@final
class UbxSensorStatus(Entry):
    @property
    def type(self) -> int | None: "kind of the sensor"
    @property
    def used(self) -> int | None: "in the solution"
    @property
    def ready(self) -> int | None: "set up"
    @property
    def calibration(self) -> int | None: "calibration"
    @property
    def timing(self) -> int | None: "time of the data"
    @property
    def rate(self) -> int | None: "[Hz] rate of the data"
    @property
    def badMeasurement(self) -> int | None: "bad measurements were seen"
    @property
    def badTime(self) -> int | None: "bad times of measurements were seen"
    @property
    def missing(self) -> int | None: "measurements are missing or late"
    @property
    def noisy(self) -> int | None: "measurements are noisy"

@final
class UbxFusionStatusRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def wheelTicks(self) -> int | None: "initialization of the wheel ticks"
    @property
    def mounting(self) -> int | None: "alignment of the mounting"
    @property
    def inertial(self) -> int | None: "initialization of the navigation"
    @property
    def inertialSensors(self) -> int | None: "initialization of the sensors"
    @property
    def fusionMode(self) -> int | None: "fusion"
    @property
    def count(self) -> int: "sensors"
    @property
    def sensors(self) -> list[UbxSensorStatus]: "sensors in the order of the message, unknown values behind the last one"

@final
class UbxSensorMeasurement(Entry):
    @property
    def data(self) -> int | None: "number of 24 bits"
    @property
    def type(self) -> int | None: "what it measures"

@final
class UbxSensorMeasurementsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def sensorTime(self) -> int | None: "time of the measurements, in the sensor's own ticks"
    @property
    def providerId(self) -> int | None: "who sent the data"
    @property
    def timeMarkSent(self) -> int | None: "time mark"
    @property
    def timeMarkEdge(self) -> int | None: "edge of the mark"
    @property
    def hasCalibration(self) -> int | None: "calibrationTime is there"
    @property
    def calibrationTime(self) -> int | None: "[ms] receiver's time of the measurements"
    @property
    def count(self) -> int: "measurements"
    @property
    def measurements(self) -> list[UbxSensorMeasurement]: "data in the order of the message, unknown values behind the last one"

@final
class UbxRawSensor(Entry):
    @property
    def sensorTime(self) -> int | None: "time of the measurement, in the sensor's own ticks"
    @property
    def data(self) -> int | None: "number of 24 bits"
    @property
    def type(self) -> int | None: "what it measures"

@final
class UbxRawSensorsRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def count(self) -> int: "measurements"
    @property
    def measurements(self) -> list[UbxRawSensor]: "data in the order of the message, unknown values behind the last one"

@final
class UbxInertialRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def rateXValid(self) -> int | None: "rateX is valid"
    @property
    def rateYValid(self) -> int | None: "rateY is valid"
    @property
    def rateZValid(self) -> int | None: "rateZ is valid"
    @property
    def accelerationXValid(self) -> int | None: "accelerationX is valid"
    @property
    def accelerationYValid(self) -> int | None: "accelerationY is valid"
    @property
    def accelerationZValid(self) -> int | None: "accelerationZ is valid"
    @property
    def rateX(self) -> float | None: "[deg/s] angular rate about X"
    @property
    def rateY(self) -> float | None: "[deg/s] angular rate about Y"
    @property
    def rateZ(self) -> float | None: "[deg/s] angular rate about Z"
    @property
    def accelerationX(self) -> float | None: "[m/s2] acceleration along X, without gravity"
    @property
    def accelerationY(self) -> float | None: "[m/s2] acceleration along Y, without gravity"
    @property
    def accelerationZ(self) -> float | None: "[m/s2] acceleration along Z, without gravity"

@final
class UbxMountingRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the message"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def version(self) -> int | None: "version of the message"
    @property
    def automatic(self) -> int | None: "the receiver finds the angles itself"
    @property
    def state(self) -> int | None: "state"
    @property
    def tiltError(self) -> int | None: "roll or pitch are in error"
    @property
    def yawError(self) -> int | None: "the yaw is in error"
    @property
    def angleError(self) -> int | None: "the angles are near a singularity"
    @property
    def yaw(self) -> float | None: "[deg] 0 to 360"
    @property
    def pitch(self) -> float | None: "[deg] -90 to 90"
    @property
    def roll(self) -> float | None: "[deg] -180 to 180"

@final
class UbxVersionRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def software(self) -> str | None: "version of the software"
    @property
    def hardware(self) -> str | None: "version of the hardware"
    @property
    def count(self) -> int: "extensions"
    @property
    def extensions(self) -> list[str | None]: "further texts in the order of the message, unknown values behind the last one"

@final
class UbxInformationRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def severity(self) -> int | None: "kind of the text"
    @property
    def text(self) -> str | None: "up to the first byte 0 of the message"

@final
class UbxAcknowledgeRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] the decoder's GPS time of week"
    @property
    def week(self) -> int | None: "the decoder's GPS week"
    @property
    def timeText(self) -> str | None: "the decoder's time of day when the message was decoded"
    @property
    def accepted(self) -> int | None: "the message was taken"
    @property
    def messageClass(self) -> int | None: "class of the message"
    @property
    def messageId(self) -> int | None: "id of the message"

@final
class Observation(Entry):
    @property
    def system(self) -> int | None: "satellite system"
    @property
    def satellite(self) -> int | None: "number within the system, as RINEX counts them but for SBAS: 1 to 63, of SBAS 120 to 158"
    @property
    def signal(self) -> int: "the message's number of the signal: MSM signal id, UBX signal id, code indicator of 1001 to 1012"
    @property
    def channel(self) -> int | None: "frequency channel of GLONASS, -7 to 13"
    @property
    def code(self) -> str | None: "band and attribute of the signal in RINEX 3: \"1C\"; empty for one that is not listed"
    @property
    def frequency(self) -> float | None: "[Hz] of the carrier; unknown for a signal that is not listed, and for GLONASS while the channel is"
    @property
    def pseudorange(self) -> float | None: "[m] pseudorange, see rangeModulus of the record"
    @property
    def carrierPhase(self) -> float | None: "[cycles] phase of the carrier, of its true frequency; unknown while that is, but in UBX"
    @property
    def phaseRange(self) -> float | None: "[m] the same phase as a range; RTCM 3 tells it while the frequency is not known, too"
    @property
    def doppler(self) -> float | None: "[Hz] Doppler, positive for approaching satellites; unknown while the frequency is, but in UBX"
    @property
    def rangeRate(self) -> float | None: "[m/s] the same as the rate of the phase range"
    @property
    def cn0(self) -> float | None: "[dB-Hz] carrier-to-noise density, with its fraction"
    @property
    def pseudorangeDeviation(self) -> float | None: "[m] standard deviation of the pseudorange (UBX)"
    @property
    def carrierPhaseDeviation(self) -> float | None: "[cycles] standard deviation of the carrier phase (UBX)"
    @property
    def dopplerDeviation(self) -> float | None: "[Hz] standard deviation of the Doppler (UBX)"
    @property
    def lockTime(self) -> int | None: "[ms] continuous lock of the phase, at least; the longest that the message can tell stands for longer ones: 524288 of MSM4 and MSM5, 67108864 of MSM6 and MSM7, 937000 of 1001 to 1012, 64500 of RXM-RAWX"
    @property
    def lossOfLock(self) -> int | None: "lock was lost, or may have been, since the last phase of this signal; 255 with the first one and without a phase"
    @property
    def halfCycleAmbiguity(self) -> int | None: "the phase may be off by half a cycle"
    @property
    def halfCycleSubtracted(self) -> int | None: "half a cycle was subtracted from the phase (UBX)"

@final
class ObservationsRecord(Record):
    @property
    def tow(self) -> float | None: "[s] GPS time of week, the receiver's; epochs of BeiDou and GLONASS are converted, the latter by the leap seconds in use"
    @property
    def rangeModulus(self) -> float | None: "[m] pseudoranges and phase ranges are known but for multiples of this (of 1001, 1003, 1009 and 1011); 0 when they are whole"
    @property
    def week(self) -> int | None: "GPS week: the receiver's (UBX), the stream's (RTCM 3)"
    @property
    def message(self) -> int: "RTCM 3 message number, UBX class * 256 + id"
    @property
    def stationId(self) -> int | None: "reference station of RTCM 3, 0 to 4095"
    @property
    def protocol(self) -> int: "protocol of the message"
    @property
    def version(self) -> int | None: "version of the message (UBX)"
    @property
    def epochComplete(self) -> int | None: "the last message of its epoch"
    @property
    def stationIssue(self) -> int | None: "issue of the station's data (MSM), 0 to 7"
    @property
    def clockSteering(self) -> int | None: "steering of the station's clock (MSM)"
    @property
    def externalClock(self) -> int | None: "clock of the station (MSM)"
    @property
    def clockReset(self) -> int | None: "the receiver's clock was reset (UBX)"
    @property
    def divergenceFree(self) -> int | None: "divergence-free smoothing (RTCM 3)"
    @property
    def smoothing(self) -> int | None: "smoothing of the pseudoranges (RTCM 3)"
    @property
    def leapSeconds(self) -> int | None: "[s] GPS time less UTC (UBX)"
    @property
    def leapKnown(self) -> int | None: "leapSeconds was received, not assumed (UBX)"
    @property
    def count(self) -> int: "observations, 0 to 255"
    @property
    def observations(self) -> list[Observation]: "in the order of the message, unknown values behind the last one"

@final
class StationAntennaPointRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def rtcmMessage(self) -> int: "number of the message, 1005 or 1006"
    @property
    def itrfYear(self) -> int: "ITRF realization year, 0 before it was defined"
    @property
    def gps(self) -> int: "the station serves GPS"
    @property
    def glonass(self) -> int: "the station serves GLONASS"
    @property
    def galileo(self) -> int: "the station serves Galileo"
    @property
    def referenceStation(self) -> int: "a computed (virtual) station, not a physical one"
    @property
    def oneOscillator(self) -> int: "all measurements are of one oscillator"
    @property
    def quarterCycle(self) -> int | None: "phases of the same frequency"
    @property
    def x(self) -> float | None: "[m] ECEF X"
    @property
    def y(self) -> float | None: "[m] ECEF Y"
    @property
    def z(self) -> float | None: "[m] ECEF Z"
    @property
    def antennaHeight(self) -> float | None: "[m] of the reference point above the marker; unknown in 1005"

@final
class StationEquipmentRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def rtcmMessage(self) -> int: "number of the message: 1007, 1008 or 1033"
    @property
    def setupId(self) -> int: "0 standard model of the antenna, else one of the service"
    @property
    def antenna(self) -> str | None: "descriptor of the antenna, with its radome"
    @property
    def antennaSerial(self) -> str | None: "serial number of the antenna"
    @property
    def receiver(self) -> str | None: "type of the receiver"
    @property
    def firmware(self) -> str | None: "version of its firmware"
    @property
    def receiverSerial(self) -> str | None: "serial number of the receiver"

@final
class StationGlonassBiasesRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def aligned(self) -> int: "the measurements are aligned with these biases already"
    @property
    def l1Ca(self) -> float | None: "[m] bias of L1 C/A"
    @property
    def l1P(self) -> float | None: "[m] bias of L1 P"
    @property
    def l2Ca(self) -> float | None: "[m] bias of L2 C/A"
    @property
    def l2P(self) -> float | None: "[m] bias of L2 P"

@final
class StationTextRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def stationId(self) -> int: "reference station, 0 to 4095"
    @property
    def secondsOfDay(self) -> int: "[s] of the day, UTC"
    @property
    def modifiedJulianDay(self) -> int: "[d] modified Julian day"
    @property
    def characters(self) -> int: "characters of the text"
    @property
    def length(self) -> int: "[B] of the text"
    @property
    def text(self) -> str | None: "UTF-8"

@final
class KeplerEphemerisRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def system(self) -> int | None: "satellite system"
    @property
    def satellite(self) -> int | None: "number in its system: PRN, of QZSS PRN less 192"
    @property
    def rtcmMessage(self) -> int: "number of the RTCM message; 0 from another source"
    @property
    def navigationMessage(self) -> int | None: "what the satellite sent"
    @property
    def accuracyIndex(self) -> int: "URA, of Galileo SISA"
    @property
    def issueOfData(self) -> int | None: "IODE, of BeiDou AODE, of Galileo IODnav, of NavIC IODEC"
    @property
    def issueOfClock(self) -> int | None: "IODC, of BeiDou AODC"
    @property
    def broadcastWeek(self) -> int | None: "week of the system, as far as the message counts"
    @property
    def toeWeek(self) -> int | None: "week of toe; unknown when the date of the stream is needed and not known"
    @property
    def tocWeek(self) -> int | None: "week of toc, likewise"
    @property
    def health(self) -> int | None: "as RINEX puts it, 0 healthy: of GPS and QZSS the 6 bits of the message, of BeiDou SatH1, of NavIC 2 for L5 and 1 for S; of Galileo bits 0 to 2 E1, 3 to 5 E5a, 6 to 8 E5b, of each dataInvalid and 2 * signalHealth, 0 for signals that the message has not"
    @property
    def signalHealth(self) -> list[int | None]: "of Galileo E1, E5a, E5b"
    @property
    def dataInvalid(self) -> list[int | None]: "of Galileo E1, E5a, E5b: without guarantee"
    @property
    def codesOnL2(self) -> int | None: "of GPS and QZSS"
    @property
    def l2pDataFlag(self) -> int | None: "of GPS, no data on L2 P"
    @property
    def fitInterval(self) -> int | None: "of GPS fitted to more than 4 h, of QZSS 2 h"
    @property
    def accuracy(self) -> float | None: "[m] of the orbit and clock, nominal, by accuracyIndex; unknown where it says none"
    @property
    def transmissionTime(self) -> float | None: "[s] of the week, start of subframe 1; of Galileo that of word 5 or page 1"
    @property
    def toc(self) -> float | None: "[s] reference time of the clock, of its week"
    @property
    def af0(self) -> float | None: "[s] clock bias"
    @property
    def af1(self) -> float | None: "[s/s] clock drift"
    @property
    def af2(self) -> float | None: "[s/s^2] clock drift rate"
    @property
    def toe(self) -> float | None: "[s] reference time of the ephemeris, of its week"
    @property
    def sqrtSemiMajorAxis(self) -> float | None: "[m^0.5] square root of the semi-major axis"
    @property
    def eccentricity(self) -> float | None: "eccentricity"
    @property
    def m0(self) -> float | None: "[rad] mean anomaly at toe"
    @property
    def deltaN(self) -> float | None: "[rad/s] difference of the mean motion"
    @property
    def omega(self) -> float | None: "[rad] argument of perigee"
    @property
    def omega0(self) -> float | None: "[rad] longitude of the ascending node at the start of the week"
    @property
    def omegaDot(self) -> float | None: "[rad/s] rate of the right ascension"
    @property
    def i0(self) -> float | None: "[rad] inclination at toe"
    @property
    def idot(self) -> float | None: "[rad/s] rate of the inclination"
    @property
    def cuc(self) -> float | None: "[rad] cosine correction of the argument of latitude"
    @property
    def cus(self) -> float | None: "[rad] sine correction of the argument of latitude"
    @property
    def crc(self) -> float | None: "[m] cosine correction of the radius"
    @property
    def crs(self) -> float | None: "[m] sine correction of the radius"
    @property
    def cic(self) -> float | None: "[rad] cosine correction of the inclination"
    @property
    def cis(self) -> float | None: "[rad] sine correction of the inclination"
    @property
    def groupDelay(self) -> list[float | None]: "[s] of GPS, QZSS and NavIC TGD; of Galileo BGD E5a/E1 and E5b/E1; of BeiDou TGD1 and TGD2"

@final
class GlonassEphemerisRecord(Record):
    @property
    def tow(self) -> int | None: "[ms] GPS time of week of the stream when the message came"
    @property
    def week(self) -> int | None: "GPS week of the stream when the message came"
    @property
    def satellite(self) -> int | None: "slot number"
    @property
    def channel(self) -> int | None: "frequency channel, -7 to 6"
    @property
    def rtcmMessage(self) -> int: "number of the RTCM message; 0 from another source"
    @property
    def nt(self) -> int | None: "[d] day of the four-year interval, 1 to 1461"
    @property
    def reference(self) -> GPSTIME: "tb as GPS time, with the leap seconds of the stream"
    @property
    def referenceUtc(self) -> UTCTIME: "tb as UTC"
    @property
    def tb(self) -> int | None: "[s] reference time, of the day of GLONASS time (UTC plus 3 h)"
    @property
    def frameTime(self) -> int | None: "[s] tk, start of the frame, of the day of GLONASS time"
    @property
    def n4(self) -> int | None: "four-year interval, 1 from 1996 on"
    @property
    def health(self) -> int: "Bn, 3 bits; of 1020 the first of them, 4 or 0"
    @property
    def unhealthy(self) -> int | None: "the first bit of Bn: the satellite cannot be used"
    @property
    def lnThird(self) -> int | None: "ln of string 3: the satellite cannot be used"
    @property
    def lnFifth(self) -> int | None: "ln of string 5"
    @property
    def almanacHealth(self) -> int | None: "Cn of the almanac: can be used"
    @property
    def age(self) -> int: "[d] En, age of the data"
    @property
    def accuracyIndex(self) -> int | None: "FT, predicted accuracy"
    @property
    def satelliteType(self) -> int | None: "M"
    @property
    def p(self) -> int | None: "P, where the corrections come from"
    @property
    def p1(self) -> int: "P1, interval of tb: 0, 30, 45 or 60 min"
    @property
    def p2(self) -> int | None: "P2, tb is an odd number of 15 min"
    @property
    def p3(self) -> int | None: "P3, five satellites in the almanac of the frame"
    @property
    def p4(self) -> int | None: "P4, the frame has new ephemerides"
    @property
    def na(self) -> int | None: "[d] day of the four-year interval of tauC"
    @property
    def position(self) -> list[float | None]: "[m] position"
    @property
    def velocity(self) -> list[float | None]: "[m/s] velocity"
    @property
    def acceleration(self) -> list[float | None]: "[m/s^2] acceleration by sun and moon"
    @property
    def tauN(self) -> float | None: "[s] clock correction, system time less satellite time"
    @property
    def gammaN(self) -> float | None: "[s/s] relative deviation of the carrier frequency"
    @property
    def deltaTauN(self) -> float | None: "[s] delay of L2 against L1"
    @property
    def tauC(self) -> float | None: "[s] correction of system time to UTC(SU), as in the message"
    @property
    def tauGps(self) -> float | None: "[s] correction of system time to GPS time, as in the message"

@final
class AsciiLogHeader(Entry):
    @property
    def sync(self) -> list[int]: "always 0xAA 0x44 0x12"
    @property
    def headerLength(self) -> int: "[B] always 28"
    @property
    def messageId(self) -> int: "log number, as GnssMessage::id"
    @property
    def messageType(self) -> int: "always 0"
    @property
    def port(self) -> int: "port that the log came from"
    @property
    def messageLength(self) -> int: "[B] bytes behind the header that the log filled"
    @property
    def sequence(self) -> int: "sequence number, modulo 65536"
    @property
    def idleTime(self) -> int: "[0.5 %] idle time of the receiver's processor, 255 for more"
    @property
    def timeStatus(self) -> int: "quality of the time"
    @property
    def week(self) -> int: "GPS week, modulo 65536, also where the short form counts by BDS (from GPS week 1356 on and 14 s behind GPS); as the line has it where its time reference word is another, where milliseconds is no time of a week, and from a decoder without a stream"
    @property
    def milliseconds(self) -> int | None: "[ms] time of that week: in the long form rounded, in the short form modulo 2^32"
    @property
    def receiverStatus(self) -> int: "status word; from a decoder without a stream its hexadecimal digits read as a decimal number"
    @property
    def softwareBuild(self) -> int: "build number of the software"

@final
class SolutionSatellites(Entry):
    @property
    def tracked(self) -> int: "satellites tracked"
    @property
    def used(self) -> int: "satellites used in the solution"
    @property
    def usedL1(self) -> int: "satellites with L1 in the solution; heading logs: above the elevation mask"
    @property
    def usedMultiFreq(self) -> int: "satellites with several frequencies in the solution; heading logs: above the mask with L2"
    @property
    def extendedStatus(self) -> int: "extended status of the solution"
    @property
    def galileoBdsSignals(self) -> int: "bit mask of the signals used"
    @property
    def gpsGlonassSignals(self) -> int: "bit mask of the signals used"

@final
class PositionLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def solutionStatus(self) -> int: "status of the solution"
    @property
    def positionType(self) -> int: "type of the solution"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def height(self) -> float | None: "[m] above mean sea level"
    @property
    def undulation(self) -> float | None: "[m] geoid above the ellipsoid"
    @property
    def datum(self) -> int: "place in the receivers' list of datums"
    @property
    def latitudeDeviation(self) -> float | None: "[m] standard deviation of the latitude"
    @property
    def longitudeDeviation(self) -> float | None: "[m] standard deviation of the longitude"
    @property
    def heightDeviation(self) -> float | None: "[m] standard deviation of the height"
    @property
    def stationId(self) -> str: "reference station"
    @property
    def differentialAge(self) -> float | None: "[s] age of the corrections"
    @property
    def solutionAge(self) -> float | None: "[s] age of the solution"
    @property
    def satellites(self) -> SolutionSatellites: "satellites and signals behind the solution"

@final
class VelocityLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def solutionStatus(self) -> int: "status of the solution"
    @property
    def velocityType(self) -> int: "type of the solution"
    @property
    def latency(self) -> float | None: "[s] of the velocity's time"
    @property
    def differentialAge(self) -> float | None: "[s] age of the corrections"
    @property
    def horizontalSpeed(self) -> float | None: "[m/s] speed over ground"
    @property
    def track(self) -> float | None: "[deg] course over ground, true"
    @property
    def verticalSpeed(self) -> float | None: "[m/s] positive up"

@final
class DopLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def gdop(self) -> float | None: "geometric dilution of precision"
    @property
    def pdop(self) -> float | None: "position dilution of precision"
    @property
    def hdop(self) -> float | None: "horizontal dilution of precision"
    @property
    def htdop(self) -> float | None: "dilution of precision of horizontal position and time"
    @property
    def tdop(self) -> float | None: "time dilution of precision"
    @property
    def elevationCutoff(self) -> float | None: "[deg] lowest elevation in use"
    @property
    def count(self) -> int: "satellites, 0 to 66"
    @property
    def satellites(self) -> list[int]: "satellite numbers"

@final
class TimeLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def clockStatus(self) -> int: "state of the receiver's clock"
    @property
    def offset_(self) -> float | None: "[s] of the receiver's clock from GPS time"
    @property
    def offsetDeviation(self) -> float | None: "[s] standard deviation of the offset"
    @property
    def utcOffset(self) -> float | None: "[s] of GPS time from UTC"
    @property
    def utcYear(self) -> int: "year, UTC"
    @property
    def utcMonth(self) -> int: "1 to 12"
    @property
    def utcDay(self) -> int: "1 to 31"
    @property
    def utcHour(self) -> int: "[h] 0 to 23"
    @property
    def utcMinute(self) -> int: "[min] 0 to 59"
    @property
    def utcMilliseconds(self) -> int: "[ms] of the minute"
    @property
    def utcStatus(self) -> int: "state of UTC"

@final
class CartesianLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def positionStatus(self) -> int: "status of the position"
    @property
    def positionType(self) -> int: "type of the position"
    @property
    def position(self) -> list[float | None]: "[m] X, Y and Z"
    @property
    def positionDeviation(self) -> list[float | None]: "[m] standard deviations of X, Y and Z"
    @property
    def velocityStatus(self) -> int: "status of the velocity"
    @property
    def velocityType(self) -> int: "type of the velocity"
    @property
    def velocity(self) -> list[float | None]: "[m/s] along X, Y and Z"
    @property
    def velocityDeviation(self) -> list[float | None]: "[m/s] standard deviations of the velocity"
    @property
    def stationId(self) -> str: "reference station"
    @property
    def velocityLatency(self) -> float | None: "[s] of the velocity's time"
    @property
    def differentialAge(self) -> float | None: "[s] age of the corrections"
    @property
    def solutionAge(self) -> float | None: "[s] age of the solution"
    @property
    def satellites(self) -> SolutionSatellites: "satellites and signals behind the solution"

@final
class HeadingLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def solutionStatus(self) -> int: "status of the solution"
    @property
    def positionType(self) -> int: "type of the solution"
    @property
    def length(self) -> float | None: "[m] of the baseline"
    @property
    def heading(self) -> float | None: "[deg] 0 to 360"
    @property
    def pitch(self) -> float | None: "[deg] of the baseline"
    @property
    def headingDeviation(self) -> float | None: "[deg] standard deviation of the heading"
    @property
    def pitchDeviation(self) -> float | None: "[deg] standard deviation of the pitch"
    @property
    def stationId(self) -> str: "reference station"
    @property
    def satellites(self) -> SolutionSatellites: "satellites and signals behind the solution"

@final
class RangeObservation(Entry):
    @property
    def satellite(self) -> int: "satellite number"
    @property
    def glonassFrequency(self) -> int: "GLONASS frequency channel + 7"
    @property
    def pseudorange(self) -> float | None: "[m] pseudorange"
    @property
    def pseudorangeDeviation(self) -> float | None: "[m] standard deviation of the pseudorange"
    @property
    def carrierPhase(self) -> float | None: "[cycles] accumulated Doppler range"
    @property
    def carrierPhaseDeviation(self) -> float | None: "[cycles] standard deviation of the carrier phase"
    @property
    def doppler(self) -> float | None: "[Hz] Doppler"
    @property
    def carrierToNoise(self) -> float | None: "[dB-Hz] carrier-to-noise density"
    @property
    def lockTime(self) -> float | None: "[s] time of continuous lock"
    @property
    def trackingStatus(self) -> int: "channel tracking status word"

@final
class RangeLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def count(self) -> int: "observations, 0 to 432"
    @property
    def observations(self) -> list[RangeObservation]: "observations in the order of the line"

@final
class SatelliteVisibility(Entry):
    @property
    def satellite(self) -> int: "satellite number, in log 1043 the slot of GLONASS"
    @property
    def glonassFrequency(self) -> int: "in log 48 as the line has it, in log 1043 the channel or 0 without one"
    @property
    def health(self) -> int: "health"
    @property
    def elevation(self) -> float | None: "[deg] above the horizon"
    @property
    def azimuth(self) -> float | None: "[deg] from true north"
    @property
    def trueDoppler(self) -> float | None: "[Hz] Doppler"
    @property
    def apparentDoppler(self) -> float | None: "[Hz] Doppler with the receiver's clock drift"

@final
class VisibilityLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def valid(self) -> int: "the satellite visibility is valid"
    @property
    def completeAlmanac(self) -> int: "the almanac is complete"
    @property
    def count(self) -> int: "satellites, 0 to 66"
    @property
    def satellites(self) -> list[SatelliteVisibility]: "satellites in the order of the line"

@final
class SystemVisibilityLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def system(self) -> int: "satellite system, not by the numbers of GNSSSysIdToName"
    @property
    def valid(self) -> int: "the satellite visibility is valid"
    @property
    def completeAlmanac(self) -> int: "the almanac is complete"
    @property
    def count(self) -> int: "satellites, 0 to 432"
    @property
    def satellites(self) -> list[SatelliteVisibility]: "satellites in the order of the line"

@final
class ListedSatellite(Entry):
    @property
    def system(self) -> int: "satellite system"
    @property
    def satellite(self) -> int: "satellite number"
    @property
    def glonassFrequency(self) -> int: "channel, 0 without one"
    @property
    def status(self) -> int: "why the satellite is used or not"
    @property
    def signals(self) -> int: "bit mask of the signals used"

@final
class SatelliteListLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def count(self) -> int: "satellites, 0 to 431"
    @property
    def satellites(self) -> list[ListedSatellite]: "satellites in the order of the line"

@final
class NavigationSolutionLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def positionStatus(self) -> int: "status of the solution"
    @property
    def positionType(self) -> int: "type of the solution"
    @property
    def latitude(self) -> float | None: "[deg] north positive"
    @property
    def longitude(self) -> float | None: "[deg] east positive"
    @property
    def height(self) -> float | None: "[m] above mean sea level"
    @property
    def undulation(self) -> float | None: "[m] geoid above the ellipsoid"
    @property
    def datum(self) -> int: "place in the receivers' list of datums"
    @property
    def latitudeDeviation(self) -> float | None: "[m] standard deviation of the latitude"
    @property
    def longitudeDeviation(self) -> float | None: "[m] standard deviation of the longitude"
    @property
    def heightDeviation(self) -> float | None: "[m] standard deviation of the height"
    @property
    def stationId(self) -> str: "reference station"
    @property
    def differentialAge(self) -> float | None: "[s] age of the corrections"
    @property
    def solutionAge(self) -> float | None: "[s] age of the solution"
    @property
    def satellites(self) -> SolutionSatellites: "satellites and signals behind the solution"

@final
class AgriculturalLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def format(self) -> str: "\"GNSS\""
    @property
    def commandLength(self) -> int: "length of the command"
    @property
    def utcYear(self) -> int: "two digits"
    @property
    def utcMonth(self) -> int: "1 to 12"
    @property
    def utcDay(self) -> int: "1 to 31"
    @property
    def utcHour(self) -> int: "[h] 0 to 23"
    @property
    def utcMinute(self) -> int: "[min] 0 to 59"
    @property
    def utcSecond(self) -> int: "[s] 0 to 60"

@final
class HeaderLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"

@final
class GpsEphemerisLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def satellite(self) -> int: "satellite number"
    @property
    def timeOfWeek(self) -> float | None: "[s] of subframe 1"
    @property
    def health(self) -> int: "health"
    @property
    def iode1(self) -> int: "issue of data"
    @property
    def iode2(self) -> int: "issue of data"
    @property
    def week(self) -> int: "GPS week of timeOfWeek"
    @property
    def zWeek(self) -> int: "GPS week of toe, from the Z count"
    @property
    def toe(self) -> float | None: "[s] reference time of the ephemeris"
    @property
    def semiMajorAxis(self) -> float | None: "[m] semi-major axis"
    @property
    def deltaN(self) -> float | None: "[rad/s] correction of the mean motion"
    @property
    def m0(self) -> float | None: "[rad] mean anomaly at the reference time"
    @property
    def eccentricity(self) -> float | None: "eccentricity"
    @property
    def omega(self) -> float | None: "[rad] argument of perigee"
    @property
    def cuc(self) -> float | None: "[rad] cosine correction of the argument of latitude"
    @property
    def cus(self) -> float | None: "[rad] sine correction of the argument of latitude"
    @property
    def crc(self) -> float | None: "[m] cosine correction of the radius"
    @property
    def crs(self) -> float | None: "[m] sine correction of the radius"
    @property
    def cic(self) -> float | None: "[rad] cosine correction of the inclination"
    @property
    def cis(self) -> float | None: "[rad] sine correction of the inclination"
    @property
    def i0(self) -> float | None: "[rad] inclination at the reference time"
    @property
    def iDot(self) -> float | None: "[rad/s] rate of the inclination"
    @property
    def omega0(self) -> float | None: "[rad] right ascension"
    @property
    def omegaDot(self) -> float | None: "[rad/s] rate of the right ascension"
    @property
    def iodc(self) -> int: "issue of data of the clock"
    @property
    def toc(self) -> float | None: "[s] reference time of the clock"
    @property
    def tgd(self) -> float | None: "[s] group delay"
    @property
    def af0(self) -> float | None: "[s] clock offset"
    @property
    def af1(self) -> float | None: "[s/s] clock drift"
    @property
    def af2(self) -> float | None: "[s/s^2] clock drift rate"
    @property
    def antiSpoofing(self) -> int: "anti-spoofing is on"
    @property
    def n(self) -> float | None: "[rad/s] corrected mean motion"
    @property
    def ura(self) -> float | None: "[m^2] variance of the user range accuracy"

@final
class GlonassEphemerisLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def slot(self) -> int: "37 + slot number"
    @property
    def frequency(self) -> int: "channel + 7"
    @property
    def satelliteType(self) -> int: "type of the satellite"
    @property
    def week(self) -> int: "GPS week of the ephemeris"
    @property
    def milliseconds(self) -> int: "[ms] GPS time of week of the ephemeris"
    @property
    def timeOffset(self) -> int: "[s] of GLONASS time from GPS time"
    @property
    def dayNumber(self) -> int: "N_T"
    @property
    def issue(self) -> int: "15-minute interval of the day"
    @property
    def health(self) -> int: "health"
    @property
    def position(self) -> list[float | None]: "[m] PZ-90 X, Y and Z"
    @property
    def velocity(self) -> list[float | None]: "[m/s] along X, Y and Z"
    @property
    def acceleration(self) -> list[float | None]: "[m/s^2] of sun and moon along X, Y and Z"
    @property
    def tau(self) -> float | None: "[s] clock correction"
    @property
    def deltaTau(self) -> float | None: "[s] between the L2 and L1 signals"
    @property
    def gamma(self) -> float | None: "relative frequency correction"
    @property
    def frameTime(self) -> int: "[s] t_k, second of the day"
    @property
    def p(self) -> int: "technological parameter"
    @property
    def accuracy(self) -> int: "F_T"
    @property
    def age(self) -> int: "[d] age of the data"
    @property
    def flags(self) -> int: "bit mask"

@final
class GalileoEphemerisLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def satellite(self) -> int: "satellite number"
    @property
    def fnavReceived(self) -> int: "F/NAV was received"
    @property
    def inavReceived(self) -> int: "I/NAV was received"
    @property
    def e1bHealth(self) -> int: "health of E1-B"
    @property
    def e5aHealth(self) -> int: "health of E5a"
    @property
    def e5bHealth(self) -> int: "health of E5b"
    @property
    def e1bDataValidity(self) -> int: "data validity of E1-B"
    @property
    def e5aDataValidity(self) -> int: "data validity of E5a"
    @property
    def e5bDataValidity(self) -> int: "data validity of E5b"
    @property
    def sisa(self) -> int: "signal-in-space accuracy index"
    @property
    def iodNav(self) -> int: "issue of data"
    @property
    def toe(self) -> int: "[s] reference time of the ephemeris"
    @property
    def rootA(self) -> float | None: "[m^0.5] square root of the semi-major axis"
    @property
    def deltaN(self) -> float | None: "[rad/s] correction of the mean motion"
    @property
    def m0(self) -> float | None: "[rad] mean anomaly at the reference time"
    @property
    def eccentricity(self) -> float | None: "eccentricity"
    @property
    def omega(self) -> float | None: "[rad] argument of perigee"
    @property
    def cuc(self) -> float | None: "[rad] cosine correction of the argument of latitude"
    @property
    def cus(self) -> float | None: "[rad] sine correction of the argument of latitude"
    @property
    def crc(self) -> float | None: "[m] cosine correction of the radius"
    @property
    def crs(self) -> float | None: "[m] sine correction of the radius"
    @property
    def cic(self) -> float | None: "[rad] cosine correction of the inclination"
    @property
    def cis(self) -> float | None: "[rad] sine correction of the inclination"
    @property
    def i0(self) -> float | None: "[rad] inclination at the reference time"
    @property
    def iDot(self) -> float | None: "[rad/s] rate of the inclination"
    @property
    def omega0(self) -> float | None: "[rad] right ascension"
    @property
    def omegaDot(self) -> float | None: "[rad/s] rate of the right ascension"
    @property
    def fnavToc(self) -> int: "[s] reference time of the F/NAV clock"
    @property
    def fnavAf(self) -> list[float | None]: "F/NAV clock offset (s), drift (s/s) and drift rate (s/s^2)"
    @property
    def inavToc(self) -> int: "[s] reference time of the I/NAV clock"
    @property
    def inavAf(self) -> list[float | None]: "I/NAV clock offset (s), drift (s/s) and drift rate (s/s^2)"
    @property
    def e1E5aBgd(self) -> float | None: "[s] broadcast group delay of E1 and E5a"
    @property
    def e1E5bBgd(self) -> float | None: "[s] broadcast group delay of E1 and E5b"

@final
class BdsEphemerisLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def satellite(self) -> int: "satellite number"

@final
class IonosphereLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def alpha(self) -> list[float | None]: "coefficients of the amplitude, seconds by powers of semicircles"
    @property
    def beta(self) -> list[float | None]: "coefficients of the period, seconds by powers of semicircles"

@final
class GalileoIonosphereLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def effectiveIonisation(self) -> list[float | None]: "a_i0, a_i1 and a_i2"

@final
class UtcLogRecord(Record):
    @property
    def header(self) -> AsciiLogHeader: "header of the line"
    @property
    def week(self) -> int: "reference week"
    @property
    def tot(self) -> int: "[s] reference time of week"
    @property
    def a0(self) -> float | None: "[s] offset"
    @property
    def a1(self) -> float | None: "[s/s] drift"
    @property
    def leapWeek(self) -> int: "week of the next or last leap second"
    @property
    def leapDay(self) -> int: "day of that week"
    @property
    def leapBefore(self) -> int: "[s] leap seconds until then"
    @property
    def leapAfter(self) -> int: "[s] leap seconds from then on"
