// Navigation files of RINEX.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "navframe/stream.h"
#include "outputs/outputs.h"
#include "records/satellite_names.h"
#include "rinex/corrections.h"
#include "rinex/ephemeris_lines.h"
#include "rinex/ephemeris_spool.h"

namespace navframe::tool {

// What the header says that no ephemeris does.
struct NavigationHeader {
  std::string runBy;  // "" for not known
  std::chrono::sys_seconds date;
  std::vector<std::string> comments;  // such as where the week comes from
  std::optional<int> leapSeconds;     // GPS time less UTC, if anything told them
};

// One file: each ephemeris once, those of several sources too, in the order of the time in their
// first line, then by the letter of the system and the number of the satellite. Memory stays flat,
// see EphemerisSpool.
class NavigationFile {
 public:
  // The kinds of records that Take keeps.
  static std::vector<const NavframeKind*> Kinds();

  // Of these satellites and systems alone; none for all.
  explicit NavigationFile(NavigationVersion version, std::vector<SatelliteName> satellites = {})
      : version_(version), satellites_(std::move(satellites)) {}

  // Keeps what is an ephemeris or a correction of the records that a stream in NavframeStandard
  // makes. Of all others that come it takes the time: ephemerides wait for the week.
  void Take(const NavframeItem& item);
  bool IsEmpty() const { return spool_.IsEmpty(); }
  // The letter of the one satellite system; 'M' for several.
  char System() const { return systems_.size() == 1 ? systems_[0] : 'M'; }
  // Whether no satellite's own message told any of them.
  bool IsFromCaster() const { return isFromCaster_; }
  // Of the first lines, s since 1980-01-06; of a file that is not empty.
  std::int64_t FirstEpoch() const { return firstEpoch_; }
  std::int64_t LastEpoch() const { return lastEpoch_; }
  // Ephemerides that were left out since no date of the stream said which their weeks are.
  std::uint64_t Undated() const { return undated_ + waiting_.size(); }
  // Those that were left out since their times are none of a week, or of a day.
  std::uint64_t Damaged() const { return damaged_; }
  // Writes the file and keeps nothing. Returns the number of ephemerides.
  std::uint64_t Write(const NavigationHeader& header, Output& to);

 private:
  template <class Record>
  void Judge(const Record& record);
  void DateWaiting(const NavframeTime& time);
  template <class Record>
  void Add(const Record& record);
  bool IsWanted(char system, std::uint8_t satellite) const;
  void PutHeader(const NavigationHeader& header, std::string& out) const;

  const NavigationVersion version_;
  const std::vector<SatelliteName> satellites_;
  EphemerisSpool spool_;
  // Those that came before the stream told its week.
  std::vector<std::variant<KeplerEphemerisRecord, GlonassEphemerisRecord>> waiting_;
  std::uint64_t taken_ = 0;
  std::uint64_t undated_ = 0;
  std::uint64_t damaged_ = 0;
  std::string systems_;  // letters, each once
  bool isFromCaster_ = true;
  std::int64_t firstEpoch_ = std::numeric_limits<std::int64_t>::max();
  std::int64_t lastEpoch_ = 0;
  std::optional<int> leapSeconds_;  // in use
  Corrections corrections_;
};

}  // namespace navframe::tool
