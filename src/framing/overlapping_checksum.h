// Checksums of frames that begin inside other ones.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>
#include <span>

namespace navframe {

// A head that turns out false is followed by others, at worst every second byte, each of which
// announces kilobytes or next to nothing. From the first one that begins among bytes that were read
// before, the values of all prefixes are kept, and those of two prefixes give the value of the
// bytes between. So a byte is read at most twice, however many heads announce it and in whatever
// lengths: once in a frame that begins behind all bytes read so far, as every frame of an undamaged
// stream does, and once for the prefixes.
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

  // The value of `bytes`, at most LongestProtected, which begin at this position of the stream.
  // The position is never below that of the call before.
  Value Of(std::uint64_t position, std::span<const std::uint8_t> bytes) {
    const std::uint64_t end = position + bytes.size();
    if (position >= readUntil_) {
      readUntil_ = end;
      return Checksum::Of(bytes.data(), bytes.size());
    }
    return OfOverlapping(position, end, bytes.data());
  }

 private:
  // Room for the prefixes of the longest frame, that of no bytes among them.
  static constexpr std::uint32_t Size = std::bit_ceil(Checksum::LongestProtected + 1);

  Value& PrefixUpTo(std::uint64_t position) {
    // Streams of good frames never come here, and are spared the memory.
    if (prefixes_ == nullptr) [[unlikely]]
      prefixes_.reset(new Value[Size]);
    return prefixes_[position % Size];
  }

  Value OfOverlapping(std::uint64_t begin, std::uint64_t end, const std::uint8_t* bytes) {
    if (begin >= prefixesUntil_) {  // what lies in front of this frame concerns no later one
      PrefixUpTo(begin) = Value{};  // may want memory
      prefixesUntil_ = begin;
    }
    if (end > prefixesUntil_) ReadUpTo(end, bytes + (prefixesUntil_ - begin));
    return Checksum::Between(PrefixUpTo(begin), PrefixUpTo(end), end - begin);
  }

  void ReadUpTo(std::uint64_t end, const std::uint8_t* bytes) {
    Value prefix = PrefixUpTo(prefixesUntil_);
    while (prefixesUntil_ != end) {
      prefix = Checksum::With(prefix, *bytes++);
      PrefixUpTo(++prefixesUntil_) = prefix;
    }
    readUntil_ = std::max(readUntil_, end);
  }

  std::unique_ptr<Value[]> prefixes_;  // Size of them, by position in the stream
  std::uint64_t readUntil_ = 0;        // the end of all bytes that were read
  std::uint64_t prefixesUntil_ = 0;    // the last position whose prefix is kept
};

}  // namespace navframe
