#include "rtcm/proprietary.h"

#include <array>
#include <cstdio>

#include "base/text.h"
#include "base/unknown.h"

namespace navframe::rtcm {
namespace {

// Messages 910 and 999 have 8 bits of sub-type behind the number, 4074 has 12.
constexpr std::uint32_t ShortFamilyBit = FirstFieldBit + 8;
constexpr std::uint32_t LongFamilyBit = FirstFieldBit + 12;

constexpr std::uint32_t TowBits = 30;
constexpr std::uint32_t NoTow = 0x3FFFFFFF;

// Time of week and week; an unknown time of week leaves `tow` as it is.
template <class Week>
void ReadTime(FieldCursor& cursor, std::uint32_t& tow, Week& week) {
  std::uint32_t raw = NoTow;
  cursor.Read(TowBits, raw);
  if (raw != NoTow) tow = raw;
  cursor.Read(16, week);
}

void ReadUtc(FieldCursor& cursor, UTCTIME& utc) {
  cursor.Read(16, utc.year);
  cursor.Read(8, utc.month);
  cursor.Read(8, utc.day);
  cursor.Read(8, utc.hour);
  cursor.Read(8, utc.minute);
  cursor.Read(8, utc.second);
  cursor.Read(16, utc.millisecond);
  utc.flag = IsUnknown(utc.hour) ? 0 : 1;
}

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

// What messages with a UTC time of day begin with.
template <class Record>
FieldCursor ReadTimes(const Frame& frame, Record& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  ReadTime(cursor, record.gpsTime.tow, record.gpsTime.week);
  ReadUtc(cursor, record.utc);
  WriteTimeText(record.utc, record.timeText);
  return cursor;
}

}  // namespace

void DecodeSub17(const Frame& frame, Sub17Record& record) {
  FieldCursor cursor(frame, ShortFamilyBit);
  cursor.Read(8, record.first);
  cursor.Read(8, record.second);
}

void DecodeSub33(const Frame& frame, Sub33Record& record) {
  FieldCursor(frame, ShortFamilyBit).Read(4, record.values);
}

void DecodeSub34(const Frame& frame, Sub34Record& record) {
  FieldCursor cursor(frame, ShortFamilyBit);
  ReadTime(cursor, record.tow, record.week);
  cursor.Read(8, record.state);
  cursor.Read(4, record.mode);
  cursor.Read(8, record.values);
}

void DecodeSub21(const Frame& frame, Sub21Record& record) {
  FieldCursor cursor(frame, ShortFamilyBit);
  ReadTime(cursor, record.tow, record.week);
  cursor.Read(8, record.body);
}

void DecodeGyoAcc(const Frame& frame, GyoAccRecord& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  ReadTime(cursor, record.gpsTime.tow, record.gpsTime.week);
}

void DecodeSnrStat(const Frame& frame, RtcmSnrStatRecord& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  cursor.Read(8, record.state);
  cursor.Read(8, record.levels);
}

void DecodeNavAtt(const Frame& frame, NavAttRecord& record) { ReadTimes(frame, record); }

void DecodeImuRaw(const Frame& frame, ImuRecord& record) { ReadTimes(frame, record); }

void DecodeInsPva(const Frame& frame, InsPvaRecord& record) {
  FieldCursor cursor = ReadTimes(frame, record);
  WriteDateText(record.utc, record.dateText);
  std::int64_t value;
  if (cursor.ReadSigned64(value) && value != INT64_MIN) {
    record.latitude = static_cast<double>(value) * 0x1p-32;
  }
}

void DecodeTimeStatus(const Frame& frame, TimeStatusRecord& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  ReadTime(cursor, record.tow, record.week);
  cursor.Read(8, record.status[0]);
  cursor.Read(4, record.status[1]);
}

void DecodeSignalObservations(const Frame& frame, SignalObservationsRecord& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  ReadTime(cursor, record.tow, record.week);
}

void DecodeIntegerSet(const Frame& frame, IntegerSetRecord& record) {
  FieldCursor cursor(frame, LongFamilyBit);
  ReadTime(cursor, record.tow, record.week);
}

}  // namespace navframe::rtcm
