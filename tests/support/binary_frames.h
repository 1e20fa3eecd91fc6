// Frames of the binary protocols, byte by byte.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "support/streams.h"

namespace navframe::test {

// A payload to write little-endian fields into; setters chain.
class PayloadBuilder {
 public:
  explicit PayloadBuilder(std::size_t length) : bytes_(length) {}
  // Filled with bytes that follow no pattern, the same for the same seed.
  PayloadBuilder(std::size_t length, std::uint32_t seed);

  PayloadBuilder& U8(std::size_t offset, std::uint8_t value) { return Put(offset, value, 1); }
  PayloadBuilder& U16(std::size_t offset, std::uint16_t value) { return Put(offset, value, 2); }
  PayloadBuilder& U32(std::size_t offset, std::uint32_t value) { return Put(offset, value, 4); }
  PayloadBuilder& I32(std::size_t offset, std::int32_t value) {
    return U32(offset, static_cast<std::uint32_t>(value));
  }
  PayloadBuilder& F32(std::size_t offset, float value) {
    return U32(offset, std::bit_cast<std::uint32_t>(value));
  }
  PayloadBuilder& F64(std::size_t offset, double value) {
    return Put(offset, std::bit_cast<std::uint64_t>(value), 8);
  }

  operator const Bytes&() const { return bytes_; }

 private:
  PayloadBuilder& Put(std::size_t offset, std::uint64_t value, std::size_t width);
  Bytes bytes_;
};

// A whole UBX frame with a right checksum.
Bytes UbxFrame(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload);
// A whole 0x55 0xAA frame with a right checksum.
Bytes Frame55Aa(const Bytes& payload);

// The frame with one bit of its last byte, or of one further in front, the other way round.
Bytes Damaged(Bytes frame, std::size_t beforeLast = 0);

// Plausible messages, all fields of which depend on the seed.
PayloadBuilder NavigationPayload(std::uint32_t seed);
PayloadBuilder SatellitesPayload(std::uint8_t count, std::uint32_t seed);
PayloadBuilder RawMeasurementsPayload(std::uint8_t count, std::uint32_t seed);
PayloadBuilder ProtectionLevelsPayload(std::uint32_t seed);
PayloadBuilder AttitudePayload(std::uint32_t seed);

// Their frames.
Bytes NavigationFrame(const Bytes& payload);
Bytes SatellitesFrame(const Bytes& payload);
Bytes RawMeasurementsFrame(const Bytes& payload);
Bytes ProtectionLevelsFrame(const Bytes& payload);
Bytes AttitudeFrame(const Bytes& payload);

// Pushes zeros and a frame, in two chunks, so that the frame wraps around the end of the ring with
// `before` bytes (2 or more) in front of it. Pops nothing.
void PushAcrossTheEndOfTheRing(Decoder& decoder, const Bytes& frame, std::uint32_t before);

}  // namespace navframe::test
