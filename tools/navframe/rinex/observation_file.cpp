#include "rinex/observation_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

#include "rinex/number_text.h"

namespace navframe::tool {
namespace {

constexpr std::size_t ValueWidth = 16;     // F14.3, then two digits
constexpr std::size_t SatelliteWidth = 3;  // "G05"
constexpr std::size_t NumberWidth = 14;

// Of a strength in dB-Hz, 1 to 9.
char StrengthDigit(float strength) {
  constexpr float Step = 6;
  return static_cast<char>('0' + std::clamp(static_cast<int>(strength / Step), 1, 9));
}

// Strengths stand in the middle of two thousandths again and again; those are rounded up.
std::int64_t HalfUp(float strength) {
  return static_cast<std::int64_t>(static_cast<double>(strength) * 1000 + 0.5);
}

}  // namespace

void ObservationFile::FindPlaces(const SystemColumns& columns) {
  for (std::size_t system = 1; system < SystemCount; ++system) {
    for (auto& signal : places_[system]) signal.fill(0);
    lengths_[system] = SatelliteWidth + columns[system].size() * ValueWidth;
    for (std::size_t i = 0; i < columns[system].size(); ++i) {
      const TypeColumn& column = columns[system][i];
      places_[system][column.signal][static_cast<std::size_t>(column.value)] =
          static_cast<std::uint16_t>(SatelliteWidth + i * ValueWidth);
    }
  }
}

// Without the channel of a satellite there are no cycles of its phases.
std::uint64_t ObservationFile::ResolvePhases(const StationNotes& notes) {
  std::uint64_t leftOut = 0;
  for (std::size_t satellite = 0; satellite < SatelliteRoom; ++satellite) {
    const auto channel = notes.ChannelOf(satellite);
    channels_[satellite] =
        channel ? static_cast<double>(*channel) : std::numeric_limits<double>::quiet_NaN();
    if (!channel) leftOut += summary_.DropInMetres(satellite);
  }
  return leftOut;
}

std::uint64_t ObservationFile::Write(const ObservationFrame& frame, const SystemColumns* columns,
                                     Output& output) {
  const std::uint64_t leftOut = ResolvePhases(frame.notes);
  SystemColumns found = columns != nullptr ? *columns : summary_.Columns(frame.names);
  for (std::size_t system = 1; system < SystemCount; ++system) {
    bool isSeen = false;
    for (const TypeColumn& column : found[system]) isSeen |= summary_.Count(system, column) != 0;
    if (!isSeen) found[system].clear();
  }
  PutObservationHeader({frame.version, frame.texts, frame.notes, frame.station, frame.marker,
                        frame.dateFrom, frame.phasesAreAligned, frame.names, found, summary_},
                       output.Buffer());
  FindPlaces(found);
  Epoch epoch;
  for (spool_.Rewind(); spool_.Read(epoch);) {
    epoch.time += shift_;
    for (Observed& observed : epoch.observations) {
      if (observed.inMetres) Resolve(observed, frame.names);
    }
    PutEpoch(epoch, output.Buffer());
    output.WriteWhenLarge();
  }
  return leftOut;
}

void ObservationFile::Resolve(Observed& observed, const SignalNames& names) const {
  constexpr double SpeedOfLight = 299792458;
  struct Band {
    char digit;
    double frequency;
    double step;
  };
  constexpr Band Bands[] = {{'1', 1602e6, 0.5625e6}, {'2', 1246e6, 0.4375e6}};
  const char digit = names.Name(SystemOf(observed.key), SignalOf(observed.key))[0];
  double cyclesPerMetre = std::numeric_limits<double>::quiet_NaN();
  for (const Band& band : Bands) {
    if (band.digit != digit || SystemOf(observed.key) != Glonass) continue;
    cyclesPerMetre =
        (band.frequency + band.step * channels_[SatelliteOf(observed.key)]) * (1 / SpeedOfLight);
  }
  observed.phase *= cyclesPerMetre;
  observed.doppler = 0.0 - observed.doppler * cyclesPerMetre;
}

// "> 2026 07 30 00 00 00.0000000  0 35", and an offset of the clock where there is one.
void ObservationFile::PutEpoch(const Epoch& epoch, std::string& out) const {
  constexpr std::size_t HeadLength = 35;
  constexpr std::size_t CountPlace = 32;
  const CalendarTime time = CalendarOf(epoch.time);
  const std::size_t start = out.size();
  out.append("> yyyy mm dd hh mm ss.fffffff  0nnn");
  char* const head = out.data() + start;
  PutDigits(static_cast<std::uint64_t>(time.year), 4, head + 2);
  PutDigits(time.month, 2, head + 7);
  PutDigits(time.day, 2, head + 10);
  PutDigits(static_cast<std::uint64_t>(time.hour), 2, head + 13);
  PutDigits(static_cast<std::uint64_t>(time.minute), 2, head + 16);
  PutDigits(static_cast<std::uint64_t>(time.ofMinute / TicksPerSecond), 2, head + 19);
  PutDigits(static_cast<std::uint64_t>(time.ofMinute % TicksPerSecond), 7, head + 22);
  if (!std::isnan(epoch.clockOffset)) {
    std::array<char, 32> offset{};
    std::snprintf(offset.data(), offset.size(), "      %15.12f", epoch.clockOffset);
    out.append(offset.data());
  }
  out += '\n';
  static_assert(HeadLength == CountPlace + 3);
  const std::size_t count = PutSatellites(epoch, out);
  if (count == 0) {
    out.resize(start);
  } else {
    PutNumber(count, 3, out.data() + start + CountPlace);
  }
}

std::size_t ObservationFile::PutSatellites(const Epoch& epoch, std::string& out) const {
  constexpr unsigned ToSatellite = std::bit_width(SignalRoom - 1);
  std::size_t count = 0;
  const auto end = epoch.observations.end();
  for (auto observed = epoch.observations.begin(); observed != end;) {
    const unsigned satellite = observed->key >> ToSatellite;
    const std::size_t system = SystemOf(observed->key);
    const std::size_t start = out.size();
    out.append(lengths_[system], ' ');
    char* const line = out.data() + start;
    line[0] = SystemLetters[system];
    PutDigits(SatelliteOf(observed->key), 2, line + 1);
    const char* lineEnd = line;
    for (; observed != end && observed->key >> ToSatellite == satellite; ++observed) {
      lineEnd = std::max(lineEnd, PutSignal(*observed, system, line));
    }
    if (lineEnd == line) {
      out.resize(start);
      continue;
    }
    ++count;
    while (lineEnd[-1] == ' ') --lineEnd;
    out.resize(static_cast<std::size_t>(lineEnd - out.data()));
    out += '\n';
  }
  return count;
}

// Returns where the last column of its values ends, `line` where it has none.
const char* ObservationFile::PutSignal(const Observed& observed, std::size_t system,
                                       char* line) const {
  constexpr float TooStrong = 1000;
  const auto& places = places_[system][SignalOf(observed.key)];
  const char* end = line;
  // Where the two digits behind the number stand.
  const auto behind = [&](char* number) {
    end = std::max<const char*>(end, number + ValueWidth);
    return number + NumberWidth;
  };
  const auto put = [&](Value which, double value) -> char* {
    char* const number = line + places[static_cast<std::size_t>(which)];
    return number != line && PutRounded(value, number) ? behind(number) : nullptr;
  };
  const char strength = std::isnan(observed.strength) ? ' ' : StrengthDigit(observed.strength);
  char* const behindRange = put(Value::Pseudorange, observed.pseudorange);
  if (behindRange != nullptr) behindRange[1] = strength;
  char* const behindPhase = put(Value::Phase, observed.phase);
  if (behindPhase != nullptr) {
    if (observed.lossOfLock != 0) behindPhase[0] = static_cast<char>('0' + observed.lossOfLock);
    behindPhase[1] = strength;
  }
  put(Value::Doppler, observed.doppler);
  char* const shown = line + places[static_cast<std::size_t>(Value::Strength)];
  if (shown != line && observed.strength < TooStrong) {
    PutThousandths(HalfUp(observed.strength), shown);
    behind(shown);
  }
  return end;
}

}  // namespace navframe::tool
