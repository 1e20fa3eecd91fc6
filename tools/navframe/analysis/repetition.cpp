#include "analysis/repetition.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace navframe::analysis {
namespace {

std::uint64_t HashOf(const std::uint8_t* bytes, std::size_t length) {
  constexpr std::uint64_t Odd = 0x9E3779B97F4A7C15;
  std::uint64_t hash = length * Odd;
  for (; length >= 8; bytes += 8, length -= 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, 8);
    hash = (hash ^ word) * Odd;
    hash ^= hash >> 29;
  }
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, length);
  hash = (hash ^ word) * Odd;
  return hash ^ hash >> 32;
}

}  // namespace

// The block may have begun earlier: with frames that came again in between.
void Repetition::Begin(std::uint64_t earlier) {
  constexpr std::uint64_t MostBack = 64;
  earlier_ = earlier;
  length_ = 1;
  isTimed_ = At(earlier).setsTime || At(number_).setsTime;
  std::uint64_t back = 1;
  for (; back <= MostBack; ++back) {
    const bool isForgotten = earlier <= back || number_ - (earlier - back) >= Remembered;
    if (isForgotten || number_ - back <= std::max(done_, earlier)) break;
    const Seen& one = At(earlier - back);
    if (one.hash != At(number_ - back).hash) break;
    ++length_;
    isTimed_ |= one.setsTime || At(number_ - back).setsTime;
  }
  const Seen& first = At(number_ - (back - 1));
  block_ = {};
  block_.offset = first.offset;
  block_.time = first.time;
  block_.firstOffset = At(earlier - (back - 1)).offset;
}

std::optional<Place> Repetition::Take(const NavframeItem& frame, std::uint64_t offset,
                                      std::int64_t time, bool setsTime) {
  const std::uint64_t hash = HashOf(frame.bytes, frame.length);
  std::optional<Place> ended;
  const bool goesOn = length_ != 0 && At(earlier_ + 1).hash == hash;
  At(number_) = {hash, offset, offset + frame.length, time, setsTime};
  Latest& latest = places_[hash % places_.size()];
  if (goesOn) {
    ++earlier_;
    ++length_;
    isTimed_ |= setsTime || At(earlier_).setsTime;
  } else {
    ended = End();
    if (latest.number != 0 && latest.hash == hash && number_ - latest.number < Remembered) {
      Begin(latest.number);
    }
  }
  latest = {hash, number_};
  ++number_;
  return ended;
}

std::optional<Place> Repetition::End() {
  const std::uint64_t length = std::exchange(length_, 0);
  if (length < FewestFrames || !std::exchange(isTimed_, false)) return std::nullopt;
  done_ = number_ - 1;
  block_.length = At(number_ - 1).end - block_.offset;
  block_.count = length;
  return block_;
}

}  // namespace navframe::analysis
