#include "rtcm/proprietary.h"

#include <array>
#include <cstdio>

#include "base/text.h"
#include "base/unknown.h"
#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

// Messages 910 and 999 have 8 bits of sub-type behind the number, 4074 has 12.
constexpr std::uint32_t ShortFamilyBit = FirstFieldBit + 8;
constexpr std::uint32_t LongFamilyBit = FirstFieldBit + 12;

// A time of week, which this raw value leaves as it is.
constexpr FieldRow TimeOfWeek(FieldRow row) {
  row.absent = 0x3FFFFFFF;
  return row;
}

#define F(Record, ...) NAVFRAME_FIELD(Record, __VA_ARGS__)
constexpr auto Sub17 =
    std::to_array<FieldRow>({F(Sub17Record, first, 8), F(Sub17Record, second, 8)});
constexpr auto Sub33 = std::to_array<FieldRow>({F(Sub33Record, values, 4)});
constexpr auto Sub34 = std::to_array<FieldRow>({
    TimeOfWeek(F(Sub34Record, tow, 30)),
    F(Sub34Record, week, 16),
    F(Sub34Record, state, 8),
    F(Sub34Record, mode, 4),
    F(Sub34Record, values, 8),
});
constexpr auto Sub21 = std::to_array<FieldRow>({
    TimeOfWeek(F(Sub21Record, tow, 30)),
    F(Sub21Record, week, 16),
    F(Sub21Record, body, 8),
});
constexpr auto SnrStat =
    std::to_array<FieldRow>({F(RtcmSnrStatRecord, state, 8), F(RtcmSnrStatRecord, levels, 8)});
constexpr auto TimeStatus = std::to_array<FieldRow>({
    TimeOfWeek(F(TimeStatusRecord, tow, 30)),
    F(TimeStatusRecord, week, 16),
    F(TimeStatusRecord, status[0], 8),
    F(TimeStatusRecord, status[1], 4),
});
constexpr auto GpsTime =
    std::to_array<FieldRow>({TimeOfWeek(F(GPSTIME, tow, 30)), F(GPSTIME, week, 16)});
constexpr auto Utc = std::to_array<FieldRow>({
    F(UTCTIME, year, 16),
    F(UTCTIME, month, 8),
    F(UTCTIME, day, 8),
    F(UTCTIME, hour, 8),
    F(UTCTIME, minute, 8),
    F(UTCTIME, second, 8),
    F(UTCTIME, millisecond, 16),
});
#undef F

// "hhmmss.ss"
template <std::size_t Width>
void WriteTimeText(const UTCTIME& utc, char (&member)[Width]) {
  if (IsUnknown(utc.hour)) return;
  std::array<char, 16> text;
  std::snprintf(text.data(), text.size(), "%02d%02d%02d.%02d", utc.hour, utc.minute, utc.second,
                utc.millisecond % 1000 / 10);
  CopyText(member, TextOf(text.data(), text.size()));
}

// "ddmmyy"
template <std::size_t Width>
void WriteDateText(const UTCTIME& utc, char (&member)[Width]) {
  if (IsUnknown(utc.year)) return;
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%02u%02u%02u", unsigned{utc.day}, unsigned{utc.month},
                utc.year - 2000U);
  CopyText(member, TextOf(text.data(), text.size()));
}

// What messages with a UTC time of day begin with. The bit behind it.
template <class Record>
std::uint32_t ReadTimes(const Frame& frame, Record& record) {
  std::uint32_t bit = ReadFields(frame, LongFamilyBit, GpsTime, &record.gpsTime);
  bit = ReadFields(frame, bit, Utc, &record.utc);
  record.utc.flag = IsUnknown(record.utc.hour) ? 0 : 1;
  WriteTimeText(record.utc, record.timeText);
  return bit;
}

}  // namespace

void DecodeSub17(const Frame& frame, Sub17Record& record) {
  ReadFields(frame, ShortFamilyBit, Sub17, &record);
}

void DecodeSub33(const Frame& frame, Sub33Record& record) {
  ReadFields(frame, ShortFamilyBit, Sub33, &record);
}

void DecodeSub34(const Frame& frame, Sub34Record& record) {
  ReadFields(frame, ShortFamilyBit, Sub34, &record);
}

void DecodeSub21(const Frame& frame, Sub21Record& record) {
  ReadFields(frame, ShortFamilyBit, Sub21, &record);
}

void DecodeGyoAcc(const Frame& frame, GyoAccRecord& record) {
  ReadFields(frame, LongFamilyBit, GpsTime, &record.gpsTime);
}

void DecodeSnrStat(const Frame& frame, RtcmSnrStatRecord& record) {
  ReadFields(frame, LongFamilyBit, SnrStat, &record);
}

void DecodeNavAtt(const Frame& frame, NavAttRecord& record) { ReadTimes(frame, record); }

void DecodeImuRaw(const Frame& frame, ImuRecord& record) { ReadTimes(frame, record); }

void DecodeInsPva(const Frame& frame, InsPvaRecord& record) {
  const std::uint32_t bit = ReadTimes(frame, record);
  WriteDateText(record.utc, record.dateText);
  if (!frame.Has(bit, 64)) return;
  const auto value = static_cast<std::int64_t>(Bits64(frame.bytes, bit));
  if (value != INT64_MIN) record.latitude = static_cast<double>(value) * 0x1p-32;
}

void DecodeTimeStatus(const Frame& frame, TimeStatusRecord& record) {
  ReadFields(frame, LongFamilyBit, TimeStatus, &record);
}

// Of these the time alone is read.
void DecodeSignalObservations(const Frame& frame, SignalObservationsRecord& record) {
  GPSTIME time{record.tow, record.week, 0};
  ReadFields(frame, LongFamilyBit, GpsTime, &time);
  record.tow = time.tow;
  record.week = time.week;
}

void DecodeIntegerSet(const Frame& frame, IntegerSetRecord& record) {
  GPSTIME time{record.tow, record.week, 0};
  ReadFields(frame, LongFamilyBit, GpsTime, &time);
  record.tow = time.tow;
  record.week = time.week;
}

}  // namespace navframe::rtcm
