#include "rinex/corrections.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "rinex/ephemeris_lines.h"
#include "rinex/exponent_text.h"
#include "rinex/header_lines.h"

namespace navframe::tool {
namespace {

constexpr std::int64_t Week = 604800;  // s
constexpr std::int64_t BeiDouBehindGps = 14;
constexpr std::uint16_t NoWeek = 65535;
constexpr std::uint32_t NoTow = 0xFFFFFFFF;

// Numbers that TIME SYSTEM CORR has for what UTC is by.
enum UtcNumber : std::uint8_t { NoUtc = 0, UtcOfUsno = 2, UtcOfRussia = 3, UtcOfEurope = 5 };

// Records of logs are packed: their numbers need not lie where a double does.
template <std::size_t Count>
std::array<double, Count> Unpacked(const void* numbers) {
  std::array<double, Count> values;
  std::memcpy(values.data(), numbers, sizeof values);
  return values;
}

// Galileo's only coefficients are those of one line.
template <std::size_t Count>
void PutIonosphericLine(std::string& out, const char* name, const void* numbers, const char* mark) {
  std::string line = std::string(name) + ' ';
  for (const double value : Unpacked<Count>(numbers)) PutExponent(line, value, 4, 12);
  line.append((4 - Count) * 12, ' ');
  PutLine(out, line + ' ' + mark, "IONOSPHERIC CORR");
}

struct TimeOffset {
  const char* name;
  double offset;      // s
  double drift;       // s/s
  std::uint32_t tow;  // s, of the moment for which it is
  std::uint32_t week;
  std::string satellite;  // that sent it; "" for not known
  UtcNumber utc;
};

void PutTimeLine(std::string& out, const TimeOffset& offset) {
  if (std::isnan(offset.offset)) return;
  std::string line = std::string(offset.name) + ' ';
  PutExponent(line, offset.offset, 10, 17);
  PutExponent(line, offset.drift, 9, 16);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), " %6u %4u %-5s %2d", offset.tow, offset.week,
                offset.satellite.c_str(), offset.utc);
  PutLine(out, line + text.data(), "TIME SYSTEM CORR");
}

TimeOffset OffsetOf(const char* name, const UtcLogRecord& record, UtcNumber utc) {
  return {name, record.a0, record.a1, record.tot, record.week, "", utc};
}

// Rows of which the first stands behind an epoch.
void PutIonosphere(std::string& out, const char* of, std::int64_t epoch,
                   const std::array<double, 9>& values) {
  out += std::string("> ION ") + of + "\n    ";
  PutEpoch(out, epoch);
  for (std::size_t i = 0; i < 3; ++i) PutExponent(out, values[i]);
  PutEnd(out);
  for (std::size_t i = 3; i < values.size() && !std::isnan(values[i]); i += 4) {
    const auto at = [&](std::size_t k) { return i + k < values.size() ? values[i + k] : Blank; };
    PutOrbit(out, {at(0), at(1), at(2), at(3)});
  }
}

std::array<double, 9> KlobucharRows(const IonosphereLogRecord& from) {
  const auto a = Unpacked<4>(&from.alpha);
  const auto b = Unpacked<4>(&from.beta);
  return {a[0], a[1], a[2], a[3], b[0], b[1], b[2], b[3], Blank};
}

void PutOffset(std::string& out, const char* of, const char* name, const char* utc,
               std::int64_t epoch, std::initializer_list<double> values) {
  out += std::string("> STO ") + of + "\n    ";
  PutEpoch(out, epoch);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), " %-18s %18s %s", name, "", utc);
  out += text.data();
  PutEnd(out);
  PutOrbit(out, values);
}

void PutUtcOffset(std::string& out, const char* of, const char* name, const char* utc,
                  const UtcLogRecord& from, std::int64_t gpsSeconds) {
  PutOffset(out, of, name, utc, from.week * Week + from.tot,
            {static_cast<double>(gpsSeconds % Week), from.a0, from.a1, 0});
}

// Lines hold any number.
bool IsSound(const UtcLogRecord& record) {
  constexpr std::uint32_t LargestWeek = 9999;  // of four digits
  return record.tot < Week && record.week <= LargestWeek;
}

bool TellsOffsets(const GlonassEphemerisRecord& record) {
  constexpr std::uint16_t LastDay = 1461;  // casters that do not know the offsets say day 0
  return record.na >= 1 && record.na <= LastDay && !std::isnan(record.tauC);
}

}  // namespace

