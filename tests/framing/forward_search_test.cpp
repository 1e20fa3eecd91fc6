#include "framing/forward_search.h"

#include <gtest/gtest.h>

#include <random>

#include "support/streams.h"

namespace navframe::test {
namespace {

// What it remembers never shows: not after appends and advances, nor across the end of the buffer,
// nor when the ring was emptied or overfilled in between.
TEST(ForwardSearch, FindsWhatASearchFromTheHeadFinds) {
  std::mt19937 random(5);
  Stream stream;
  InputRing& ring = stream.ring;
  ForwardSearch search('*');
  PlaceHead(stream, InputRing::Capacity - 3000);
  ring.Append(Bytes(500, 'x').data(), 500);  // so that it is not emptied before it wraps
  const Bytes whole(InputRing::Capacity, '*');
  for (int i = 0; i < 20000; ++i) {
    Bytes bytes(random() % 40, 'x');
    if (!bytes.empty() && random() % 4 == 0) bytes[random() % bytes.size()] = '*';
    ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    if (random() % 2 == 0) ring.Advance(static_cast<std::uint32_t>(random()) % 40);
    if (i % 5000 == 4999) ring.Append(whole.data(), ring.Free());
    std::uint32_t expected = 0;
    while (expected < ring.Available() && ring[expected] != '*') ++expected;
    ASSERT_EQ(search.Find(ring), expected) << i;
  }
}

}  // namespace
}  // namespace navframe::test
