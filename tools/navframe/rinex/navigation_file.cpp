#include "rinex/navigation_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <type_traits>
#include <utility>

#include "navframe/records.h"
#include "navframe/stream.hpp"
#include "rinex/header_lines.h"
#include "rinex/late_weeks.h"

namespace navframe::tool {
namespace {

constexpr std::int64_t Week = 604800;  // s
constexpr std::uint16_t NoWeek = 65535;
constexpr unsigned LargestSatellite = 99;  // of two digits

bool IsDated(const KeplerEphemerisRecord& record) {
  return record.toeWeek != NoWeek && record.tocWeek != NoWeek;
}
bool IsDated(const GlonassEphemerisRecord& record) { return record.reference.week != NoWeek; }

// What no satellite sends: damage that a checksum did not tell, or a caster's fault.
bool IsSound(const KeplerEphemerisRecord& record) {
  const auto isOfWeek = [](double time) { return time >= 0 && time < Week; };
  return isOfWeek(record.toe) && isOfWeek(record.toc) &&
         (std::isnan(record.transmissionTime) || isOfWeek(record.transmissionTime));
}
bool IsSound(const GlonassEphemerisRecord& record) {
  constexpr std::uint32_t Day = 86400;  // s
  return record.tb < Day && record.frameTime < Day;
}

char LetterOf(const KeplerEphemerisRecord& record) { return SystemLetter(record.system); }
char LetterOf(const GlonassEphemerisRecord&) { return 'R'; }

EphemerisKey KeyOf(const KeplerEphemerisRecord& record) {
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

}  // namespace

std::vector<const NavframeKind*> NavigationFile::Kinds() {
  return kindsOf<KeplerEphemerisRecord, GlonassEphemerisRecord, IonosphereLogRecord,
                 GalileoIonosphereLogRecord, UtcLogRecord>();
}

// Those without two digits have no place in the file.
bool NavigationFile::IsWanted(char system, std::uint8_t satellite) const {
  if (system == '\0' || satellite == 0 || satellite > LargestSatellite) return false;
  return satellites_.empty() || std::ranges::any_of(satellites_, [&](const SatelliteName& name) {
           return name.system == system && (name.number == 0 || name.number == satellite);
         });
}

void NavigationFile::Take(const NavframeItem& item) {
  if (item.type != NavframeItemRecord || item.record == nullptr) return;
  if (item.time.week != NoWeek) DateWaiting(item.time);
  leapSeconds_ = item.time.leapSeconds;
  switch (item.kind->id) {
    case EphemerisIdGps:
    case EphemerisIdGalileo:
    case EphemerisIdBeiDou:
    case EphemerisIdQzss:
    case EphemerisIdNavIc:
      return Judge(Copy<KeplerEphemerisRecord>(item));
    case EphemerisIdGlonass:
      return Judge(Copy<GlonassEphemerisRecord>(item));
    default:
      return corrections_.Take(item);
  }
}

template <class Record>
void NavigationFile::Judge(const Record& record) {
  constexpr std::size_t MostWaiting = 1024;
  if (!IsWanted(LetterOf(record), record.satellite)) return;
  if (!IsSound(record)) {
    ++damaged_;
  } else if (IsDated(record)) {
    Add(record);
  } else if (waiting_.size() < MostWaiting) {
    waiting_.emplace_back(record);
  } else {
    ++undated_;
  }
}

void NavigationFile::DateWaiting(const NavframeTime& time) {
  for (auto& waiting : std::exchange(waiting_, {})) {
    std::visit(
        [&](auto& record) {
          if (DateLate(record, time)) {
            Add(record);
          } else {
            ++undated_;
          }
        },
        waiting);
  }
}

template <class Record>
void NavigationFile::Add(const Record& record) {
  const EphemerisKey key = KeyOf(record);
  if constexpr (std::is_same_v<Record, GlonassEphemerisRecord>) corrections_.Take(record);
  if (systems_.find(key.system) == systems_.npos) systems_ += key.system;
  firstEpoch_ = std::min(firstEpoch_, key.epoch);
  lastEpoch_ = std::max(lastEpoch_, key.epoch);
  isFromCaster_ &= record.rtcmMessage != 0;
  spool_.Add({key, record.rtcmMessage != 0, taken_++, record});
}

std::uint64_t NavigationFile::Write(const NavigationHeader& header, Output& to) {
  PutHeader(header, to.Buffer());
  if (version_ == NavigationVersion::V402) corrections_.PutRecords(to.Buffer());
  std::uint64_t written = 0;
  GlonassOffsets offsets;
  spool_.Drain([&](const Ephemeris& ephemeris) {
    const auto* const glonass = std::get_if<GlonassEphemerisRecord>(&ephemeris.record);
    if (version_ == NavigationVersion::V402 && glonass != nullptr) {
      offsets.Put(to.Buffer(), *glonass);
    }
    std::visit([&](const auto& record) { PutEphemeris(to.Buffer(), record, version_); },
               ephemeris.record);
    ++written;
    to.WriteWhenLarge();
  });
  return written;
}

void NavigationFile::PutHeader(const NavigationHeader& header, std::string& out) const {
  PutFirstLines(out, {VersionText(version_), 'N', System(), header.runBy, header.date});
  for (const std::string& comment : header.comments) PutComment(out, comment);
  if (version_ == NavigationVersion::V305) corrections_.PutHeaderLines(out);
  // Version 4 must have them: then those that the stream goes by, told or not.
  const auto leapSeconds =
      header.leapSeconds || version_ == NavigationVersion::V305 ? header.leapSeconds : leapSeconds_;
  if (leapSeconds) {
    std::array<char, 16> text;
    std::snprintf(text.data(), text.size(), "%6d", *leapSeconds);
    PutLine(out, text.data(), "LEAP SECONDS");
  }
  PutLine(out, "", "END OF HEADER");
}

}  // namespace navframe::tool
