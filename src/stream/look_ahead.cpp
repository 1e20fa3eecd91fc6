#include "stream/look_ahead.h"

#include <algorithm>
#include <bit>

#include "base/byte_block.h"

namespace navframe {
SearchedProtocols::SearchedProtocols(std::span<const ProtocolRow* const> rows)
    : count_(rows.size()) {
  for (std::size_t i = 0; i < count_; ++i) {
    const ProtocolRow& row = *rows[i];
    bytes_[i] = row.syncByte;
    rows_[row.syncByte] = &row;
    const auto bit = static_cast<std::uint8_t>(1U << i);
    ofFirst_[row.syncByte] = bit;
    for (std::size_t second = 0; second < ofSecond_.size(); ++second) {
      if (row.mayFollow(static_cast<std::uint8_t>(second))) ofSecond_[second] |= bit;
    }
  }
  std::fill(bytes_.begin() + count_, bytes_.end(), bytes_[0]);
}

template <class Accept>
std::size_t SearchedProtocols::FindSyncByte(const std::uint8_t* data, std::size_t length,
                                            Accept&& accept) const {
  const auto find = [&](const auto& wanted) {
    for (std::size_t at = 0; at < length; at += ByteBlock::Size) {
      std::uint64_t hits = ByteBlock(data + at).EqualToAny(wanted);
      if (length - at < ByteBlock::Size) hits &= (std::uint64_t{1} << (length - at)) - 1;
      for (; hits != 0; hits &= hits - 1) {
        const std::size_t offset = at + static_cast<std::size_t>(std::countr_zero(hits));
        if (accept(offset)) return offset;
      }
    }
    return length;
  };
  if (count_ == 0) return length;
  if (count_ > MostStronger) return find(bytes_);
  std::array<std::uint8_t, MostStronger> few;
  std::copy_n(bytes_.begin(), MostStronger, few.begin());
  return find(few);
}

std::size_t SearchedProtocols::Find(const std::uint8_t* data, std::size_t length) const {
  return FindSyncByte(data, length, [](std::size_t) { return true; });
}

std::uint32_t SearchedProtocols::FindStart(const Head& head, std::uint32_t at,
                                           std::uint32_t end) const {
  const std::uint8_t* const data = head.bytes + at;
  const std::size_t available = head.available - at;
  const auto mayStart = [&](std::size_t offset) {
    return offset + 1 == available || (ofFirst_[data[offset]] & ofSecond_[data[offset + 1]]) != 0;
  };
  return at + static_cast<std::uint32_t>(FindSyncByte(data, end - at, mayStart));
}

void LookAhead::Enter(const Head& head) {
  base_ = farthest_;
  farthest_ = base_ + head.available;
}

Framing LookAhead::FrameAt(const Head& head, std::uint32_t at, const SearchedProtocols& protocols) {
  const ProtocolRow& row = *protocols.RowOf(head.bytes[at]);
  return row.frame(state_, dialect_, {head.bytes + at, head.available - at, base_ + at});
}

LookAhead::Answer LookAhead::Look(const Head& head, std::uint32_t length,
                                  const SearchedProtocols& protocols) {
  if (head.position != head_) {
    head_ = head.position;
    looked_ = 1;
    Enter(head);
  }
  farthest_ = std::max(farthest_, base_ + head.available);
  for (;;) {
    looked_ = protocols.FindStart(head, looked_, length);
    if (looked_ == length) return Answer::None;
    const Verdict verdict = FrameAt(head, looked_, protocols).verdict;
    if (verdict == Verdict::Frame) return Answer::Frame;
    if (verdict == Verdict::NeedMore) return Answer::Open;
    ++looked_;
  }
}

std::uint32_t LookAhead::FindFrame(const Head& head, const SearchedProtocols& protocols) {
  head_ = ~std::uint64_t{0};
  Enter(head);
  for (std::uint32_t at = 1; at < head.available; ++at) {
    at = protocols.FindStart(head, at, head.available);
    if (at == head.available) break;
    if (FrameAt(head, at, protocols).verdict == Verdict::Frame) return at;
  }
  return 0;
}

}  // namespace navframe
