#include "framing/sync_scan.h"

#include "base/byte_block.h"
#include "navframe/navframe.h"

namespace navframe {
namespace {

struct SyncRow {
  std::uint8_t byte;
  std::uint32_t maskBit;
  ParserState state;
};
// "#" is no sync byte: ASCII logs are entered by "$" of one board type alone.
constexpr SyncRow SyncRows[] = {
    {0xB5, ProtocolUbx, ParserState::Ubx},
    {0xD3, ProtocolRtcm3, ParserState::Rtcm3},
    {'$', ProtocolNmea, ParserState::NmeaSentence},
    {'U', Protocol55Aa, ParserState::Binary55Aa},
    {'\\', ProtocolNmeaTagBlock, ParserState::NmeaTagBlock},
};
// With this board type "$" starts a line of the receiver's logs, whether NMEA is enabled or not.
constexpr std::uint32_t AsciiLogBoardType = 7;

// A framer is entered at once only when this many bytes were there before the skip.
constexpr std::uint32_t FewestBytesToEnter = 6;

std::uint32_t OffsetOfSyncByte(const InputRing& ring, const SyncBytes& syncBytes) {
  const std::uint32_t available = ring.Available();
  std::uint32_t offset = 0;
  while (offset < available) {
    const auto piece = ring.Piece(offset);
    const std::size_t found = syncBytes.Find(piece.data(), piece.size());
    offset += static_cast<std::uint32_t>(found);
    if (found < piece.size()) break;
  }
  return offset;
}

}  // namespace

SyncBytes::SyncBytes(const ScanConfiguration& configuration) {
  for (const SyncRow& row : SyncRows) {
    if (row.byte == '$' && configuration.boardType == AsciiLogBoardType) {
      Enable(row.byte, ParserState::AsciiLogDollarLine);
    } else if ((configuration.msgTypeMask & row.maskBit) != 0) {
      Enable(row.byte, row.state);
    }
  }
  for (std::size_t i = count_; i < bytes_.size(); ++i) bytes_[i] = bytes_[0];
}

void SyncBytes::Enable(std::uint8_t byte, ParserState state) {
  states_[byte] = state;
  bytes_[count_++] = byte;
}

std::size_t SyncBytes::Find(const std::uint8_t* data, std::size_t length) const {
  if (count_ == 0) return length;
  std::size_t at = 0;
  for (; at + ByteBlock::Size <= length; at += ByteBlock::Size) {
    const ByteBlock block(data + at);
    const std::uint64_t hits = block.EqualToAny(bytes_);
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  while (at < length && states_[data[at]] == ParserState::Scanning) ++at;
  return at;
}

bool ScanForFrame(RingInput& input, const SyncBytes& syncBytes) {
  InputRing& ring = input.ring;
  const std::uint32_t available = ring.Available();
  if (available == 0) return false;
  ParserState found = syncBytes.StateOf(ring[0]);
  if (found == ParserState::Scanning) {
    const std::uint32_t skipped = OffsetOfSyncByte(ring, syncBytes);
    input.statistics.skippedBytes += skipped;
    if (skipped == available) {
      ring.Clear();
      return false;
    }
    found = syncBytes.StateOf(ring[skipped]);
    ring.Advance(skipped);
  }
  input.state = found;
  return available >= FewestBytesToEnter;
}

}  // namespace navframe
