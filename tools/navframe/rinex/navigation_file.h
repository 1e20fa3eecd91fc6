// Navigation files of RINEX.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "navframe/stream.h"
#include "outputs/outputs.h"
#include "rinex/corrections.h"
#include "rinex/ephemeris_lines.h"
#include "rinex/ephemeris_spool.h"

namespace navframe::tool {

// What the header says that no ephemeris does.
struct NavigationHeader {
  std::string runBy;  // "" for not known
  std::chrono::sys_seconds date;
  std::vector<std::string> comments;  // such as where the week comes from
};

// One file: each ephemeris once, those of several sources too, in the order of the time in their
// first line, then by the letter of the system and the number of the satellite. Memory stays flat,
// see EphemerisSpool.
class NavigationFile {
 public:
  explicit NavigationFile(NavigationVersion version) : version_(version) {}

  // Keeps what is an ephemeris or a correction of the records that a stream in NavframeStandard
  // makes, and leaves all others.
  void Take(const NavframeItem& item);
  bool IsEmpty() const { return spool_.IsEmpty(); }
  // Ephemerides that were left out since no date of the stream said which their weeks are.
  std::uint64_t Undated() const { return undated_; }
  // Writes the file and keeps nothing. Returns the number of ephemerides.
  std::uint64_t Write(const NavigationHeader& header, Output& to);

 private:
  void PutHeader(const NavigationHeader& header, std::string& out) const;

  const NavigationVersion version_;
  EphemerisSpool spool_;
  std::uint64_t taken_ = 0;
  std::uint64_t undated_ = 0;
  std::string systems_;  // letters, each once
  std::optional<std::int32_t> leapSeconds_;
  Corrections corrections_;
};

}  // namespace navframe::tool
