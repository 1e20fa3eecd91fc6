// Rendering works in the host's buffer alone, a stream in the memory that it has, and the exports
// take memory for small payloads alone.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "api/decoder.h"
#include "generator/ephemeris_stream.h"
#include "generator/mixed_stream.h"
#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
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
#include <malloc.h>
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

#ifdef NAVFRAME_COUNTS_ALLOCATIONS
// What receivers send for some epochs, one protocol at a time and all kinds together.
std::vector<Bytes> Inputs() {
  return {sample::MixedStream(),
          ToBytes(sample::NmeaStream(3)),
          sample::RtcmStream(12, sample::Msm::Msm4),
          sample::RtcmStream(12, sample::Msm::Msm7),
          sample::UbxNavigationStream(3),
          sample::UbxRawStream(20),
          sample::Stream55Aa(5),
          sample::RtcmEphemerisStream(3),
          sample::UbxSubframeStream(3)};
}
#endif

TEST(Streams, AllocateNothingForRecords) {
#ifdef NAVFRAME_COUNTS_ALLOCATIONS
  for (const Bytes& bytes : Inputs()) {
    Stream stream;
    std::size_t records = 0;
    const auto count = [&records](const Item&) { ++records; };
    stream.feed(bytes, count);  // false heads and parts of ephemerides want memory once
    const std::size_t before = allocations;
    stream.feed(bytes, count);
    stream.finish(count);
    EXPECT_EQ(allocations, before) << records;
    EXPECT_GT(records, 3U);
  }
#else
  GTEST_SKIP() << "allocations are not counted here";
#endif
}

// A payload is a block of its own, which the host frees; large ones wait for the next record.
TEST(Exports, AllocateSmallPayloadsAlone) {
#if defined(NAVFRAME_COUNTS_ALLOCATIONS) && !defined(NAVFRAME_KEEP_FREED_BLOCKS)
  constexpr std::size_t SmallestKept = 1024;
  const auto decoder = std::make_unique<Decoder>();
  std::size_t small = 0;
  const auto decode = [&](const Bytes& bytes) {
    for (const std::uint8_t byte : bytes) {
      decoder->PutData(&byte, 1);
      for (GnssMessage message; decoder->sink.Pop(message, 0) == 0;) {
        small += ::malloc_usable_size(message.data) < SmallestKept ? 1 : 0;
        decoder->sink.Release(message);
      }
    }
  };
  for (const Bytes& bytes : Inputs()) {
    decode(bytes);
    const std::size_t before = allocations;
    small = 0;
    decode(bytes);
    EXPECT_EQ(allocations - before, small);
  }
#else
  GTEST_SKIP() << "allocations are not counted here, or freed blocks are not kept";
#endif
}

}  // namespace
}  // namespace navframe::test
