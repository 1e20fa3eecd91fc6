// Where the time of a recording jumps, and where messages that come regularly stay away.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "analysis/finding_list.h"
#include "analysis/frame_check.h"
#include "analysis/intervals.h"
#include "navframe/stream.h"

namespace navframe::analysis {

class ClockWatch {
 public:
  explicit ClockWatch(FindingList& findings) : findings_(findings) {}

  // A frame. Answers whether the time is another with it.
  bool Take(const NavframeItem& frame, std::uint64_t offset, std::int64_t time);
  // Bytes that are damage stand here.
  void Damage(std::uint64_t offset) { damage_ = offset; }
  // The intervals to what comes next say nothing, nor do those up to the next other time: until
  // then what comes has the time before.
  void Interrupt() {
    ++part_;
    isInterrupted_ = true;
  }
  // The last frame is one of a block that came before: its time goes back for that.
  void Repeated() {
    back_.reset();
    Interrupt();
  }
  void End();

  std::int64_t First() const { return first_; }
  std::int64_t Last() const { return last_; }

 private:
  static constexpr std::size_t MostRows = 1024;

  struct Interval {
    std::int64_t length = 0;
    std::int64_t from = 0;
    std::uint64_t offset = 0;  // of what comes behind it
    bool hasDamage = false;
  };
  // Intervals of one message.
  struct Row {
    std::string message;
    std::uint32_t protocol = 0;
    std::int64_t last = NoTime;
    std::uint64_t lastOffset = 0;
    std::uint64_t part = 0;
    Intervals intervals;
    std::vector<Interval> longest;

    void Add(const Interval& interval);
    // ms; 0 of too few intervals.
    double Median() const;
    // The same; 0 when most of them are unlike it, too.
    double Usual() const;
  };
  struct Gap {
    Interval interval;
    std::uint64_t missing = 0;
    std::vector<const Row*> rows;  // none: nothing at all comes, however irregularly
  };

  void Jump(const NavframeItem& frame, std::uint64_t offset, std::int64_t time);
  void TellBack();
  Row* RowOf(const NavframeItem& frame);
  void Note(std::uint64_t offset, std::int64_t time, Row& row) const;
  std::vector<Gap> Gaps(std::size_t& regular) const;

  FindingList& findings_;
  std::unordered_map<std::string, Row> rows_;
  Row all_;  // times of the stream
  std::string key_;
  std::int64_t time_ = NoTime;
  std::int64_t first_ = NoTime;
  std::int64_t last_ = NoTime;
  std::uint64_t part_ = 0;
  bool isInterrupted_ = false;
  std::optional<Place> back_;  // the time went back, a few frames ago
  std::uint64_t backAge_ = 0;
  std::uint64_t damage_ = 0;
};

}  // namespace navframe::analysis
