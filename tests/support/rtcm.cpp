#include "support/rtcm.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace navframe::test {
namespace {

constexpr double Ms = 299792.458;  // metres

std::vector<int> Draw(std::mt19937& random, int count, int highest) {
  std::vector<int> all(static_cast<std::size_t>(highest));
  std::iota(all.begin(), all.end(), 1);
  std::shuffle(all.begin(), all.end(), random);
  all.resize(static_cast<std::size_t>(count));
  std::sort(all.begin(), all.end());
  return all;
}

void PutMask(BitWriter& bits, const std::vector<int>& set, int width) {
  for (int id = 1; id <= width; ++id) {
    bits.Put(std::find(set.begin(), set.end(), id) != set.end() ? 1 : 0, 1);
  }
}

}  // namespace

BitWriter& BitWriter::Put(std::uint64_t value, int width) {
  for (int i = width - 1; i >= 0; --i) {
    if (used_ == 0) bytes_.push_back(0);
    const auto bit = static_cast<unsigned>(value >> i & 1);
    bytes_.back() = static_cast<std::uint8_t>(bytes_.back() | bit << (7 - used_));
    used_ = (used_ + 1) % 8;
  }
  return *this;
}

std::uint32_t BitwiseCrc24q(const std::uint8_t* bytes, std::size_t length) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < length; ++i) {
    value ^= std::uint32_t{bytes[i]} << 16;
    for (int bit = 0; bit < 8; ++bit) {
      value <<= 1;
      if ((value & 0x1000000) != 0) value ^= 0x1864CFB;
    }
  }
  return value;
}

Bytes RtcmFrame(const Bytes& payload) {
  BitWriter frame;
  frame.Put(0xD3, 8).Put(payload.size(), 16);
  for (const std::uint8_t byte : payload) frame.Put(byte, 8);
  frame.Put(BitwiseCrc24q(frame.Done().data(), frame.Done().size()), 24);
  return frame.Done();
}

MsmMessage& MsmMessage::Sized() {
  if (cells.empty()) cells.assign(satellites.size() * signals.size(), true);
  satelliteFields.resize(satellites.size());
  cellFields.resize(static_cast<std::size_t>(std::count(cells.begin(), cells.end(), true)));
  return *this;
}

MsmWidths WidthsOf(int kind) {
  if (kind < 6) return {15, 22, 4, 6, kind == 5 ? 15 : 0, Ms * 0x1p-24, Ms * 0x1p-29};
  return {20, 24, 10, 10, kind == 7 ? 15 : 0, Ms * 0x1p-29, Ms * 0x1p-31};
}

Bytes MsmMessage::Payload() const {
  const MsmWidths widths = WidthsOf(Kind());
  BitWriter bits;
  bits.Put(number, 12).Put(2003, 12).Put(epoch, 30).Put(more ? 1 : 0, 1).Put(0, 18);
  PutMask(bits, satellites, 64);
  PutMask(bits, signals, 32);
  for (const bool cell : cells) bits.Put(cell ? 1 : 0, 1);
  for (const auto& satellite : satelliteFields) bits.Put(satellite.rangeMs, 8);
  if (widths.rate != 0) {
    for (std::size_t i = 0; i < satellites.size(); ++i) bits.Put(0xA, 4);  // extended information
  }
  for (const auto& satellite : satelliteFields) bits.Put(satellite.rangeModulo, 10);
  if (widths.rate != 0) {
    for (const auto& satellite : satelliteFields) bits.PutSigned(satellite.roughRate, 14);
  }
  for (const auto& cell : cellFields) bits.PutSigned(cell.finePseudorange, widths.pseudorange);
  for (const auto& cell : cellFields) bits.PutSigned(cell.finePhase, widths.phase);
  for (const auto& cell : cellFields) bits.Put(cell.lock, widths.lock);
  for (const auto& cell : cellFields) bits.Put(cell.halfCycle, 1);
  for (const auto& cell : cellFields) bits.Put(cell.cn0, widths.cn0);
  if (widths.rate != 0) {
    for (const auto& cell : cellFields) bits.PutSigned(cell.fineRate, widths.rate);
  }
  return bits.Done();
}

MsmMessage RandomMsm(std::uint32_t number, std::mt19937& random, std::vector<MsmTruth>& truth,
                     int satelliteCount, int signalCount) {
  const auto real = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  MsmMessage message;
  message.number = number;
  message.epoch = static_cast<std::uint32_t>(random() % 86'400'000);
  message.satellites = Draw(random, satelliteCount, 64);
  message.signals = Draw(random, signalCount, 32);
  for (int i = 0; i < satelliteCount * signalCount; ++i) message.cells.push_back(random() % 4 != 0);
  message.Sized();
  const MsmWidths widths = WidthsOf(message.Kind());
  std::size_t place = 0;
  std::size_t cell = 0;
  truth.clear();
  for (std::size_t s = 0; s < message.satellites.size(); ++s) {
    const double range = real(19'000'000, 44'000'000);
    const double rate = std::round(real(-900, 900));
    MsmSatelliteFields& satellite = message.satelliteFields[s];
    const auto units = static_cast<std::uint32_t>(std::lround(range / Ms * 1024));
    satellite = {units / 1024, units % 1024, static_cast<std::int64_t>(rate)};
    for (const int signal : message.signals) {
      if (!message.cells[place++]) continue;
      MsmTruth wanted = {message.satellites[s],
                         signal,
                         range + real(-20, 20),
                         range + real(-20, 20),
                         rate + real(-1, 1),
                         static_cast<std::uint32_t>(random()),
                         0,
                         real(10, 60)};
      wanted.lock %= message.Kind() < 6 ? 16 : 705;
      wanted.halfCycle = random() % 2;
      const double rough = units * Ms / 1024;
      message.cellFields[cell++] = {
          std::lround((wanted.pseudorange - rough) / widths.pseudorangeMetres),
          std::lround((wanted.phaseRange - rough) / widths.phaseMetres),
          wanted.lock,
          wanted.halfCycle,
          static_cast<std::uint32_t>(wanted.cn0 * (message.Kind() < 6 ? 1 : 16)),
          std::lround((wanted.rate - rate) / 0.0001)};
      truth.push_back(wanted);
    }
  }
  return message;
}

}  // namespace navframe::test
