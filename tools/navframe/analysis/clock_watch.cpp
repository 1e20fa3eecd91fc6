#include "analysis/clock_watch.h"

#include <algorithm>
#include <cmath>

#include "analysis/pace.h"

namespace navframe::analysis {
namespace {

constexpr std::size_t MostIntervals = 32;  // the longest ones of a message
constexpr std::uint64_t FewestIntervals = 8;
// Of the stream as a whole, some messages of which may come irregularly.
constexpr double LongStep = 10'000;  // ms
constexpr double ManySteps = 10;

std::string NameOf(const NavframeItem& frame) {
  if (frame.address[0] != '\0') return frame.address;
  if (frame.protocol == NavframeRtcm3 && frame.subType != 0) {
    return std::to_string(frame.message) + "-" + std::to_string(frame.subType);
  }
  const std::string name = MessageOf({frame.bytes, frame.length});
  return name.empty() ? std::to_string(frame.message) : name;
}

}  // namespace

void ClockWatch::Row::Add(const Interval& interval) {
  intervals.Add(interval.length);
  const auto longer = [](const Interval& a, const Interval& b) { return a.length > b.length; };
  if (longest.size() < MostIntervals) {
    longest.push_back(interval);
    std::ranges::push_heap(longest, longer);
  } else if (interval.length > longest.front().length) {
    std::ranges::pop_heap(longest, longer);
    longest.back() = interval;
    std::ranges::push_heap(longest, longer);
  }
}

double ClockWatch::Row::Median() const {
  return intervals.Count() < FewestIntervals ? 0 : intervals.Median().value_or(0);
}

double ClockWatch::Row::Usual() const {
  const double median = Median();
  return 4 * intervals.About(median) < 3 * intervals.Count() ? 0 : median;
}

ClockWatch::Row* ClockWatch::RowOf(const NavframeItem& frame) {
  key_.assign(1, static_cast<char>(frame.protocol));
  if (frame.address[0] != '\0') {
    key_ += frame.address;
  } else {
    const std::uint32_t numbers[] = {frame.message, frame.subType};
    key_.append(reinterpret_cast<const char*>(numbers), sizeof numbers);
  }
  const auto place = rows_.find(key_);
  if (place != rows_.end()) return &place->second;
  if (rows_.size() >= MostRows) return nullptr;
  Row& row = rows_[key_];
  row.message = NameOf(frame);
  row.protocol = frame.protocol;
  row.part = part_;
  return &row;
}

void ClockWatch::Jump(const NavframeItem& frame, std::uint64_t offset, std::int64_t time) {
  Place place;
  place.offset = offset;
  place.time = time_;
  place.step = time - time_;
  place.protocol = frame.protocol;
  place.message = NameOf(frame);
  TellBack();
  if (time < time_) {
    back_ = std::move(place);
    backAge_ = 0;
  } else {
    findings_.AddMapped(Cause::ClockAhead, std::move(place));
  }
  Interrupt();
}

// Which is told when it is known that the frames behind it did not come before.
void ClockWatch::TellBack() {
  if (back_) findings_.AddMapped(Cause::ClockBack, std::move(*back_));
  back_.reset();
}

bool ClockWatch::Take(const NavframeItem& frame, std::uint64_t offset, std::int64_t time) {
  constexpr std::uint64_t EnoughFrames = 8;
  if (back_ && ++backAge_ == EnoughFrames) TellBack();
  if (time == NoTime) return false;
  const bool isOther = time != time_;
  if (isOther && isInterrupted_) ++part_;
  isInterrupted_ &= !isOther;
  if (time_ == NoTime) {
    first_ = last_ = time;
  } else if (time < time_ - SecondMs || time > time_ + DayMs) {
    Jump(frame, offset, time);
  }
  time_ = time;
  first_ = std::min(first_, time);
  last_ = std::max(last_, time);
  if (isOther) Note(offset, time, all_);
  if (Row* const row = RowOf(frame)) Note(offset, time, *row);
  return isOther;
}

// It comes at this time.
void ClockWatch::Note(std::uint64_t offset, std::int64_t time, Row& row) const {
  if (row.last != NoTime && row.part == part_) {
    if (time <= row.last) return;
    row.Add({time - row.last, row.last, offset, damage_ > row.lastOffset});
  }
  row.last = time;
  row.lastOffset = offset;
  row.part = part_;
}

// Of all messages that come regularly, one for those that stay away together.
std::vector<ClockWatch::Gap> ClockWatch::Gaps(std::size_t& regular) const {
  std::vector<Gap> all;
  for (const auto& [key, row] : rows_) {
    const double usual = row.Usual();
    if (usual <= 0) continue;
    ++regular;
    for (const Interval& interval : row.longest) {
      const double intervals = static_cast<double>(interval.length) / usual;
      if (intervals <= GapFactor) continue;
      all.push_back({interval, static_cast<std::uint64_t>(std::llround(intervals)) - 1, {&row}});
    }
  }
  std::ranges::sort(all, {}, [](const Gap& gap) {
    return std::pair(gap.interval.offset, gap.rows.front()->message);
  });
  // Whatever comes, and however irregularly.
  for (const Interval& interval : all_.longest) {
    const double length = static_cast<double>(interval.length);
    if (all_.Median() > 0 && length > LongStep && length > ManySteps * all_.Median()) {
      all.push_back({interval, 0, {}});
    }
  }
  std::ranges::stable_sort(all, {}, [](const Gap& gap) { return gap.interval.from; });
  std::vector<Gap> together;
  for (Gap& gap : all) {
    Gap* const last = together.empty() ? nullptr : &together.back();
    if (last == nullptr || gap.interval.from >= last->interval.from + last->interval.length) {
      together.push_back(std::move(gap));
      continue;
    }
    if (gap.interval.length > last->interval.length) {
      gap.interval.hasDamage |= last->interval.hasDamage;
      last->interval = gap.interval;
    }
    last->interval.hasDamage |= gap.interval.hasDamage;
    last->missing = std::max(last->missing, gap.missing);
    for (const Row* const row : gap.rows) {
      if (std::ranges::find(last->rows, row) == last->rows.end()) last->rows.push_back(row);
    }
  }
  std::ranges::stable_sort(together, {}, [](const Gap& gap) { return gap.interval.offset; });
  return together;
}

void ClockWatch::End() {
  TellBack();
  std::size_t regular = 0;
  for (const Gap& gap : Gaps(regular)) {
    const bool isAll = gap.rows.empty() || gap.rows.size() == regular;
    // What a damaged frame leaves open is told as its damage.
    if (gap.interval.hasDamage && (!isAll || gap.missing == 1)) continue;
    Place place;
    place.offset = gap.interval.offset;
    place.time = gap.interval.from;
    place.step = gap.interval.length;
    place.count = gap.missing;
    place.isAll = isAll;
    for (const Row* const row : gap.rows) {
      place.messages.push_back(std::string(navframe_protocol_name(row->protocol)) + " " +
                               row->message);
    }
    findings_.AddMapped(Cause::Gap, std::move(place));
  }
}

}  // namespace navframe::analysis
