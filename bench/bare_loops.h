// What a loop by hand takes for the same frames: framing, checksum, fields to numbers, one whole
// record filled for each, in the same place again and again. No queue, no time, no filter, no
// search for what hides in frames. The members that tell the decoder's time stay as they are.
//
// Every loop begins at the next sync byte, leaves out what does not hold, and hands the kind and
// the record to `take`. Slack bytes behind the input may be loaded.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>

#include "navframe/navframe.h"
#include "navframe/records.h"
#include "navframe/stream.h"

namespace navframe::bench {

inline constexpr std::size_t Slack = 320;

template <class T>
T LoadLe(const std::uint8_t* at) {
  static_assert(std::endian::native == std::endian::little);
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

// The next `sync` at or behind `at`, or `end`.
inline const std::uint8_t* NextSync(const std::uint8_t* at, const std::uint8_t* end,
                                    std::uint8_t sync) {
  if (at < end && *at == sync) return at;
  const void* const found =
      at < end ? std::memchr(at, sync, static_cast<std::size_t>(end - at)) : nullptr;
  return found != nullptr ? static_cast<const std::uint8_t*>(found) : end;
}

// All bits set are the unknown value of most members, and a NaN.
template <class Record>
void MakeUnknown(Record& record) {
  std::memset(static_cast<void*>(&record), 0xFF, sizeof record);
}

}  // namespace navframe::bench
