// Rendering works in the host's buffer alone, and a stream in the memory that it has.
#include <gtest/gtest.h>

#include <cstdlib>

#include "generator/mixed_stream.h"
#include "navframe/stream.hpp"
#include "render/render.h"
#include "support/streams.h"

// Counts what is allocated, where the C library lets itself be stood in for.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
namespace {
std::size_t allocations = 0;
}
extern "C" void* __libc_malloc(std::size_t size) noexcept;  // NOLINT
extern "C" void* malloc(std::size_t size) noexcept {
  ++allocations;
  return __libc_malloc(size);
}
#define NAVFRAME_COUNTS_ALLOCATIONS
#endif

namespace navframe::test {
namespace {

TEST(RenderRecord, AllocatesNothing) {
#ifdef NAVFRAME_COUNTS_ALLOCATIONS
  const auto records = Decoded(sample::MixedStream());
  std::string out(65536, '\0');
  const std::size_t before = allocations;
  EXPECT_GT(before, records.size()) << "they are counted";
  for (const Record& record : records) {
    RenderRecord({record.id, record.source, record.payload.get()}, out.data(), true);
  }
  EXPECT_EQ(allocations, before);
#else
  GTEST_SKIP() << "allocations are not counted here";
#endif
}

TEST(Streams, AllocateNothingForRecords) {
#ifdef NAVFRAME_COUNTS_ALLOCATIONS
  const Bytes bytes = sample::MixedStream();
  Stream stream;
  std::size_t records = 0;
  const auto count = [&records](const Item&) { ++records; };
  stream.feed(bytes, count);  // false heads want memory once
  const std::size_t before = allocations;
  stream.feed(bytes, count);
  stream.finish(count);
  EXPECT_EQ(allocations, before) << records;
#else
  GTEST_SKIP() << "allocations are not counted here";
#endif
}

}  // namespace
}  // namespace navframe::test
