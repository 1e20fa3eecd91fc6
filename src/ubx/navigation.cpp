#include <array>
#include <cstring>
#include <string>
#include <string_view>

#include "base/read_le.h"
#include "ubx/messages.h"
#include "ubx/record_head.h"

namespace navframe::ubx {
namespace {

constexpr std::int32_t NanosecondsPerMillisecond = 1'000'000;
constexpr double AnglePerDegree = 1e7;
constexpr double LengthPerMetre = 1000;
// The wire has hundredths, so that this makes a tenth of the DOP. Hosts rely on it.
constexpr double DopDivisor = 1000;

constexpr std::uint8_t UnknownHour = 255;

// Appends at least two digits.
char* PutNumber(char* at, std::uint32_t value) {
  if (value >= 100) *at++ = static_cast<char>('0' + value / 100);
  *at++ = static_cast<char>('0' + value / 10 % 10);
  *at++ = static_cast<char>('0' + value % 10);
  return at;
}

// "hhmmss.cc"; a member that is no time of day has three digits.
std::string TimeText(const UTCTIME& utc) {
  std::array<char, 16> text;
  char* at = PutNumber(text.data(), utc.hour);
  at = PutNumber(at, utc.minute);
  at = PutNumber(at, utc.second);
  *at++ = '.';
  at = PutNumber(at, utc.millisecond / 10U);
  return {text.data(), at};
}

// A fraction before the second counts as none: the clock has no negative milliseconds.
UTCTIME TimeOf(const UbxNavigationRecord& record) {
  const std::int32_t millisecond = record.nanoseconds / NanosecondsPerMillisecond;
  return {.year = record.year,
          .month = record.month,
          .day = record.day,
          .hour = record.hour,
          .minute = record.minute,
          .second = record.second,
          .reserved0 = 0,
          .millisecond = static_cast<std::uint16_t>(millisecond < 0 ? 0 : millisecond),
          .flag = 0,
          .reserved1 = 0};
}

// Moves the clock of the exports to what the message says of date and time.
void KeepTime(const UbxNavigationRecord& record, DecoderClock& time) {
  UTCTIME utc = TimeOf(record);
  if (record.timeValid != 0 || record.dateValid != 0) time.source = NavframeTimeFromUbx;
  if (record.timeValid != 0 && record.dateValid != 0) {
    time.setDateTime(utc, TimeText(utc));
    time.UTC2GPSTime(time.utcTime, time.gpsTime);
  } else if (record.timeValid != 0) {
    time.updateTime(utc, TimeText(utc));
  }
  if (record.dateValid != 0) {
    // The date joins the clock's time of day; without one only the week is known.
    time.setDate(utc);
    if (time.utcTime.hour == UnknownHour) {
      time.date2Week(time.utcTime, time.gpsTime.week, time.leapSeconds);
    } else {
      time.UTC2GPSTime(time.utcTime, time.gpsTime);
    }
  }
}

void DecodeTime(const std::uint8_t* p, UbxNavigationRecord& record) {
  record.year = ReadLe<std::uint16_t>(p, 4);
  record.month = p[6];
  record.day = p[7];
  record.hour = p[8];
  record.minute = p[9];
  record.second = p[10];
  const std::uint8_t valid = p[11];
  record.dateValid = Bits(valid, 0, 1);
  record.timeValid = Bits(valid, 1, 1);
  record.fullyResolved = Bits(valid, 2, 1);
  record.magValid = Bits(valid, 3, 1);
  record.timeAccuracy = ReadLe<std::uint32_t>(p, 12);
  record.nanoseconds = ReadLe<std::int32_t>(p, 16);
  record.millisecond = static_cast<std::uint32_t>(record.nanoseconds / NanosecondsPerMillisecond);
}

void DecodeStatus(const std::uint8_t* p, UbxNavigationRecord& record) {
  record.fixType = p[20];
  const std::uint8_t status = p[21];
  record.fixOk = Bits(status, 0, 1);
  record.diffSolution = Bits(status, 1, 1);
  record.powerSaveState = Bits(status, 2, 3);
  record.headingValid = Bits(status, 5, 1);
  record.carrierSolution = Bits(status, 6, 2);
  const std::uint8_t confirmed = p[22];
  record.confirmedAvailable = Bits(confirmed, 5, 1);
  record.confirmedDate = Bits(confirmed, 6, 1);
  record.confirmedTime = Bits(confirmed, 7, 1);
  record.satellites = p[23];
}

void DecodePosition(const std::uint8_t* p, UbxNavigationRecord& record) {
  if (record.fixType != 0) {
    record.longitude = ReadLe<std::int32_t>(p, 24) / AnglePerDegree;
    record.latitude = ReadLe<std::int32_t>(p, 28) / AnglePerDegree;
    record.height = static_cast<float>(ReadLe<std::int32_t>(p, 32) / LengthPerMetre);
    record.heightMsl = static_cast<float>(ReadLe<std::int32_t>(p, 36) / LengthPerMetre);
    record.positionDop = static_cast<float>(ReadLe<std::uint16_t>(p, 76) / DopDivisor);
  } else {
    record.longitude = Unknown<double>();
    record.latitude = Unknown<double>();
    record.height = Unknown<float>();
    record.heightMsl = Unknown<float>();
    record.positionDop = Unknown<float>();
  }
  record.horizontalAccuracy = ReadLe<std::uint32_t>(p, 40);
  record.verticalAccuracy = ReadLe<std::uint32_t>(p, 44);
  record.invalidHeight = Bits(p[78], 0, 1);
  record.correctionAge = Bits(p[78], 1, 4);
  record.reservedWord = ReadLe<std::uint32_t>(p, 80);
}

void DecodeMotion(const std::uint8_t* p, UbxNavigationRecord& record) {
  record.velocityEast = ReadLe<std::int32_t>(p, 52);
  record.velocityNorth = ReadLe<std::int32_t>(p, 48);
  // Negated as unsigned: the most negative value stays what it is.
  record.velocityUp = static_cast<std::int32_t>(0U - ReadLe<std::uint32_t>(p, 56));
  record.groundSpeed = ReadLe<std::int32_t>(p, 60);
  record.motionHeading = ReadLe<std::int32_t>(p, 64);
  record.speedAccuracy = ReadLe<std::uint32_t>(p, 68);
  record.headingAccuracy = ReadLe<std::uint32_t>(p, 72);
  // Only the low half of the four bytes sent. Hosts rely on it.
  record.vehicleHeading = ReadLe<std::uint16_t>(p, 84);
}

}  // namespace

void DecodeNavigation(const Payload& payload, DecoderClock& time, UbxNavigationRecord& record) {
  const std::uint8_t* const p = payload.bytes;
  std::memset(&record, 0, sizeof(record));
  DecodeTime(p, record);
  DecodeStatus(p, record);
  DecodePosition(p, record);
  DecodeMotion(p, record);
  if (!time.isTrue) KeepTime(record, time);
  WriteHead(ReadLe<std::uint32_t>(p, 0), time.getWeek(), time, record);
}

}  // namespace navframe::ubx