void Corrections::Take(const NavframeItem& item) {
  if (item.protocol != NavframeAsciiLog) return;
  if (item.time.week == NoWeek || item.time.tow == NoTow) return;
  const std::int64_t now = item.time.week * Week + item.time.tow / 1000;
  const auto keep = [&]<class Record>(std::optional<Timed<Record>>& to) {
    to.emplace().gpsSeconds = now;
    std::memcpy(&to->record, item.record, sizeof to->record);
  };
  switch (item.kind->id) {
    case LogIdGpsIonosphere:
      return keep(gpsIonosphere_);
    case LogIdBdsIonosphere:
      return keep(beiDouIonosphere_);
    case LogIdGalileoIonosphere:
      return keep(galileoIonosphere_);
    case LogIdGpsUtc:
      keep(gpsUtc_);
      if (!IsSound(gpsUtc_->record)) gpsUtc_.reset();
      return;
    case LogIdGalileoUtc:
      keep(galileoUtc_);
      if (!IsSound(galileoUtc_->record)) galileoUtc_.reset();
      return;
    default:
      return;
  }
}

void Corrections::Take(const GlonassEphemerisRecord& record) {
  if (TellsOffsets(record)) glonass_ = record;
}

void Corrections::PutHeaderLines(std::string& out) const {
  if (gpsIonosphere_) {
    PutIonosphericLine<4>(out, "GPSA", &gpsIonosphere_->record.alpha, "");
    PutIonosphericLine<4>(out, "GPSB", &gpsIonosphere_->record.beta, "");
  }
  if (galileoIonosphere_) {
    PutIonosphericLine<3>(out, "GAL ", &galileoIonosphere_->record.effectiveIonisation, "");
  }
  if (beiDouIonosphere_) {  // with the hour in which it was sent, A to X
    const std::int64_t seconds = beiDouIonosphere_->gpsSeconds - BeiDouBehindGps;
    const char hour[] = {static_cast<char>('A' + seconds / 3600 % 24), '\0'};
    PutIonosphericLine<4>(out, "BDSA", &beiDouIonosphere_->record.alpha, hour);
    PutIonosphericLine<4>(out, "BDSB", &beiDouIonosphere_->record.beta, hour);
  }
  if (gpsUtc_) PutTimeLine(out, OffsetOf("GPUT", gpsUtc_->record, UtcOfUsno));
  if (galileoUtc_) PutTimeLine(out, OffsetOf("GAUT", galileoUtc_->record, UtcOfEurope));
  if (glonass_) {  // whose offsets have no drift, and so no moment
    const std::string satellite = SatelliteText('R', glonass_->satellite);
    PutTimeLine(out, {"GLUT", -glonass_->tauC, 0, 0, 0, satellite, UtcOfRussia});
    PutTimeLine(out, {"GLGP", glonass_->tauGps, 0, 0, 0, satellite, NoUtc});
  }
}

void Corrections::PutRecords(std::string& out) const {
  if (gpsIonosphere_) {
    PutIonosphere(out, "G   LNAV", gpsIonosphere_->gpsSeconds,
                  KlobucharRows(gpsIonosphere_->record));
  }
  if (galileoIonosphere_) {
    const auto values = Unpacked<3>(&galileoIonosphere_->record.effectiveIonisation);
    PutIonosphere(out, "E   IFNV", galileoIonosphere_->gpsSeconds,
                  {values[0], values[1], values[2], 0, Blank, Blank, Blank, Blank, Blank});
  }
  if (beiDouIonosphere_) {
    PutIonosphere(out, "C   D1D2", beiDouIonosphere_->gpsSeconds - BeiDouBehindGps,
                  KlobucharRows(beiDouIonosphere_->record));
  }
  if (gpsUtc_) {
    PutUtcOffset(out, "G   LNAV", "GPUT", "UTC(USNO)", gpsUtc_->record, gpsUtc_->gpsSeconds);
  }
  if (galileoUtc_) {
    PutUtcOffset(out, "E   IFNV", "GAUT", "UTCGAL", galileoUtc_->record, galileoUtc_->gpsSeconds);
  }
}

void GlonassOffsets::Put(std::string& out, const GlonassEphemerisRecord& record) {
  if (!TellsOffsets(record)) return;
  const Written offsets{record.na, record.tauC, std::isnan(record.tauGps) ? 0 : record.tauGps};
  if (std::ranges::find(written_, offsets) != written_.end()) return;
  written_[next_++ % written_.size()] = offsets;
  const std::string of = SatelliteText('R', record.satellite) + " FDMA";
  const std::int64_t epoch = EpochOf(record);
  PutOffset(out, of.c_str(), "GLUT", "UTC(SU)", epoch, {FrameTime(record), -record.tauC, 0, 0});
  if (std::isnan(record.tauGps)) return;
  PutOffset(out, of.c_str(), "GLGP", "", epoch, {FrameTime(record), record.tauGps, 0, 0});
}

}  // namespace navframe::tool
