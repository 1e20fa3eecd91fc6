#include "describe_rtcm.h"

#include <array>
#include <cinttypes>
#include <cmath>
#include <cstdarg>
#include <cstdio>

#include "printable.h"

namespace navframe::tool {
namespace {

#if defined(__GNUC__)
__attribute__((format(printf, 2, 3)))
#endif
void Print(std::string& out, const char* format, ...) {
  std::array<char, 256> piece;
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(piece.data(), piece.size(), format, arguments);
  va_end(arguments);
  out += piece.data();
}

void PrintTow(std::string& out, std::uint32_t tow) {
  if (tow == 0xFFFFFFFF) {
    out += "tow -";
  } else {
    Print(out, "tow %" PRIu32 ".%03" PRIu32 " s", tow / 1000, tow % 1000);
  }
}

void PrintTime(std::string& out, std::uint32_t tow, std::uint32_t week) {
  if (week == 65535) {
    out += "week -";
  } else {
    Print(out, "week %" PRIu32, week);
  }
  out += " ";
  PrintTow(out, tow);
}

template <std::size_t Count>
void PrintBytes(std::string& out, const std::uint8_t (&bytes)[Count]) {
  for (const std::uint8_t byte : bytes) Print(out, " %u", unsigned{byte});
}

// Metres of a coordinate, which the record keeps as the 38 bits of the message.
double Metres(std::int64_t raw) {
  constexpr std::int64_t SignBit = std::int64_t{1} << 37;
  return static_cast<double>((raw ^ SignBit) - SignBit) * 0.0001;
}

struct SystemNames {
  char letter;                          // of its satellites
  std::array<const char*, 33> signals;  // RINEX-style, by MSM signal id
};
constexpr auto NoSignals = std::array<const char*, 33>{};

struct SignalRow {
  std::uint8_t system;
  std::uint8_t firstId;
  std::array<const char*, 5> codes;  // of firstId and the ids behind it
};
constexpr SignalRow SignalRows[] = {
    {1, 2, {"1C", "1P", "1W"}},
    {1, 8, {"2C", "2P", "2W"}},
    {1, 15, {"2S", "2L", "2X"}},
    {1, 22, {"5I", "5Q", "5X"}},
    {1, 30, {"1S", "1L", "1X"}},
    {2, 2, {"1C", "1P"}},
    {2, 8, {"2C", "2P"}},
    {3, 2, {"1C", "1A", "1B", "1X", "1Z"}},
    {3, 8, {"6C", "6A", "6B", "6X", "6Z"}},
    {3, 14, {"7I", "7Q", "7X"}},
    {3, 18, {"8I", "8Q", "8X"}},
    {3, 22, {"5I", "5Q", "5X"}},
    {4, 2, {"2I", "2Q", "2X"}},
    {4, 8, {"6I", "6Q", "6X"}},
    {4, 14, {"7I", "7Q", "7X"}},
    {4, 22, {"5D", "5P", "5X", "7D"}},
    {4, 30, {"1D", "1P", "1X"}},
    {5, 2, {"1C"}},
    {5, 9, {"6S", "6L", "6X"}},
    {5, 15, {"2S", "2L", "2X"}},
    {5, 22, {"5I", "5Q", "5X"}},
    {5, 30, {"1S", "1L", "1X"}},
};

constexpr auto Systems = [] {
  std::array<SystemNames, 6> systems = {{{'?', NoSignals},
                                         {'G', NoSignals},
                                         {'R', NoSignals},
                                         {'E', NoSignals},
                                         {'C', NoSignals},
                                         {'J', NoSignals}}};
  for (const SignalRow& row : SignalRows) {
    for (std::size_t i = 0; i < row.codes.size() && row.codes[i] != nullptr; ++i) {
      systems[row.system].signals[row.firstId + i] = row.codes[i];
    }
  }
  return systems;
}();

const SystemNames& NamesOf(std::uint8_t system) {
  return Systems[system < Systems.size() ? system : 0];
}

void DescribeObservation(const MsmObservation& observation, std::string& out) {
  const SystemNames& names = NamesOf(observation.system);
  const char* const code =
      observation.signal < names.signals.size() ? names.signals[observation.signal] : nullptr;
  Print(out, "\n%c%02u ", names.letter, unsigned{observation.satellite});
  if (code != nullptr) {
    Print(out, "%s", code);
  } else {
    Print(out, "signal %u", unsigned{observation.signal});
  }
  if (observation.pseudorangeValid != 0) {
    Print(out, " pseudorange %.3f m", observation.pseudorange);
  } else {
    out += " pseudorange -";
  }
  if (observation.carrierPhase != 0) {
    Print(out, " phase %.3f cycles", observation.carrierPhase);
  } else {
    out += " phase -";
  }
  Print(out, " (status %u%s)", unsigned{observation.phaseStatus},
        observation.halfCycleAmbiguity != 0 ? ", half cycle" : "");
  if (observation.rateValid != 0) Print(out, " rate %.4f m/s", observation.phaseRangeRate);
  Print(out, " lock %" PRIu32 " ms C/N0 %u dB-Hz", observation.lockTime, unsigned{observation.cn0});
}

}  // namespace

void DescribeStationPosition(const StationPositionRecord& record, std::string& out) {
  Print(out, "id %" PRIu32 " ", record.stationId);
  Print(out, "ECEF %.4f %.4f %.4f m", Metres(record.x), Metres(record.y), Metres(record.z));
  Print(out, " ITRF year %u%s%s%s%s", unsigned{record.itrfYear}, record.gps != 0 ? " GPS" : "",
        record.glonass != 0 ? " GLO" : "", record.galileo != 0 ? " GAL" : "",
        record.referenceStation != 0 ? " computed" : " physical");
}

void DescribeSystemParameters(const SystemParametersRecord& record, std::string& out) {
  Print(out, "id %u MJD %u second %" PRIu32 " leap seconds %u, %u announcements",
        unsigned{record.stationId}, unsigned{record.modifiedJulianDay}, record.secondsOfDay,
        unsigned{record.leapSeconds}, unsigned{record.count});
  for (std::size_t i = 0; i < record.count && i < std::size(record.announcements); ++i) {
    const MessageAnnouncement& announcement = record.announcements[i];
    Print(out, "\n%u every %.1f s%s", unsigned{announcement.messageId}, announcement.interval * 0.1,
          announcement.synchronous != 0 ? ", synchronous" : "");
  }
}

void DescribeMsm(const MsmRecord& record, std::string& out) {
  PrintTime(out, record.epochTime, record.week);
  out += " time ";
  AppendPrintable(record.timeText, out);
  Print(out, ", %u observations%s", unsigned{record.count},
        record.epochComplete != 0 ? ", epoch complete" : "");
  for (std::size_t i = 0; i < record.count && i < std::size(record.observations); ++i) {
    DescribeObservation(record.observations[i], out);
  }
}

void DescribeTimeStatus(const TimeStatusRecord& record, std::string& out) {
  PrintTime(out, record.tow, record.week);
  out += " status";
  PrintBytes(out, record.status);
}

void DescribeSub249(const Sub249Record& record, std::string& out) {
  PrintTime(out, record.tow, record.week);
}

void DescribeSub17(const Sub17Record& record, std::string& out) {
  PrintTow(out, record.tow);
  out += " values";
  PrintBytes(out, record.first);
  out += " and";
  PrintBytes(out, record.second);
}

void DescribeSub33(const Sub33Record& record, std::string& out) {
  PrintTow(out, record.tow);
  out += " values";
  PrintBytes(out, record.values);
}

void DescribeSub34(const Sub34Record& record, std::string& out) {
  PrintTime(out, record.tow, record.week);
  Print(out, " state %u mode %u values", unsigned{record.state}, unsigned{record.mode});
  PrintBytes(out, record.values);
}

void DescribeSub21(const Sub21Record& record, std::string& out) {
  PrintTime(out, record.tow, record.week);
  out += " body";
  PrintBytes(out, record.body);
}

}  // namespace navframe::tool
