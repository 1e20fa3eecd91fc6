// Checksums of frames that begin inside other ones.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>

#include "framing/input_ring.h"

namespace navframe {

// A head that turns out false is followed by others, at worst every second byte, each of which
// announces kilobytes. Where such frames overlap, the values of all prefixes are kept, and those
// of two prefixes give the value of the bytes between: a byte is then read once, not once a head.
//
// `Checksum` has the type Value, whose default is the value of no bytes, LongestProtected, and
//   Of(bytes, length)             the value of these bytes
//   With(value, byte)             of bytes with this value, and one more behind them
//   Between(from, until, length)  of the last `length` bytes of those with the value `until`, where
//                                 those in front of them have the value `from`
template <class Checksum>
class OverlappingChecksum {
 public:
  using Value = typename Checksum::Value;

  // The value of `bytes`, at most LongestProtected, which begin `offset` behind the ring's head.
  Value Of(const InputRing& ring, std::uint32_t offset, std::span<const std::uint8_t> bytes) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    const std::uint32_t begin = ring.ReadIndex() + offset;
    const bool overlaps = generation_ == ring.Generation() && begin - begin_ < until_ - begin_;
    begin_ = begin;
    generation_ = ring.Generation();
    if (!overlaps) {
      hasPrefixes_ = false;
      until_ = begin + length;
      return Checksum::Of(bytes.data(), length);
    }
    if (!hasPrefixes_) {
      hasPrefixes_ = true;
      until_ = begin;
      PrefixUpTo(begin) = Value{};
    }
    ReadUpTo(length, bytes.data());
    return Checksum::Between(PrefixUpTo(begin), PrefixUpTo(begin + length), length);
  }

 private:
  // Room for the prefixes of the longest frame, that of no bytes among them.
  static constexpr std::uint32_t Size = std::bit_ceil(Checksum::LongestProtected + 1);

  Value& PrefixUpTo(std::uint32_t index) { return prefixes_[index % Size]; }

  void ReadUpTo(std::uint32_t length, const std::uint8_t* bytes) {
    Value prefix = PrefixUpTo(until_);
    for (; until_ - begin_ < length; ++until_) {
      prefix = Checksum::With(prefix, bytes[until_ - begin_]);
      PrefixUpTo(until_ + 1) = prefix;
    }
  }

  std::array<Value, Size> prefixes_;  // by ring index, while hasPrefixes_
  bool hasPrefixes_ = false;
  std::uint32_t begin_ = 0;       // of the last frame's bytes
  std::uint32_t until_ = 0;       // the end of what was looked at from there
  std::uint32_t generation_ = 0;  // of the ring, for which these hold
};

}  // namespace navframe
