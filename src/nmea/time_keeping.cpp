#include "nmea/time_keeping.h"

#include <string>

#include "base/unknown.h"

namespace navframe::nmea {
namespace {

// From this repetition on a sentence that opens no epoch moves the clock all the same.
constexpr std::uint8_t RepetitionsToMove = 2;

bool HasDate(const UTCTIME& utc) { return !IsUnknown(utc.year); }
bool HasTime(const UTCTIME& utc) { return !IsUnknown(utc.hour); }

bool MovesClock(bool opensEpoch, std::uint8_t& counter) {
  if (opensEpoch) {
    counter = 0;
    return true;
  }
  if (counter < RepetitionsToMove) ++counter;
  return counter >= RepetitionsToMove;
}

void MoveToTimeOfDay(const SentenceTime& sentence, DecoderClock& time) {
  UTCTIME& utc = sentence.utc;
  if (!HasTime(utc) || utc.second == time.utcTime.second ||
      utc.millisecond == time.utcTime.millisecond) {
    return;
  }
  time.source = NavframeTimeFromNmea;
  if (HasDate(utc)) {
    time.setDateTime(utc, std::string(sentence.text));
    time.UTC2GPSTime(time.utcTime, time.gpsTime);
  } else {
    time.updateTime(utc, std::string(sentence.text));
  }
}

void MoveToDate(const SentenceTime& sentence, DecoderClock& time) {
  UTCTIME& utc = sentence.utc;
  if (HasDate(utc) || HasTime(utc)) time.source = NavframeTimeFromNmea;
  if (HasDate(utc) && HasTime(utc)) {
    time.setDateTime(utc, std::string(sentence.text));
    time.UTC2GPSTime(time.utcTime, time.gpsTime);
  } else if (HasDate(utc)) {
    time.setDate(utc);
    if (HasTime(time.utcTime)) {
      time.UTC2GPSTime(time.utcTime, time.gpsTime);
    } else {
      time.date2Week(time.utcTime, time.gpsTime.week, time.leapSeconds);
    }
  } else if (HasTime(utc)) {
    time.updateTime(utc, std::string(sentence.text));
  }
}

}  // namespace

bool OpensEpoch(NmeaContext& context, std::string_view timeField) {
  if (timeField.empty() || timeField == context.previousEpochTime.View()) return false;
  context.previousEpochTime = timeField;
  return true;
}

void KeepTime(ClockRule rule, const SentenceTime& sentence, NmeaContext& context,
              EpochCounters& counters, DecoderClock& time) {
  switch (rule) {
    case ClockRule::None:
      return;
    case ClockRule::TimeOfDay:
      MoveToTimeOfDay(sentence, time);
      return;
    case ClockRule::TimeOfDayByEpoch:
      if (!MovesClock(OpensEpoch(context, sentence.field), counters.gga)) return;
      time.clearTime(false);
      MoveToTimeOfDay(sentence, time);
      return;
    case ClockRule::DateByEpoch:
      if (!MovesClock(OpensEpoch(context, sentence.field), counters.rmc)) return;
      time.clearTime(true);
      MoveToDate(sentence, time);
      return;
    case ClockRule::Date:
      if (sentence.text != time.timeText) MoveToDate(sentence, time);
      return;
  }
}

}  // namespace navframe::nmea
