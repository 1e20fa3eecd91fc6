#include "stream/look_ahead.h"

#include <algorithm>
#include <bit>

#include "base/byte_block.h"

namespace navframe {
namespace {

// The search knows the heads of all frames that are stronger than some other.
constexpr bool KnowsStrongerHeads(std::span<const ProtocolRow> rows) {
  for (const ProtocolRow& row : rows) {
    for (unsigned second = 0; second < 256 && row.rank != Rank::EightBits; ++second) {
      const auto byte = static_cast<std::uint8_t>(second);
      const bool known = StrongHeads<true>::IsHead(row.syncByte, byte);
      const bool knownAlone = StrongHeads<false>::IsHead(row.syncByte, byte);
      if (known != row.mayFollow(byte) || knownAlone != (known && row.rank == Rank::Crc)) {
        return false;
      }
    }
  }
  return true;
}
static_assert(KnowsStrongerHeads(Protocols) && KnowsStrongerHeads(StreamProtocols));

}  // namespace

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
  if (count_ == 0) return length;
  for (std::size_t at = 0; at < length; at += ByteBlock::Size) {
    std::uint64_t hits = ByteBlock(data + at).EqualToAny(bytes_);
    if (length - at < ByteBlock::Size) hits &= (std::uint64_t{1} << (length - at)) - 1;
    for (; hits != 0; hits &= hits - 1) {
      const std::size_t offset = at + static_cast<std::size_t>(std::countr_zero(hits));
      if (accept(offset)) return offset;
    }
  }
  return length;
}

std::size_t SearchedProtocols::Find(const std::uint8_t* data, std::size_t length) const {
  return FindSyncByte(data, length, [](std::size_t) { return true; });
}

std::uint32_t SearchedProtocols::FindStart(const Head& head, std::uint32_t at,
                                           std::uint32_t end) const {
  const std::uint8_t* const data = head.bytes + at;
  const std::size_t available = head.available - at;
  const auto mayStart = [&](std::size_t offset) {
    return offset + 1 == available || MayStart(data[offset], data[offset + 1]);
  };
  return at + static_cast<std::uint32_t>(FindSyncByte(data, end - at, mayStart));
}

// The search for heads goes on behind the frame for so many bytes, which belong to the next ones:
// few of them in vain, as a stronger frame among these ends the search by its head.
void StrongerFrames::FindNext(const Head& head, std::uint32_t length) {
  constexpr std::uint32_t Ahead = 4096;
  const auto from = static_cast<std::uint32_t>(next_ - head.position);
  const std::uint32_t until = std::min(head.available, length + Ahead);
  const std::uint8_t* const bytes = head.bytes + from;
  const std::size_t found = than_ == Rank::EightBits
                                ? StrongHeads<true>::Find(bytes, until - from)
                                : StrongHeads<false>::Find(bytes, until - from);
  next_ += found;
  isHead_ = found < until - from;
}

StrongerFrames::Answer StrongerFrames::Search(const Head& head, std::uint32_t length, bool ended) {
  const std::uint64_t end = head.position + length;
  if (next_ <= head.position) {
    next_ = head.position + 1;
    isHead_ = false;
  }
  for (;;) {
    if (!isHead_ && next_ < end) FindNext(head, length);
    if (next_ >= end) return Answer::None;
    const auto at = static_cast<std::uint32_t>(next_ - head.position);
    const ProtocolRow* const row = protocols_.RowOf(head.bytes[at]);
    if (row != nullptr && row->rank > than_) {
      const Head inner{head.bytes + at, head.available - at, next_};
      const Verdict verdict = row->frame(state_, dialect_, inner).Outcome();
      if (verdict == Verdict::Frame) return Answer::Frame;
      if (verdict == Verdict::NeedMore && !ended) return Answer::Open;
    }
    ++next_;
    isHead_ = false;
  }
}

std::uint32_t FramesBehind::Find(const Head& head) {
  // In steps of about a nanosecond: what a byte may cost, the search for heads, a framer.
  constexpr std::int64_t OfByte = 12, MostCredit = 1 << 20, MostDebt = 1 << 18;
  constexpr std::uint32_t BytesSearched = 16, BytesChecked = 2, OfFramer = 16;

  const std::uint64_t end = head.position + head.available;
  if (end == seen_ && head.position == head_) return 0;  // as before
  std::int64_t credit = credit_;
  if (end > seen_) {
    credit = std::min(credit + OfByte * static_cast<std::int64_t>(end - seen_), MostCredit);
  }
  std::uint32_t found = 0;
  if (credit > 0) {
    const std::uint64_t base = base_;
    base_ += head.available;  // also for a call that ends without memory
    credit -= head.available / BytesSearched;
    for (std::uint32_t at = 1; at < head.available && credit > -MostDebt; ++at) {
      at = protocols_.FindStart(head, at, head.available);
      if (at == head.available) break;
      const ProtocolRow& row = *protocols_.RowOf(head.bytes[at]);
      const Framing framing =
          row.frame(state_, dialect_, {head.bytes + at, head.available - at, base + at});
      const bool isOpen = framing.Outcome() == Verdict::NeedMore;
      credit -= OfFramer + (isOpen ? 0 : framing.Length() / BytesChecked);
      if (framing.Outcome() != Verdict::Frame) continue;
      found = at;
      break;
    }
  }
  // Nothing is decided before the end: a call without memory is made again.
  seen_ = end;
  head_ = head.position;
  credit_ = credit;
  return found;
}

}  // namespace navframe
