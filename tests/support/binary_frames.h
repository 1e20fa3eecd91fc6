// Frames of the binary protocols, with the writers of the samples, which share nothing with the
// decoders.
#pragma once

#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "support/streams.h"

namespace navframe::test {

using sample::BitWriter;
using sample::Frame55Aa;
using sample::RtcmFrame;
using sample::UbxFrame;

inline Bytes RtcmFrame(const BitWriter& payload) { return RtcmFrame(payload.Written()); }

// Bytes that follow no pattern, the same for the same seed.
inline Bytes NoiseBytes(std::size_t length, std::uint64_t seed) {
  Bytes bytes(length);
  for (sample::Noise noise(seed); std::uint8_t & byte : bytes) {
    byte = static_cast<std::uint8_t>(noise.Next());
  }
  return bytes;
}

// A payload with little-endian fields at chosen offsets; setters chain.
class Payload {
 public:
  Payload(std::size_t length) : bytes_(length) {}
  Payload(Bytes bytes) : bytes_(std::move(bytes)) {}

  Payload& U8(std::size_t at, std::int64_t value) { return Put(at, value, 1); }
  Payload& U16(std::size_t at, std::int64_t value) { return Put(at, value, 2); }
  Payload& U32(std::size_t at, std::int64_t value) { return Put(at, value, 4); }
  Payload& F32(std::size_t at, float value) { return U32(at, std::bit_cast<std::int32_t>(value)); }
  Payload& F64(std::size_t at, double value) {
    return Put(at, std::bit_cast<std::int64_t>(value), 8);
  }

  operator const Bytes&() const { return bytes_; }

 private:
  Payload& Put(std::size_t at, std::int64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
      bytes_.at(at + i) = static_cast<std::uint8_t>(value >> (8 * i));
    }
    return *this;
  }
  Bytes bytes_;
};

// The frame with one bit of its last byte, or of one further in front, the other way round.
inline Bytes Damaged(Bytes frame, std::size_t beforeLast = 0) {
  frame.at(frame.size() - 1 - beforeLast) ^= 0x40;
  return frame;
}

inline Bytes First(const Bytes& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

// Numbers of any type, to compare many at once.
template <class... T>
std::vector<double> Values(T... values) {
  return {static_cast<double>(values)...};
}

}  // namespace navframe::test
