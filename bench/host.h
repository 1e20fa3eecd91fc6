// What a host does with the library, for the benchmarks.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "navframe/navframe.h"
#include "navframe/stream.h"

namespace navframe::bench {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t DefaultChunk = 4096;

inline Bytes ToBytes(std::string_view text) { return {text.begin(), text.end()}; }

// Pops and frees everything that waits; the number of records.
inline std::uint64_t Drain() {
  std::uint64_t records = 0;
  for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; ++records) GNSSFreeMem(&message);
  return records;
}

// Decode = push, pop and free of every record. Returns the number of records.
inline std::uint64_t DecodeAll(std::span<const std::uint8_t> bytes, std::size_t chunk) {
  std::uint64_t records = 0;
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    const std::size_t length = std::min(chunk, bytes.size() - at);
    GNSSPutData(bytes.data() + at, static_cast<std::uint32_t>(length));
    records += Drain();
  }
  return records;
}

struct CloseStream {
  void operator()(NavframeStream* stream) const { navframe_close(stream); }
};
using StreamHandle = std::unique_ptr<NavframeStream, CloseStream>;

inline NavframeOptions UsualOptions() {
  NavframeOptions options{};
  options.size = sizeof(options);
  navframe_default_options(&options);
  return options;
}

inline StreamHandle OpenStream(const NavframeOptions& options = UsualOptions()) {
  NavframeStream* stream = nullptr;
  if (navframe_open(&options, &stream) != NavframeOk) std::abort();
  return StreamHandle(stream);
}

// Hands every item that is there to `use`.
template <class Use>
void TakeItems(NavframeStream* stream, Use&& use) {
  NavframeItem item;
  item.size = sizeof(item);
  while (navframe_next(stream, &item) == NavframeItemReady) use(item);
}

// Puts a chunk, in as many pieces as the stream takes it in, and hands every item to `use`.
template <class Use>
void PutChunk(NavframeStream* stream, std::span<const std::uint8_t> chunk, Use&& use) {
  while (!chunk.empty()) {
    chunk = chunk.subspan(navframe_put(stream, chunk.data(), chunk.size()));
    TakeItems(stream, use);
  }
}
template <class Use>
void PutAll(NavframeStream* stream, std::span<const std::uint8_t> bytes, std::size_t chunk,
            Use&& use) {
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    PutChunk(stream, bytes.subspan(at, std::min(chunk, bytes.size() - at)), use);
  }
}

// The same as DecodeAll through a stream; the number of items.
inline std::uint64_t DecodeAll(NavframeStream* stream, std::span<const std::uint8_t> bytes,
                               std::size_t chunk) {
  std::uint64_t items = 0;
  PutAll(stream, bytes, chunk, [&items](const NavframeItem&) { ++items; });
  return items;
}

}  // namespace navframe::bench
