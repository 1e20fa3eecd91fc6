// Writers of binary messages.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace navframe::sample {

using Bytes = std::vector<std::uint8_t>;

inline void Append(Bytes& to, const Bytes& bytes) {
  for (const std::uint8_t byte : bytes) to.push_back(byte);
}

// Little-endian fields, one behind the other.
class LittleEndian {
 public:
  LittleEndian& U8(std::uint64_t value) { return Put(value, 1); }
  LittleEndian& U16(std::uint64_t value) { return Put(value, 2); }
  LittleEndian& U32(std::uint64_t value) { return Put(value, 4); }
  LittleEndian& I16(std::int64_t value) { return Put(static_cast<std::uint64_t>(value), 2); }
  LittleEndian& I32(std::int64_t value) { return Put(static_cast<std::uint64_t>(value), 4); }
  LittleEndian& F32(double value) {
    return Put(std::bit_cast<std::uint32_t>(static_cast<float>(value)), 4);
  }
  LittleEndian& F64(double value) { return Put(std::bit_cast<std::uint64_t>(value), 8); }
  LittleEndian& Zeros(std::size_t count) {
    bytes_.resize(bytes_.size() + count);
    return *this;
  }
  const Bytes& Written() const { return bytes_; }

 private:
  LittleEndian& Put(std::uint64_t value, int width) {
    for (int i = 0; i < width; ++i) bytes_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    return *this;
  }
  Bytes bytes_;
};

// Bit fields, the most significant bit first; of more than 64 bits the first ones are 0.
class BitWriter {
 public:
  BitWriter& Put(std::uint64_t value, int width) {
    for (int bit = width - 1; bit >= 0; --bit) {
      if (length_ % 8 == 0) bytes_.push_back(0);
      const std::uint64_t one = bit < 64 ? value >> bit & 1 : 0;
      bytes_.back() |= static_cast<std::uint8_t>(one << (7 - length_ % 8));
      ++length_;
    }
    return *this;
  }
  BitWriter& Signed(std::int64_t value, int width) {
    return Put(static_cast<std::uint64_t>(value), width);
  }
  const Bytes& Written() const { return bytes_; }

 private:
  Bytes bytes_;
  std::size_t length_ = 0;
};

}  // namespace navframe::sample
