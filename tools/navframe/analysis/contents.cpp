#include "analysis/contents.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace navframe::analysis {
namespace {

// Adds a list's entries to those that stand for the same.
template <class One, class IsSame, class Sum>
void AddTo(std::vector<One>& list, const std::vector<One>& others, IsSame isSame, Sum sum) {
  for (const One& one : others) {
    const auto place =
        std::ranges::find_if(list, [&](const One& ours) { return isSame(ours, one); });
    if (place == list.end()) {
      list.push_back(one);
    } else {
      sum(*place, one);
    }
  }
}

template <class Value, class Better>
void Take(std::optional<Value>& ours, const std::optional<Value>& theirs, Better better) {
  if (theirs && (!ours || better(*theirs, *ours))) ours = theirs;
}

void Add(const Rhythm& from, Rhythm& to) {
  if (from.intervals > to.intervals) to.usual = from.usual;
  to.count += from.count;
  to.timed += from.timed;
  to.bursts += from.bursts;
  to.intervals += from.intervals;
  to.elapsed += from.elapsed;
  to.jumps += from.jumps;
  Take(to.first, from.first, std::less{});
  Take(to.last, from.last, std::greater{});
  if (from.gap && (!to.gap || *from.gap > *to.gap)) {
    to.gap = from.gap;
    to.gapFrom = from.gapFrom;
  }
}

// Without a common calendar there are no times, but durations.
void ForgetTimes(Rhythm& rhythm) { rhythm.first = rhythm.last = rhythm.gapFrom = std::nullopt; }

void ForgetTimes(Contents& contents) {
  contents.first = contents.last = std::nullopt;
  contents.known = TimeKnown::Nothing;
  for (Message& message : contents.messages) ForgetTimes(message.rhythm);
  for (KindCount& kind : contents.kinds) ForgetTimes(kind.rhythm);
}

void Add(const Message& from, Message& to) {
  for (const NavframeKind* kind : from.kinds) {
    if (std::ranges::find(to.kinds, kind) == to.kinds.end()) to.kinds.push_back(kind);
  }
  to.bytes += from.bytes;
  to.undecoded += from.undecoded;
  to.badContent += from.badContent;
  to.badField += from.badField;
  Add(from.rhythm, to.rhythm);
}

}  // namespace

void PositionFound::Add(const PositionFound& others) {
  if (others.source > source) return;
  if (others.source < source) *this = {};
  source = others.source;
  hasHeight |= others.hasHeight;
  cloud.Add(others.cloud);
  for (std::size_t i = 0; i < FixQualities; ++i) qualities[i] += others.qualities[i];
}

std::uint64_t Contents::Frames() const {
  std::uint64_t frames = 0;
  for (const ProtocolShare& share : protocols) frames += share.frames;
  return frames;
}

// Only with dates do times of two recordings stand for the same.
void Contents::MatchTimes(Contents& theirs) {
  if (theirs.known == TimeKnown::Nothing) return;
  const bool isFirst = known == TimeKnown::Nothing && hasOneCalendar;
  if (isFirst || (known == TimeKnown::Date && theirs.known == TimeKnown::Date)) {
    known = theirs.known;
    return;
  }
  if (known != TimeKnown::Date) ForgetTimes(*this);
  if (theirs.known == TimeKnown::Date) {
    known = TimeKnown::Date;
  } else {
    ForgetTimes(theirs);
  }
  hasOneCalendar = false;
}

void Contents::Add(const Contents& others) {
  Contents theirs = others;
  MatchTimes(theirs);
  bytes += theirs.bytes;
  if (theirs.known == known) leapSeconds = theirs.leapSeconds;
  Take(first, theirs.first, std::less{});
  Take(last, theirs.last, std::greater{});
  jumps += theirs.jumps;
  AddTo(
      protocols, theirs.protocols,
      [](const auto& one, const auto& other) { return one.protocol == other.protocol; },
      [](auto& to, const auto& from) {
        to.frames += from.frames;
        to.bytes += from.bytes;
      });
  AddTo(
      messages, theirs.messages,
      [](const auto& one, const auto& other) {
        return one.protocol == other.protocol && one.message == other.message;
      },
      [](auto& to, const auto& from) { analysis::Add(from, to); });
  std::ranges::stable_sort(messages, {}, [](const Message& one) {
    return std::pair(one.protocol, std::string_view(one.message));
  });
  while (messages.size() > MessageTable::MostMessages) {
    unlistedFrames += messages.back().rhythm.count;
    messages.pop_back();
  }
  AddTo(
      kinds, theirs.kinds,
      [](const auto& one, const auto& other) { return one.kind == other.kind; },
      [](auto& to, const auto& from) { analysis::Add(from.rhythm, to.rhythm); });
  std::ranges::sort(protocols, {}, &ProtocolShare::protocol);
  std::ranges::sort(kinds, {},
                    [](const KindCount& one) { return std::pair(one.kind->source, one.kind->id); });
  AddTo(
      rejections, theirs.rejections,
      [](const auto& one, const auto& other) {
        return one.protocol == other.protocol && one.reason == other.reason;
      },
      [](auto& to, const auto& from) { to.count += from.count; });
  unlistedFrames += theirs.unlistedFrames;
  announced.Add(theirs.announced);
  seen.Add(theirs.seen);
  position.Add(theirs.position);
  outside.bytes += theirs.outside.bytes;
  outside.places += theirs.outside.places;
  outside.longest = std::max(outside.longest, theirs.outside.longest);
  outside.firstOffset = outside.longestOffset = std::nullopt;  // offsets are of one recording
}

}  // namespace navframe::analysis
