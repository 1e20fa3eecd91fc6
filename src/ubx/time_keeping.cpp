#include "ubx/time_keeping.h"

#include <cmath>

#include "base/unknown.h"
#include "time/time_of_day.h"
#include "time/true_clock.h"
#include "ubx/record_head.h"

namespace navframe::ubx {
namespace {

constexpr std::int64_t SecondMs = 1000;

// GPS time less UTC, of a time of week and a time of day that belong to one moment: what whole days
// leave, rounded to the second.
std::int64_t LeapSecondsOf(std::uint32_t tow, const UTCTIME& utc, std::int32_t nanoseconds) {
  const std::int64_t ofDay =
      ((utc.hour * 60LL + utc.minute) * 60 + utc.second) * SecondMs + nanoseconds / 1'000'000;
  return (tow + WeekMs - ofDay + SecondMs / 2) % DayMs / SecondMs;
}

// Date and time from the year on at `at`, as far as the flags call them valid.
void KeepDateAndTime(const std::uint8_t* p, std::uint8_t valid, std::size_t at,
                     std::size_t nanosecondsAt, DecoderClock& clock) {
  const bool dateValid = Bits(valid, 0, 1) != 0;
  const bool timeValid = Bits(valid, 1, 1) != 0;
  const bool fullyResolved = Bits(valid, 2, 1) != 0;
  const UTCTIME utc = {.year = dateValid ? ReadLe<std::uint16_t>(p, at) : Unknown<std::uint16_t>(),
                       .month = p[at + 2],
                       .day = p[at + 3],
                       .hour = timeValid ? p[at + 4] : Unknown<std::uint8_t>(),
                       .minute = p[at + 5],
                       .second = p[at + 6],
                       .reserved0 = 0,
                       .millisecond = 0,
                       .flag = 0,
                       .reserved1 = 0};
  const auto tow = ReadLe<std::uint32_t>(p, 0);
  const auto nanoseconds = ReadLe<std::int32_t>(p, nanosecondsAt);
  // Both times in one message tell how many leap seconds there are.
  constexpr std::int64_t Plausible = 60;
  if (dateValid && timeValid && fullyResolved && tow < WeekMs) {
    const std::int64_t leapSeconds = LeapSecondsOf(tow, utc, nanoseconds);
    if (leapSeconds > 0 && leapSeconds < Plausible) {
      true_clock::SetLeapSeconds(static_cast<std::int32_t>(leapSeconds), clock);
    }
  }
  true_clock::SetUtc(utc, nanoseconds, {}, NavframeTimeFromUbx, clock);
}

// Time of week, fraction and week at the front of a payload. A fraction is below a millisecond.
void KeepWeekAndTow(const std::uint8_t* p, bool isValid, DecoderClock& clock) {
  const auto tow = ReadLe<std::uint32_t>(p, 0);
  const auto week = ReadLe<std::int16_t>(p, 8);
  if (!isValid || week < 0) return KeepTow(tow, clock);
  if (tow < WeekMs) {
    true_clock::SetGpsTime({tow, static_cast<std::uint16_t>(week), 0}, NavframeTimeFromUbx, clock);
  }
}

}  // namespace

void KeepNavigationTime(const Payload& payload, DecoderClock& clock) {
  KeepDateAndTime(payload.bytes, payload.bytes[11], 4, 16, clock);
}

void KeepVehicleTime(const Payload& payload, DecoderClock& clock) {
  KeepDateAndTime(payload.bytes, payload.bytes[5], 6, 20, clock);
}

void KeepRawTime(const Payload& payload, DecoderClock& clock) {
  constexpr std::size_t HeadLength = 16;
  if (payload.length < HeadLength || Bits(payload.bytes[12], 0, 1) == 0) return;
  const double ms = std::round(ReadLe<double>(payload.bytes, 0) * 1000);
  if (!(ms >= 0 && ms < static_cast<double>(WeekMs))) return;
  const auto leapSeconds = ReadLe<std::int8_t>(payload.bytes, 10);
  if (leapSeconds >= 0) true_clock::SetLeapSeconds(leapSeconds, clock);
  true_clock::SetGpsTime(
      {static_cast<std::uint32_t>(ms), ReadLe<std::uint16_t>(payload.bytes, 8), 0},
      NavframeTimeFromUbx, clock);
}

void KeepSolutionTime(const Payload& payload, DecoderClock& clock) {
  constexpr std::uint8_t WeekAndTow = 0x0C;
  KeepWeekAndTow(payload.bytes, (payload.bytes[11] & WeekAndTow) == WeekAndTow, clock);
}

void KeepGpsTime(const Payload& payload, DecoderClock& clock) {
  constexpr std::uint8_t WeekAndTow = 0x03;
  const std::uint8_t valid = payload.bytes[11];
  const auto leapSeconds = ReadLe<std::int8_t>(payload.bytes, 10);
  if (Bits(valid, 2, 1) != 0 && leapSeconds >= 0) true_clock::SetLeapSeconds(leapSeconds, clock);
  KeepWeekAndTow(payload.bytes, (valid & WeekAndTow) == WeekAndTow, clock);
}

void KeepUtc(const Payload& payload, DecoderClock& clock) {
  const std::uint8_t* const p = payload.bytes;
  if (Bits(p[19], 2, 1) == 0) return KeepTow(ReadLe<std::uint32_t>(p, 0), clock);
  true_clock::SetUtc({.year = ReadLe<std::uint16_t>(p, 12),
                      .month = p[14],
                      .day = p[15],
                      .hour = p[16],
                      .minute = p[17],
                      .second = p[18],
                      .reserved0 = 0,
                      .millisecond = 0,
                      .flag = 0,
                      .reserved1 = 0},
                     ReadLe<std::int32_t>(p, 8), {}, NavframeTimeFromUbx, clock);
}

void KeepTow(std::uint32_t tow, DecoderClock& clock) {
  if (!IsUnknown(clock.gpsTime.week)) true_clock::SetTow(tow, NavframeTimeFromUbx, clock);
}

}  // namespace navframe::ubx
