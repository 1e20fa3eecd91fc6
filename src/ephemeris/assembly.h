// The parts of an ephemeris of one satellite, until all are there.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "ephemeris/page_rows.h"

namespace navframe::ephemeris {

// One part, of a multiple of 8 bits; behind it what loads may reach.
template <std::uint32_t Bits>
struct Page {
  std::array<std::uint8_t, Bits / 8 + 8> bytes{};

  std::uint64_t Read(const Piece& piece) const {
    return PageBits(bytes.data(), piece.bit, piece.bits);
  }
  // What changes with each repetition is taken out.
  std::uint64_t TakeOut(const Piece& piece) {
    const std::uint64_t value = Read(piece);
    std::uint8_t* const place = bytes.data() + piece.bit / 8;
    StoreBigEndian64(LoadBigEndian64(place) ^ value << (64 - piece.bits - piece.bit % 8), place);
    return value;
  }
};

// A set is out once a record was made of it, and is not made again before a page comes that is
// another.
template <std::uint32_t Pages, std::uint32_t Bits, class Time = std::uint32_t>
class Assembly {
 public:
  void Put(std::uint32_t page, const Page<Bits>& content, Time time) {
    std::uint8_t* const place = bytes_.data() + page * (Bits / 8);
    const bool isSame =
        (have_ >> page & 1U) != 0 && std::equal(place, place + Bits / 8, content.bytes.begin());
    std::copy_n(content.bytes.begin(), Bits / 8, place);
    times_[page] = time;
    have_ = static_cast<std::uint16_t>(have_ | 1U << page);
    isOut_ = isOut_ && isSame;
  }
  bool Waits() const { return have_ == (1U << Pages) - 1 && !isOut_; }
  void SetOut() { isOut_ = true; }
  const std::uint8_t* Bytes() const { return bytes_.data(); }
  std::uint64_t Read(const Piece& piece) const {
    return PageBits(bytes_.data(), piece.bit, piece.bits);
  }
  // What was taken out of a page.
  Time TimeOf(std::uint32_t page) const { return times_[page]; }

 private:
  std::array<std::uint8_t, Pages * Bits / 8 + 8> bytes_{};
  std::array<Time, Pages> times_{};
  std::uint16_t have_ = 0;
  bool isOut_ = false;
};

}  // namespace navframe::ephemeris
