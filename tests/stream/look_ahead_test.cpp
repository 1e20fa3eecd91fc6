#include "stream/strong_heads.h"

#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

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

}  // namespace
}  // namespace navframe::test
