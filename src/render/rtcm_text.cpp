#include "render/rtcm_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "render/names.h"

namespace navframe {
namespace {

void TimeFields(std::uint32_t tow, std::uint16_t week, TextWriter& writer) {
  writer.IntOr(tow, ",", ",");
  writer.IntOr(week, ",", ",");
}

// A whole number that is held as a double.
void WholeOr(double value, std::string_view after, std::string_view unknown, TextWriter& writer) {
  if (IsUnknown(value)) return writer.Text(unknown);
  constexpr double Most = std::numeric_limits<std::int32_t>::max();
  constexpr double Least = std::numeric_limits<std::int32_t>::min();
  writer.Int(static_cast<std::int32_t>(std::clamp(value, Least, Most)));
  writer.Text(after);
}

std::string_view SystemOrUnknown(std::uint8_t systemId) {
  const std::string_view name = SystemName(systemId, NameOf::SignalSet);
  return name.empty() ? "Unknown" : name;
}

}  // namespace

void FormatRtcmSnrStat(const RtcmSnrStatRecord& record, TextWriter& writer) {
  writer.IntOr(record.count, ",", ",");
  writer.IntOr(record.state, ",", ",");
  for (const std::int8_t level : record.levels) writer.IntOr(level, ",", ",");
}

void FormatClockOrbit(const ClockOrbitRecord& record, bool leadingFields, TextWriter& writer) {
  constexpr int Decimals[] = {12, 12, 10, 10};
  if (leadingFields) TimeFields(record.tow, record.week, writer);
  writer.Text(record.system != 0 ? "BDS," : "GPS,");
  for (std::size_t i = 0; i < std::size(Decimals); ++i) {
    writer.FixedOr(record.values[i], Decimals[i], ",", ",");
  }
  for (std::size_t i = 0; i + 1 < std::size(record.integers); ++i) {
    WholeOr(record.integers[i], ",", ",", writer);
  }
  WholeOr(record.integers[std::size(record.integers) - 1], "", "", writer);
}

void FormatSystemCounts(const SystemCountsRecord& record, TextWriter& writer) {
  constexpr std::string_view Counted[] = {"GPS,", "BDS,", "GAL,", "QZS,"};
  for (std::size_t i = 0; i < std::size(Counted); ++i) {
    writer.Text(Counted[i]);
    writer.Int(record.counts[i]);
    writer.Text("\n");
  }
  for (const auto& entry : record.entries) {
    if (entry.values[0] == 0) continue;
    writer.Int(static_cast<std::uint32_t>(entry.values[0]));
    for (std::size_t i = 1; i < std::size(entry.values); ++i) {
      writer.Text(",");
      writer.Int(entry.values[i]);
    }
    writer.Text("\n");
  }
}

void FormatSignalObservations(const SignalObservationsRecord& record, bool leadingFields,
                              TextWriter& writer) {
  if (leadingFields) TimeFields(record.tow, record.week, writer);
  bool first = true;
  const auto count = std::min<std::size_t>(record.count, std::size(record.satellites));
  for (std::size_t i = 0; i < count; ++i) {
    const SatelliteInView& satellite = record.satellites[i];
    const auto signals = std::min<std::size_t>(satellite.signalCount, std::size(satellite.signals));
    for (std::size_t j = 0; j < signals; ++j) {
      const SatelliteSignal& signal = satellite.signals[j];
      if (!first) writer.Text("\n");
      first = false;
      writer.Text(SystemOrUnknown(satellite.systemId));
      writer.Text(",");
      writer.Text(SignalName(satellite.systemId, signal.signalId, NameOf::SignalSet));
      writer.Text(",");
      writer.IntOr(signal.cn0, "", "");
    }
  }
}

void FormatIntegerSet(const IntegerSetRecord& record, TextWriter& writer) {
  writer.FixedOr(record.latitude, 8, ",", ",");
  writer.FixedOr(record.longitude, 8, ",", ",");
  for (const std::int64_t integer : record.integers) {
    writer.Int(integer);
    writer.Text(",");
  }
}

}  // namespace navframe
