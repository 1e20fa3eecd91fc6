#include "floors.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <numeric>

#include "base/crc24q.h"
#include "ubx/fletcher.h"

namespace navframe::bench {
namespace {

std::uint8_t XorByteByByte(const std::uint8_t* bytes, std::size_t length) {
  std::uint8_t sum = 0;
  for (std::size_t i = 0; i < length; ++i) {
    sum ^= bytes[i];
    asm volatile("" : "+r"(sum));  // keeps the loop byte-wise
  }
  return sum;
}

std::uint32_t ChecksumOf(const std::uint8_t* frame, std::size_t length) {
  switch (frame[0]) {
    case 0xB5: {
      const auto sum = ubx::Fletcher::Of(frame + 2, length - 4);
      return sum.a + 256U * sum.b;
    }
    case 0xD3:
      return Crc24q::Of(frame, length - 3);
    case 0x55:
      return std::accumulate(frame + 2, frame + length - 1, 0U);
    default:
      return XorByteByByte(frame, length);
  }
}

}  // namespace

void CopyFloor(const Bytes& bytes, std::size_t chunk) {
  static Bytes target(1 << 20);
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    std::memcpy(target.data(), bytes.data() + at, std::min(chunk, bytes.size() - at));
    benchmark::DoNotOptimize(target.data());
    benchmark::ClobberMemory();
  }
}

std::uint32_t ChecksumFloor(const Bytes& bytes, std::span<const FrameOfStream> frames) {
  std::uint32_t sum = 0;
  for (const FrameOfStream& frame : frames) {
    sum += ChecksumOf(bytes.data() + frame.offset, frame.length);
  }
  return sum;
}

void AllocationFloor(const RecordSizes& sizes) {
  std::vector<void*> blocks;
  blocks.reserve(sizes.records);
  for (const auto& chunk : sizes.ofChunks) {
    for (const std::uint32_t size : chunk) blocks.push_back(std::malloc(size));
    benchmark::ClobberMemory();
    for (void* block : blocks) std::free(block);
    blocks.clear();
  }
}

}  // namespace navframe::bench
