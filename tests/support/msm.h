// MSM in the making, with a writer that shares nothing with the decoders.
#pragma once

#include <array>
#include <bit>
#include <vector>

#include "support/binary_frames.h"

namespace navframe::test::msm {

// Fields in wire order, as they stand in the message: range in ms, extended information, range
// modulo 1 ms, rate; pseudorange, phase, lock, half cycle, C/N0, rate.
using Satellite = std::array<std::int64_t, 4>;
using Cell = std::array<std::int64_t, 6>;
// Their widths, for MSM4 to MSM7.
inline constexpr int Widths[4][10] = {{8, 0, 10, 0, 15, 22, 4, 1, 6, 0},
                                      {8, 4, 10, 14, 15, 22, 4, 1, 6, 15},
                                      {8, 0, 10, 0, 20, 24, 10, 1, 10, 0},
                                      {8, 4, 10, 14, 20, 24, 10, 1, 10, 15}};

inline const int* WidthsOf(std::uint32_t number) {
  return Widths[number % 10 < 4 || number % 10 > 7 ? 3 : number % 10 - 4];
}

// A message in the making; one satellite with one signal unless said otherwise.
struct Message {
  std::uint32_t number = 1077;
  std::uint64_t epoch = 1000;                                       // as it stands in the message
  std::uint64_t satelliteMask = 1ULL << 59, signalMask = 1U << 30;  // 5 and 2
  std::vector<bool> mask = {true};                                  // by satellite, then signal
  std::vector<Satellite> satellites = {{70, 10, 512}};
  std::vector<Cell> cells = {{}};
  std::uint64_t more = 0;        // multiple-message bit
  std::uint64_t rest = 0x15555;  // the 18 bits behind it

  Bytes Payload() const {
    BitWriter bits;
    bits.Put(number, 12).Put(2003, 12).Put(epoch, 30).Put(more, 1).Put(rest, 18);
    bits.Put(satelliteMask, 64).Put(signalMask, 32);
    for (const bool cell : mask) bits.Put(cell, 1);
    const int* width = WidthsOf(number);
    for (std::size_t i = 0; i < 4; ++i, ++width) {
      for (const Satellite& satellite : satellites) bits.Signed(satellite[i], *width);
    }
    for (std::size_t i = 0; i < 6; ++i, ++width) {
      for (const Cell& cell : cells) bits.Signed(cell[i], *width);
    }
    return bits.Written();
  }
  Bytes Frame() const { return RtcmFrame(Payload()); }
};

// Masks and fields are any but the invalid codes; extended information is 10.
inline Message RandomMessage(std::uint32_t number, sample::Noise& noise) {
  Message message{number, noise.Below(86'400'000), 0, 0, {}, {}, {}};
  int satellites = 0, signals = 0;
  while (satellites == 0 || signals == 0 || satellites * signals > 64) {
    message.satelliteMask = noise.Next() & noise.Next();
    message.signalMask = noise.Next() & noise.Next() & noise.Next() & 0xFFFFFFFF;
    satellites = std::popcount(message.satelliteMask);
    signals = std::popcount(message.signalMask);
  }
  const auto field = [&](int width, bool isSigned) {
    const std::int64_t half = isSigned ? 1LL << width >> 1 : 0;
    const std::int64_t value = noise.Below(1U << width);
    return value == 0 ? 1 : value - half;  // the lowest is invalid
  };
  const int* const width = WidthsOf(number);
  for (int i = 0; i < satellites; ++i) {
    message.satellites.push_back({1 + noise.Below(254), 10, noise.Below(1024), field(14, true)});
  }
  for (int i = 0; i < satellites * signals; ++i) {
    message.mask.push_back(noise.Below(4) != 0);
    if (!message.mask.back()) continue;
    message.cells.push_back({field(width[4], true), field(width[5], true), field(width[6], false),
                             noise.Below(2), field(width[8], false), field(width[9], true)});
  }
  return message;
}

// The ids of a mask of `width` bits.
inline std::vector<int> IdsOf(std::uint64_t mask, int width) {
  std::vector<int> ids;
  for (int id = 1; id <= width; ++id) {
    if ((mask >> (width - id) & 1) != 0) ids.push_back(id);
  }
  return ids;
}

}  // namespace navframe::test::msm
