#include "stream/look_ahead.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

std::uint8_t Printable(std::uint8_t byte) { return static_cast<std::uint8_t>(' ' + byte % 95); }

template <bool WithUbx>
std::size_t ByteByByte(const Bytes& bytes, std::size_t from, std::size_t end) {
  for (; from < end; ++from) {
    const std::uint8_t first = bytes[from];
    const std::uint8_t second = bytes[from + 1];
    const bool isLast = from + 1 == end;  // the byte behind it is not there yet
    if (first == 0xD3 && (isLast || second <= 3)) break;
    if (first == '#' && (isLast || (second >= 'A' && second <= 'Z'))) break;
    if (WithUbx && first == 0xB5 && (isLast || second == 0x62)) break;
  }
  return from;
}

// Few heads and many, true ones beside false ones, at every place of a block and in front of every
// end, whichever way the processor takes.
TEST(StrongHeads, AreThoseFoundByteByByte) {
  const Bytes parts = {0xD3, 0, 3, 4, '#', 'A', 'Z', '@', '[', 'a', 0xB5, 0x62, 0x63, 0xFF};
  for (unsigned round = 0; round < 200; ++round) {
    Bytes bytes = NoiseBytes(400, round);
    const Bytes choices = NoiseBytes(bytes.size(), round + 1000);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (choices[i] < round) bytes[i] = parts[bytes[i] % parts.size()];
    }
    for (std::size_t end = 0; end <= 300; ++end) {
      const std::size_t from = end == 0 ? 0 : choices[end] % end;
      const std::uint8_t* const data = bytes.data() + from;
      ASSERT_EQ(from + StrongHeads<false>::Find(data, end - from),
                ByteByByte<false>(bytes, from, end));
      ASSERT_EQ(from + StrongHeads<true>::Find(data, end - from),
                ByteByByte<true>(bytes, from, end));
    }
  }
}

// So that such heads need not be shown to it.
TEST(SearchedProtocols, HeadThatMayNotStartAFrameIsRejectedForItsHeader) {
  std::vector<const ProtocolRow*> rows;
  for (const ProtocolRow& row : Protocols) rows.push_back(&row);
  for (const ProtocolRow& row : StreamProtocols) rows.push_back(&row);
  const SearchedProtocols protocols(rows);
  FramingState state;
  std::uint64_t position = 1;
  for (const ProtocolRow* row : rows) {
    for (unsigned i = 0; i < 256 * 8; ++i) {
      Bytes bytes = NoiseBytes(SearchedProtocols::ShortestJudged + Head::Slack, i);
      bytes[0] = row->syncByte;
      bytes[1] = static_cast<std::uint8_t>(i);
      // Some of printable characters.
      if (i >= 1024) std::transform(bytes.begin() + 2, bytes.end(), bytes.begin() + 2, Printable);
      if (protocols.MayStart(bytes[0], bytes[1])) continue;
      const Head head{bytes.data(), SearchedProtocols::ShortestJudged, position += bytes.size()};
      const Framing framing = row->frame(state, i % 3 ? StandardDialect : LegacyDialect, head);
      ASSERT_EQ(framing.Outcome(), Verdict::Rejected) << i;
      ASSERT_EQ(framing.Reason(), NavframeBadHeader) << i;
      ASSERT_EQ(framing.Length(), 0U) << i;
    }
  }
}

}  // namespace
}  // namespace navframe::test
