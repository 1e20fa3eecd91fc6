#include "floors.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace navframe::bench {

void CopyFloor(std::span<const std::uint8_t> bytes, std::size_t chunk) {
  static std::vector<std::uint8_t> target(1 << 20);
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    std::memcpy(target.data(), bytes.data() + at, std::min(chunk, bytes.size() - at));
    benchmark::DoNotOptimize(target.data());
    benchmark::ClobberMemory();
  }
}

std::uint8_t XorFloor(std::span<const std::uint8_t> bytes) {
  std::uint8_t sum = 0;
  for (const std::uint8_t byte : bytes) {
    sum ^= byte;
    // Keeps the loop byte-wise, as the benchmark's name says.
    asm volatile("" : "+r"(sum));
  }
  return sum;
}

}  // namespace navframe::bench
