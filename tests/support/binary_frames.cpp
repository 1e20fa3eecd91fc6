#include "support/binary_frames.h"

#include <random>

namespace navframe::test {

PayloadBuilder::PayloadBuilder(std::size_t length, std::uint32_t seed) : bytes_(length) {
  std::mt19937 random(seed);
  for (std::uint8_t& byte : bytes_) byte = static_cast<std::uint8_t>(random());
}

PayloadBuilder& PayloadBuilder::Put(std::size_t offset, std::uint64_t value, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes_.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
  }
  return *this;
}

Bytes UbxFrame(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload) {
  Bytes frame = {0xB5,
                 0x62,
                 messageClass,
                 id,
                 static_cast<std::uint8_t>(payload.size()),
                 static_cast<std::uint8_t>(payload.size() >> 8)};
  frame = std::move(frame) + payload;
  unsigned a = 0;
  unsigned b = 0;
  for (std::size_t i = 2; i < frame.size(); ++i) {
    a = (a + frame[i]) % 256;
    b = (b + a) % 256;
  }
  frame.push_back(static_cast<std::uint8_t>(a));
  frame.push_back(static_cast<std::uint8_t>(b));
  return frame;
}

Bytes Frame55Aa(const Bytes& payload) {
  PayloadBuilder header(6);
  header.U8(0, 0x55).U8(1, 0xAA).U32(2, static_cast<std::uint32_t>(payload.size()));
  Bytes frame = static_cast<const Bytes&>(header) + payload;
  unsigned sum = 0;
  for (std::size_t i = 2; i < frame.size(); ++i) sum += frame[i];
  frame.push_back(static_cast<std::uint8_t>(sum));
  return frame;
}

Bytes Damaged(Bytes frame, std::size_t beforeLast) {
  frame.at(frame.size() - 1 - beforeLast) ^= 0x40;
  return frame;
}

PayloadBuilder NavigationPayload(std::uint32_t seed) {
  PayloadBuilder payload(92, seed);
  // 2024-07-31 12:00:seed, date and time valid, a three-dimensional fix.
  payload.U32(0, 302'418'000 + seed % 60 * 1000).U16(4, 2024).U8(6, 7).U8(7, 31).U8(8, 12).U8(9, 0);
  payload.U8(10, static_cast<std::uint8_t>(seed % 60)).U8(11, 0x37).I32(16, 250'123'456).U8(20, 3);
  return payload;
}

PayloadBuilder SatellitesPayload(std::uint8_t count, std::uint32_t seed) {
  PayloadBuilder payload(8 + 12U * count, seed);
  payload.U8(4, 1).U8(5, count);
  for (std::size_t i = 0; i < count; ++i) {
    payload.U8(8 + 12 * i + 3, static_cast<std::uint8_t>((seed + 7 * i) % 91));
    payload.U16(8 + 12 * i + 4, static_cast<std::uint16_t>((seed + 31 * i) % 360));
  }
  return payload;
}

PayloadBuilder RawMeasurementsPayload(std::uint8_t count, std::uint32_t seed) {
  PayloadBuilder payload(16 + 32U * count, seed);
  payload.F64(0, 302'418.0 + seed % 1000).U16(8, 2325).U8(10, 18).U8(11, count).U8(12, 1).U8(13, 1);
  for (std::size_t i = 0; i < count; ++i) {
    const double number = static_cast<double>(seed % 1000 + i);
    payload.F64(16 + 32 * i, 2.1e7 + number * 1234.567);
    payload.F64(24 + 32 * i, 1.1e8 + number * 6543.21);
    payload.F32(32 + 32 * i, static_cast<float>(number * 12.5 - 2000));
  }
  return payload;
}

PayloadBuilder ProtectionLevelsPayload(std::uint32_t seed) { return {52, seed}; }
PayloadBuilder AttitudePayload(std::uint32_t seed) { return {32, seed}; }

Bytes NavigationFrame(const Bytes& payload) { return UbxFrame(0x01, 0x07, payload); }
Bytes SatellitesFrame(const Bytes& payload) { return UbxFrame(0x01, 0x35, payload); }
Bytes RawMeasurementsFrame(const Bytes& payload) { return UbxFrame(0x02, 0x15, payload); }
Bytes ProtectionLevelsFrame(const Bytes& payload) { return UbxFrame(0x01, 0x62, payload); }
Bytes AttitudeFrame(const Bytes& payload) { return UbxFrame(0x01, 0x05, payload); }

void PushAcrossTheEndOfTheRing(Decoder& decoder, const Bytes& frame, std::uint32_t before) {
  Bytes chunk(InputRing::Capacity - before, 0);
  chunk.insert(chunk.end(), frame.begin(), frame.begin() + before / 2);
  decoder.PutData(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
  decoder.PutData(frame.data() + before / 2, static_cast<std::uint32_t>(frame.size() - before / 2));
}

}  // namespace navframe::test
