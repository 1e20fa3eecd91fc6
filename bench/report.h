// What a benchmark tells of its stream.
#pragma once

#include <benchmark/benchmark.h>

#include "host.h"

namespace navframe::bench {

inline void Report(benchmark::State& state, std::size_t bytes, std::uint64_t records) {
  const auto runs = static_cast<std::int64_t>(state.iterations());
  state.SetBytesProcessed(runs * static_cast<std::int64_t>(bytes));
  if (records != 0) state.SetItemsProcessed(runs * static_cast<std::int64_t>(records));
}

}  // namespace navframe::bench
