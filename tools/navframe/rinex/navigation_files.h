// The navigation files of a run: one, or one for each hour or day.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "navframe/stream.h"
#include "rinex/file_names.h"
#include "rinex/gps_time.h"
#include "rinex/navigation_file.h"

namespace navframe::tool {

struct NavigationFilesOptions {
  const FileNaming& naming;
  NavigationVersion version;
  const std::string& runBy;
  const std::vector<SatelliteName>& satellites;  // none for all
};

// What files are made of that is known at their end alone.
struct NavigationFacts {
  std::string dateFrom;  // what tells the weeks
  std::optional<int> leapSeconds;
};

// An ephemeris belongs to the period in which it came, and so stands in every file of one in which
// a caster repeats it. There is no file without any.
class NavigationFiles {
 public:
  using Facts = std::function<NavigationFacts()>;

  NavigationFiles(const NavigationFilesOptions& options, Facts facts)
      : options_(options), facts_(std::move(facts)) {}

  // Every item. What was written before is complete when an ephemeris comes in a later period.
  void Take(const NavframeItem& item);
  // Writes the last file.
  void End();

  std::uint64_t Ephemerides() const { return ephemerides_; }  // written
  // Left out: see NavigationFile.
  std::uint64_t Undated() const { return undated_; }
  std::uint64_t Damaged() const { return damaged_; }

 private:
  struct Span {
    Ticks first;
    Ticks last;
  };
  void NoteObserved(const NavframeTime& time);
  static void Widen(std::optional<Span>& span, Ticks time);

  const NavigationFilesOptions options_;
  const Facts facts_;
  std::unique_ptr<NavigationFile> file_;
  Ticks period_ = 0;              // of file_
  std::optional<Span> came_;      // ephemerides of file_
  std::optional<Span> observed_;  // observations: a file of all says that it is of the same time
  std::optional<std::uint32_t> firstTow_;  // of them, ms
  std::uint64_t ephemerides_ = 0;
  std::uint64_t undated_ = 0;
  std::uint64_t damaged_ = 0;
};

}  // namespace navframe::tool
