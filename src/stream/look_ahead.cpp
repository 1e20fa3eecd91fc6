#include "stream/look_ahead.h"

#include <algorithm>

namespace navframe {
namespace {

ByteFinder<SearchedProtocols::Most> FinderOf(std::span<const ProtocolRow* const> rows) {
  std::array<std::uint8_t, SearchedProtocols::Most> bytes{};
  std::size_t count = 0;
  for (const ProtocolRow* const row : rows) bytes[count++] = row->syncByte;
  return ByteFinder<SearchedProtocols::Most>({bytes.data(), count});
}

}  // namespace

SearchedProtocols::SearchedProtocols(std::span<const ProtocolRow* const> rows)
    : finder_(FinderOf(rows)) {
  for (const ProtocolRow* const row : rows) rows_[row->syncByte] = row;
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
  while (looked_ < length) {
    const std::size_t found = protocols.Find(head.bytes + looked_, length - looked_);
    looked_ += static_cast<std::uint32_t>(found);
    if (looked_ >= length) break;
    const Verdict verdict = FrameAt(head, looked_, protocols).verdict;
    if (verdict == Verdict::Frame) return Answer::Frame;
    if (verdict == Verdict::NeedMore) return Answer::Open;
    ++looked_;
  }
  return Answer::None;
}

std::uint32_t LookAhead::FindFrame(const Head& head, const SearchedProtocols& protocols) {
  head_ = ~std::uint64_t{0};
  Enter(head);
  for (std::uint32_t at = 1; at < head.available; ++at) {
    at += static_cast<std::uint32_t>(protocols.Find(head.bytes + at, head.available - at));
    if (at >= head.available) break;
    if (FrameAt(head, at, protocols).verdict == Verdict::Frame) return at;
  }
  return 0;
}

}  // namespace navframe
