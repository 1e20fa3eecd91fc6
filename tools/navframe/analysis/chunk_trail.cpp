#include "analysis/chunk_trail.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace navframe::analysis {
namespace {

constexpr std::uint64_t LineEnd = 2;  // bytes of CR LF

int DigitOf(std::uint8_t byte) {
  if (byte >= '0' && byte <= '9') return byte - '0';
  const int letter = byte | 0x20;
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

}  // namespace

std::int64_t ChunkLength(Bytes line) {
  constexpr std::size_t MostDigits = 8;
  std::int64_t length = 0;
  std::size_t digits = 0;
  while (digits < line.size() && DigitOf(line[digits]) >= 0) {
    length = length * 16 + DigitOf(line[digits]);
    if (++digits > MostDigits) return -1;
  }
  const bool isWhole = digits == line.size() || line[digits] == ';' || line[digits] == ' ';
  return digits != 0 && isWhole ? length : -1;
}

void ChunkTrails::Take(Bytes bytes) {
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t left = bytes.size() - at;
    const auto* const found = std::memchr(bytes.data() + at, '\n', left);
    const std::size_t length =
        found == nullptr
            ? left
            : static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - bytes.data()) - at;
    const std::size_t kept =
        std::min(length, LongestHead + 1 - std::min(LongestHead + 1, line_.size()));
    line_.insert(line_.end(), bytes.data() + at, bytes.data() + at + kept);
    if (length != 0) wasCr_ = bytes[at + length - 1] == '\r';
    position_ += length;
    at += length;
    if (found == nullptr) return;
    ++position_;
    ++at;
    Line();
  }
}

// A line is whole: line_ has it, or its beginning, without LF.
void ChunkTrails::Line() {
  constexpr std::string_view Reply = "HTTP/1.";
  if (lineBegin_ == 0 && line_.size() > Reply.size()) {
    isReply_ = std::equal(Reply.begin(), Reply.end(), line_.begin());
  }
  if (isFollowing_ && lineBegin_ > followed_.next + LineEnd) Close();
  if (isBehindCrLf_ && wasCr_ && line_.size() <= LongestHead && line_.size() > 1) {
    const std::int64_t length = ChunkLength(Bytes(line_).first(line_.size() - 1));
    if (length >= 0) Head(length);
  }
  crLfs_ += wasCr_ ? 1 : 0;
  isBehindBlank_ = wasCr_ && line_.size() == 1 && isBehindCrLf_;
  isBehindCrLf_ = wasCr_;
  wasCr_ = false;
  line_.clear();
  lineBegin_ = position_;
}

void ChunkTrails::Head(std::int64_t length) {
  const std::uint64_t next = position_ + static_cast<std::uint64_t>(length);
  const auto follow = [&](Waiting& one) {
    one.next = next;
    one.trail.end = position_ + (length == 0 ? LineEnd : 0);
    ++one.trail.heads;
  };
  if (isFollowing_) {
    if (lineBegin_ == followed_.next + LineEnd) {
      follow(followed_);
      if (length == 0) Close();
    }
    return;
  }
  const auto one = std::ranges::find_if(
      waiting_, [&](const Waiting& head) { return head.next + LineEnd == lineBegin_; });
  if (one != waiting_.end()) {
    followed_ = *one;
    follow(followed_);
    waiting_.clear();
    isFollowing_ = true;
    if (length == 0) Close();
    return;
  }
  if (length == 0) return;
  const bool isFirst = lineBegin_ == 0 || (isReply_ && isBehindBlank_ && trails_.empty());
  Waiting head;
  head.trail = {lineBegin_, isFirst ? 0 : LineEnd, position_, 1, original_(lineBegin_)};
  head.next = next;
  if (waiting_.size() < MostWaiting) {
    waiting_.push_back(head);
  } else {
    waiting_[oldest_++ % MostWaiting] = head;
  }
}

void ChunkTrails::Close() {
  isFollowing_ = false;
  if (trails_.size() < MostTrails) trails_.push_back(followed_.trail);
}

std::vector<Trail> ChunkTrails::End() {
  if (isFollowing_) Close();
  for (Trail& trail : trails_) trail.end = std::min(trail.end, position_);
  return trails_;
}

}  // namespace navframe::analysis
