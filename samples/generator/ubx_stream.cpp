#include "generator/ubx_stream.h"

#include <array>
#include <cmath>

namespace navframe::sample {
namespace {

constexpr double SpeedOfLight = 299'792'458;
constexpr double L1 = 1'575'420'000;

// System ids of UBX by those of NMEA.
constexpr std::array<int, 6> UbxSystems = {0, 0, 6, 2, 3, 5};

int UbxNumber(const Satellite& satellite) {
  return satellite.system == Glonass ? satellite.number - 64 : satellite.number;
}

int Cn0(const Satellite& satellite) { return static_cast<int>(24 + satellite.elevation / 4); }

template <class Message>
Bytes StreamOf(int epochs, Message message) {
  Drive drive;
  Bytes bytes;
  for (int i = 0; i < epochs; ++i) message(drive.Next(), bytes);
  return bytes;
}

}  // namespace

Bytes UbxFrame(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload) {
  Bytes frame = {0xB5,
                 0x62,
                 messageClass,
                 id,
                 static_cast<std::uint8_t>(payload.size()),
                 static_cast<std::uint8_t>(payload.size() >> 8)};
  Append(frame, payload);
  std::uint8_t a = 0;
  std::uint8_t b = 0;
  for (std::size_t i = 2; i < frame.size(); ++i) {
    a = static_cast<std::uint8_t>(a + frame[i]);
    b = static_cast<std::uint8_t>(b + a);
  }
  frame.push_back(a);
  frame.push_back(b);
  return frame;
}

Bytes Frame55Aa(const Bytes& payload) {
  Bytes frame = {0x55, 0xAA};
  Append(frame, LittleEndian().U32(payload.size()).Written());
  Append(frame, payload);
  std::uint8_t sum = 0;
  for (std::size_t i = 2; i < frame.size(); ++i) sum = static_cast<std::uint8_t>(sum + frame[i]);
  frame.push_back(sum);
  return frame;
}

Bytes UbxNavigation(const Epoch& epoch) {
  const double course = epoch.course * 0.017453292519943295;
  const auto mm = [](double metres) { return std::llround(metres * 1000); };
  LittleEndian p;
  p.U32(epoch.tow).U16(2026).U8(3).U8(static_cast<unsigned>(epoch.day));
  p.U8(static_cast<unsigned>(epoch.hour)).U8(static_cast<unsigned>(epoch.minute));
  p.U8(static_cast<unsigned>(epoch.second)).U8(0x07).U32(25).I32(0);  // valid, accuracy, ns
  p.U8(3).U8(0x03).U8(0xE0).U8(epoch.satellites.size());
  p.I32(std::llround(epoch.longitude * 1e7)).I32(std::llround(epoch.latitude * 1e7));
  p.I32(mm(epoch.altitude + GeoidSeparation)).I32(mm(epoch.altitude)).U32(640).U32(830);
  p.I32(mm(epoch.speed * std::cos(course))).I32(mm(epoch.speed * std::sin(course))).I32(-12);
  p.I32(mm(epoch.speed)).I32(std::llround(epoch.course * 1e5)).U32(70).U32(120'000);
  p.U16(105).U16(0x0002).U32(0).I32(std::llround(epoch.course * 1e5)).U32(0);
  return UbxFrame(0x01, 0x07, p.Written());
}

Bytes UbxSatellites(const Epoch& epoch) {
  constexpr std::size_t Count = 47;
  LittleEndian p;
  p.U32(epoch.tow).U8(1).U8(Count).Zeros(2);
  for (std::size_t i = 0; i < Count; ++i) {
    const Satellite& satellite = epoch.satellites[i % epoch.satellites.size()];
    p.U8(static_cast<unsigned>(UbxSystems[static_cast<std::size_t>(satellite.system)]));
    p.U8(static_cast<unsigned>(UbxNumber(satellite)));
    p.U8(satellite.elevation > 8 ? static_cast<unsigned>(Cn0(satellite)) : 0);
    p.U8(static_cast<unsigned>(satellite.elevation)).I16(std::llround(satellite.azimuth));
    p.I16(static_cast<int>(satellite.rate) % 40).U32(satellite.used ? 0x191F : 0x1211);
  }
  return UbxFrame(0x01, 0x35, p.Written());
}

Bytes UbxRawMeasurements(const Epoch& epoch) {
  const std::size_t count = 71 + static_cast<std::size_t>(epoch.second) % 18;
  LittleEndian p;
  p.F64(epoch.tow / 1000.0 + 1e-4).U16(epoch.week).U8(18).U8(count).U8(0x01).U8(1).Zeros(2);
  for (std::size_t i = 0; i < count; ++i) {
    const Satellite& satellite = epoch.satellites[i % epoch.satellites.size()];
    p.F64(satellite.range).F64(satellite.range * L1 / SpeedOfLight);
    p.F32(-satellite.rate * L1 / SpeedOfLight);
    p.U8(static_cast<unsigned>(UbxSystems[static_cast<std::size_t>(satellite.system)]));
    p.U8(static_cast<unsigned>(UbxNumber(satellite)));
    p.U8(i < epoch.satellites.size() ? 0 : 3).U8(satellite.system == Glonass ? 5 : 0);
    p.U16(64'500).U8(static_cast<unsigned>(Cn0(satellite))).U8(5).U8(1).U8(4).U8(0x07).Zeros(1);
  }
  return UbxFrame(0x02, 0x15, p.Written());
}

Bytes UbxAttitude(const Epoch& epoch) {
  LittleEndian p;
  p.U32(epoch.tow).U8(0).Zeros(3).I32(125'000).I32(-50'000);
  p.I32(std::llround(epoch.course * 1e5)).U32(5'000).U32(5'000).U32(12'000);
  return UbxFrame(0x01, 0x05, p.Written());
}

Bytes UbxProtectionLevels(const Epoch& epoch) {
  LittleEndian p;
  for (const unsigned member : {1U, 5U, 0xF9U, 1U, 2U, 1U, 2U, 1U, 0U, 0U, 0U}) p.U8(member);
  p.Zeros(1).U32(epoch.tow);
  for (const unsigned level : {4200U, 3900U, 7100U, 310U, 290U, 520U}) p.U32(level);
  p.U16(4500).U16(9000).U32(38).Zeros(4);
  return UbxFrame(0x01, 0x62, p.Written());
}

Bytes UbxSignals(const Epoch& epoch) {
  const std::size_t count = 2 * epoch.satellites.size();
  LittleEndian p;
  p.U32(epoch.tow).U8(0).U8(count).Zeros(2);
  for (std::size_t i = 0; i < count; ++i) {
    const Satellite& satellite = epoch.satellites[i / 2];
    p.U8(static_cast<unsigned>(UbxSystems[static_cast<std::size_t>(satellite.system)]));
    p.U8(static_cast<unsigned>(UbxNumber(satellite))).U8(i % 2 == 0 ? 0 : 3);
    p.U8(satellite.system == Glonass ? 5 : 0).I16(static_cast<int>(satellite.rate) % 40);
    p.U8(static_cast<unsigned>(Cn0(satellite))).U8(7).U8(1).U8(2).I16(0x0169).Zeros(4);
  }
  return UbxFrame(0x01, 0x43, p.Written());
}

Bytes UbxGpsTime(const Epoch& epoch) {
  LittleEndian p;
  p.U32(epoch.tow).I32(-1234).U16(epoch.week).U8(18).U8(0x07).U32(25);
  return UbxFrame(0x01, 0x20, p.Written());
}

Bytes UbxFurther(const Epoch& epoch) {
  Bytes bytes = UbxAttitude(epoch);
  Append(bytes, UbxProtectionLevels(epoch));
  Append(bytes, UbxSignals(epoch));
  Append(bytes, UbxGpsTime(epoch));
  return bytes;
}

Bytes Binary55Aa(const Epoch& epoch) {
  constexpr std::array<std::size_t, 4> Lengths = {224, 264, 420, 460};
  const std::size_t length = Lengths[static_cast<std::size_t>(epoch.second) % Lengths.size()];
  LittleEndian p;
  p.U32(epoch.tow / 10).I32(1'250).I32(-500).I32(std::llround(epoch.course * 1000));
  p.I32(12).I32(-34).I32(56).I32(4312).I32(134);
  for (std::size_t i = p.Written().size(); i < length; ++i) p.U8(i * 7 + epoch.tow);
  return Frame55Aa(p.Written());
}

Bytes UbxNavigationStream(int epochs) {
  return StreamOf(epochs, [](const Epoch& epoch, Bytes& bytes) {
    Append(bytes, UbxNavigation(epoch));
    Append(bytes, UbxSatellites(epoch));
    Append(bytes, UbxAttitude(epoch));
  });
}

Bytes UbxRawStream(int epochs) {
  return StreamOf(
      epochs, [](const Epoch& epoch, Bytes& bytes) { Append(bytes, UbxRawMeasurements(epoch)); });
}

Bytes UbxStream(int epochs) {
  return StreamOf(epochs, [](const Epoch& epoch, Bytes& bytes) {
    Append(bytes, UbxNavigation(epoch));
    Append(bytes, UbxSatellites(epoch));
    Append(bytes, UbxRawMeasurements(epoch));
  });
}

Bytes Stream55Aa(int epochs) {
  return StreamOf(epochs,
                  [](const Epoch& epoch, Bytes& bytes) { Append(bytes, Binary55Aa(epoch)); });
}

}  // namespace navframe::sample
