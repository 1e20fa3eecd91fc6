#include "rinex/navigation_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "navframe/records.h"
#include "rinex/exponent_text.h"
#include "rinex/header_lines.h"

namespace navframe::tool {
namespace {

constexpr std::uint16_t NoWeek = 65535;
constexpr unsigned LargestSatellite = 99;  // of two digits

bool IsDated(const KeplerEphemerisRecord& record) {
  return record.toeWeek != NoWeek && record.tocWeek != NoWeek;
}
bool IsDated(const GlonassEphemerisRecord& record) { return record.reference.week != NoWeek; }

char LetterOf(const KeplerEphemerisRecord& record) { return SystemLetter(record.system); }
char LetterOf(const GlonassEphemerisRecord&) { return 'R'; }

EphemerisKey KeyOf(const KeplerEphemerisRecord& record) {
  constexpr std::int64_t Week = 604800;  // s
  return {EpochOf(record),
          LetterOf(record),
          record.satellite,
          record.navigationMessage,
          record.toeWeek * Week + std::llround(record.toe),
          record.issueOfData,
          record.issueOfClock,
          record.health};
}
EphemerisKey KeyOf(const GlonassEphemerisRecord& record) {
  const std::int64_t epoch = EpochOf(record);
  return {epoch, 'R', record.satellite, 0, epoch, 0, 0, record.unhealthy};
}

template <class Record>
Record Copy(const NavframeItem& item) {
  Record record;
  std::memcpy(&record, item.record, sizeof record);
  return record;
}

bool TellsOffsets(const GlonassEphemerisRecord& record) {
  return !std::isnan(record.tauC) || !std::isnan(record.tauGps);
}

// Offsets of GLONASS time that were written lately: the satellites send the same ones, and change
// to others one after the other.
class OffsetsWritten {
 public:
  bool IsNew(const GlonassEphemerisRecord& record) {
    const Offsets offsets{record.na, {record.tauC, record.tauGps}};
    if (!TellsOffsets(record) || std::ranges::find(written_, offsets) != written_.end()) {
      return false;
    }
    written_[next_++ % written_.size()] = offsets;
    return true;
  }

 private:
  struct Offsets {
    std::uint16_t day = 0;  // none, those of GLONASS start with 1
    std::array<double, 2> values{};
    // Unknown ones are equal, too.
    bool operator==(const Offsets& other) const {
      return day == other.day && std::memcmp(&values, &other.values, sizeof values) == 0;
    }
  };
  std::array<Offsets, 64> written_;
  std::size_t next_ = 0;
};

}  // namespace

void NavigationFile::Take(const NavframeItem& item) {
  if (item.type != NavframeItemRecord || item.record == nullptr) return;
  const auto add = [&](const auto& record) {
    const char letter = LetterOf(record);
    if (letter == '\0' || record.satellite == 0 || record.satellite > LargestSatellite) return;
    if (!IsDated(record)) {
      ++undated_;
      return;
    }
    leapSeconds_ = item.time.leapSeconds;
    NoteOffsets(record);
    if (systems_.find(letter) == systems_.npos) systems_ += letter;
    spool_.Add({KeyOf(record), record.rtcmMessage != 0, taken_++, record});
  };
  switch (item.kind->id) {
    case EphemerisIdGps:
    case EphemerisIdGalileo:
    case EphemerisIdBeiDou:
    case EphemerisIdQzss:
    case EphemerisIdNavIc:
      return add(Copy<KeplerEphemerisRecord>(item));
    case EphemerisIdGlonass:
      return add(Copy<GlonassEphemerisRecord>(item));
    default:
      return;
  }
}

void NavigationFile::NoteOffsets(const GlonassEphemerisRecord& record) {
  if (TellsOffsets(record)) offsets_ = record;
}

std::uint64_t NavigationFile::Write(const NavigationHeader& header, Output& to) {
  PutHeader(header, to.Buffer());
  std::uint64_t written = 0;
  OffsetsWritten offsets;
  spool_.Drain([&](const Ephemeris& ephemeris) {
    const auto* const glonass = std::get_if<GlonassEphemerisRecord>(&ephemeris.record);
    if (version_ == NavigationVersion::V402 && glonass != nullptr && offsets.IsNew(*glonass)) {
      PutTimeOffsets(to.Buffer(), *glonass);
    }
    std::visit([&](const auto& record) { PutEphemeris(to.Buffer(), record, version_); },
               ephemeris.record);
    ++written;
    to.WriteWhenLarge();
  });
  return written;
}

void NavigationFile::PutHeader(const NavigationHeader& header, std::string& out) const {
  PutFirstLines(out, {VersionText(version_), 'N', systems_.size() == 1 ? systems_[0] : 'M',
                      header.runBy, header.date});
  for (const std::string& comment : header.comments) PutComment(out, comment);
  if (version_ == NavigationVersion::V305) PutTimeCorrections(out);
  if (leapSeconds_) {
    std::array<char, 16> text;
    std::snprintf(text.data(), text.size(), "%6d", *leapSeconds_);
    PutLine(out, text.data(), "LEAP SECONDS");
  }
  PutLine(out, "", "END OF HEADER");
}

// Version 4 has them among the ephemerides.
void NavigationFile::PutTimeCorrections(std::string& out) const {
  if (!offsets_) return;
  const auto put = [&](std::string line, double value, int utc) {
    if (std::isnan(value)) return;
    PutExponent(line, value, 10, 17);
    PutExponent(line, 0, 9, 16);
    std::array<char, 48> text;  // without a time, as there is no rate
    std::snprintf(text.data(), text.size(), " %6d %4d R%02u   %2d", 0, 0,
                  unsigned{offsets_->satellite}, utc);
    PutLine(out, line + text.data(), "TIME SYSTEM CORR");
  };
  constexpr int UtcOfRussia = 3;
  put("GLUT ", -offsets_->tauC, UtcOfRussia);
  put("GLGP ", offsets_->tauGps, 0);
}

}  // namespace navframe::tool
