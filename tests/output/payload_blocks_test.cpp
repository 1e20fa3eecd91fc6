#include "output/payload_blocks.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#if defined(__GLIBC__) && (!defined(NAVFRAME_KEEP_FREED_BLOCKS) || NAVFRAME_KEEP_FREED_BLOCKS)
#include <malloc.h>

namespace navframe::test {
namespace {

using Blocks = std::vector<void*>;

constexpr double MiB = 1 << 20;
constexpr double Margin = MiB;  // the allocator's heads, what a test has itself

// Bytes that the allocator has given out.
double InUse() {
  const auto info = ::mallinfo2();
  return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

Blocks Allocate(PayloadBlocks& blocks, std::uint32_t size, std::size_t count) {
  Blocks made(count);
  for (void*& block : made) block = blocks.Allocate(size);
  return made;
}

void Free(PayloadBlocks& blocks, const Blocks& made) {
  for (void* const block : made) blocks.Free(block);
}

TEST(PayloadBlocks, FreedOnesAreKeptAndTheLatestSizesStay) {
  const double before = InUse();
  const auto inUse = [&] { return InUse() - before; };
  {
    const auto blocks = std::make_unique<PayloadBlocks>();
    // 34 MiB of one size, the smallest too. What is kept of it serves again.
    for (const std::uint32_t size : {1024U, 12272U}) {
      Free(*blocks, Allocate(*blocks, size, (34 << 20) / size));
      EXPECT_NEAR(inUse(), 16 * MiB, Margin);
      const Blocks again = Allocate(*blocks, size, (15 << 20) / size);
      EXPECT_NEAR(inUse(), 16 * MiB, Margin);
      Free(*blocks, again);
    }
    // The last gives way to 3 MiB of each of five others.
    const std::vector<std::uint32_t> sizes = {1024, 2528, 3872, 20000, 32736};
    const auto countOf = [](std::uint32_t size) { return (3 << 20) / size; };
    for (int round = 0; round < 2; ++round) {
      std::vector<Blocks> made;
      for (const auto size : sizes) made.push_back(Allocate(*blocks, size, countOf(size)));
      for (const Blocks& ofOneSize : made) Free(*blocks, ofOneSize);
      EXPECT_NEAR(inUse(), 16 * MiB, Margin);
    }
    std::vector<Blocks> made;
    for (const auto size : sizes) made.push_back(Allocate(*blocks, size, countOf(size)));
    EXPECT_NEAR(inUse(), 16 * MiB, Margin) << "all of it was there";
    for (const Blocks& ofOneSize : made) Free(*blocks, ofOneSize);
  }
  EXPECT_NEAR(inUse(), 0, Margin);
}

TEST(PayloadBlocks, SmallAndLargeOnesGoBackToTheAllocator) {
  const auto blocks = std::make_unique<PayloadBlocks>();
  const double before = InUse();
  for (const std::uint32_t size : {1000U, 32784U, 200000U}) {
    Free(*blocks, Allocate(*blocks, size, 2000000 / size));
    EXPECT_NEAR(InUse() - before, 0, Margin) << size;
  }
}

TEST(PayloadBlocks, AbandonedOnesServeAgain) {
  const double before = InUse();
  {
    const auto blocks = std::make_unique<PayloadBlocks>();
    for (int round = 0; round < 3; ++round) {
      for (const std::uint32_t size : {1U, 80U, 3104U, 12272U}) {
        for (void* const block : Allocate(*blocks, size, 1000)) blocks->Abandon(block, size);
      }
    }
    EXPECT_NEAR(InUse() - before, 1000.0 * (1 + 80 + 3104 + 12272), Margin);
  }
  EXPECT_NEAR(InUse() - before, 0, Margin);
}

TEST(PayloadBlocks, NoneIsSmallerThanWanted) {
  const auto blocks = std::make_unique<PayloadBlocks>();
  for (std::uint32_t size = 1000; size < 33000; size += 7) {
    blocks->Free(std::malloc(size));  // the host's, as is allowed
    for (std::uint32_t wanted = size - 16; wanted < size + 32; ++wanted) {
      void* const block = blocks->Allocate(wanted);
      ASSERT_GE(::malloc_usable_size(block), wanted);
      blocks->Free(block);
    }
  }
}

TEST(PayloadBlocksDeathTest, SecondFreeOfWhatWaitsEndsTheProcess) {
  const auto blocks = std::make_unique<PayloadBlocks>();
  Blocks made = Allocate(*blocks, 2528, 8);
  // In any order, and whatever the content is, of which a record may keep what lay there.
  for (int round = 0; round < 3; ++round) {
    Free(*blocks, made);
    std::ranges::reverse(made);
    for (void* const block : made) EXPECT_DEATH(blocks->Free(block), "payload freed twice");
    Blocks others = Allocate(*blocks, 2528, 3);
    Free(*blocks, others);
    made = Allocate(*blocks, 2528, 8);
  }
  Free(*blocks, made);
}

}  // namespace
}  // namespace navframe::test

#endif
