// Which numbers stood for which systems in the last cycle of satellites in view.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>

namespace navframe::nmea {

class SeenSatellites {
 public:
  void Clear() { systems_.fill(0); }

  // What has no place here tells nothing.
  void Add(std::uint32_t systemId, std::uint32_t number) {
    if (systemId < Systems && number < systems_.size()) {
      systems_[number] = static_cast<std::uint16_t>(systems_[number] | 1U << systemId);
    }
  }

  // The one system in which all these numbers were seen; -1 when they tell none or several.
  int SystemOf(std::span<const int> numbers) const {
    std::uint16_t common = numbers.empty() ? 0 : 0xFFFF;
    for (const int number : numbers) {
      const auto place = static_cast<std::size_t>(number);
      common &= place < systems_.size() ? systems_[place] : std::uint16_t{0};
    }
    return std::has_single_bit(common) ? std::countr_zero(common) : -1;
  }

 private:
  static constexpr std::uint32_t Systems = 16;
  std::array<std::uint16_t, 1024> systems_{};  // a bit each, by number
};

}  // namespace navframe::nmea
