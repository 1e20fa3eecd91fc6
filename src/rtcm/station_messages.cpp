#include "rtcm/station_messages.h"

namespace navframe::rtcm {

void DecodeStationPosition(const Frame& frame, StationPositionRecord& record) {
  FieldCursor cursor(frame, FirstFieldBit);
  cursor.Read(12, record.stationId);
  cursor.Read(6, record.itrfYear);
  cursor.Read(1, record.gps);
  cursor.Read(1, record.glonass);
  cursor.Read(1, record.galileo);
  cursor.Read(1, record.referenceStation);
  // The coordinates are kept as the bits of the message on purpose, without their sign.
  cursor.Read(38, record.x);
  cursor.Skip(2);  // single-receiver oscillator indicator, reserved
  cursor.Read(38, record.y);
  cursor.Skip(2);  // quarter-cycle indicator
  cursor.Read(38, record.z);
}

void DecodeSystemParameters(const Frame& frame, SystemParametersRecord& record) {
  FieldCursor cursor(frame, FirstFieldBit);
  cursor.Read(12, record.stationId);
  cursor.Read(16, record.modifiedJulianDay);
  cursor.Read(17, record.secondsOfDay);
  cursor.Read(5, record.count);
  cursor.Read(8, record.leapSeconds);
  for (std::uint32_t i = 0; i < record.count; ++i) {  // 5 bits: at most the 31 there are
    MessageAnnouncement& announcement = record.announcements[i];
    cursor.Read(12, announcement.messageId);
    cursor.Read(1, announcement.synchronous);
    cursor.Read(16, announcement.interval);
  }
}

}  // namespace navframe::rtcm
