#include "stream/strong_heads.h"

#include <gtest/gtest.h>

#include <random>

#include "support/streams.h"

namespace navframe::test {
namespace {

// The first byte that begins a head, or the last one when it may: by the two bytes alone.
template <bool WithUbx>
std::size_t FirstHead(const Bytes& bytes, std::size_t length) {
  for (std::size_t at = 0; at < length; ++at) {
    const bool isLast = at + 1 == length;
    const auto begins = [&](std::uint8_t second) {
      return StrongHeads<WithUbx>::IsHead(bytes[at], second);
    };
    if (isLast ? begins(0) || begins('b') || begins('A') : begins(bytes[at + 1])) return at;
  }
  return length;
}

// Whatever is behind the bytes, in their slack, is not found.
template <bool WithUbx>
void FindsTheFirst(std::uint32_t others) {
  std::mt19937 random(others);
  constexpr std::size_t Longest = 300;
  constexpr std::uint8_t Starts[] = {0xD3, 0xB5, '#', 0x62, 'Q', 2, 0xD3, 0xB5};
  for (std::size_t length = 0; length <= Longest; ++length) {
    Bytes bytes(length + Head::Slack);
    for (std::uint8_t& byte : bytes) {
      byte = random() % others == 0 ? Starts[random() % std::size(Starts)]
                                    : static_cast<std::uint8_t>(random());
    }
    EXPECT_EQ(StrongHeads<WithUbx>::Find(bytes.data(), length), FirstHead<WithUbx>(bytes, length))
        << length << " bytes, a start among " << others;
  }
}

TEST(StrongHeads, AreFoundAtAnyPlaceOfAnyLength) {
  for (const std::uint32_t others : {2U, 40U, 400U}) {
    FindsTheFirst<true>(others);
    FindsTheFirst<false>(others);
  }
}

}  // namespace
}  // namespace navframe::test
