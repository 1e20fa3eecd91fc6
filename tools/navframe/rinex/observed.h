// Observations between the stream and a file.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "rinex/gps_time.h"

namespace navframe::tool {

// Satellite systems in the order of files; a place of 0 stands for none. They are those of
// Observation::system.
inline constexpr std::string_view SystemLetters = " GRECJIS";
inline constexpr std::size_t SystemCount = 8;
inline constexpr std::size_t Glonass = 2;

// Satellites of a system have the numbers that RINEX gives to them, 1 to 63.
inline constexpr std::size_t SatelliteRoom = 64;

// The kinds of values of a signal, in the order of their columns.
enum class Value : std::uint8_t { Pseudorange, Phase, Doppler, Strength };
inline constexpr std::string_view ValueLetters = "CLDS";
inline constexpr std::size_t ValueCount = 4;

// The signals of a system, numbered as they come.
inline constexpr std::size_t SignalRoom = 32;
class SignalNames {
 public:
  // The place of a code such as "1C"; SignalRoom when there are too many.
  std::size_t PlaceOf(std::size_t system, const char* code) {
    auto& names = names_[system];
    std::size_t place = 0;
    for (; place < counts_[system]; ++place) {
      if (names[place][0] == code[0] && names[place][1] == code[1]) return place;
    }
    if (place == SignalRoom) return place;
    names[place] = {code[0], code[1]};
    ++counts_[system];
    return place;
  }
  std::size_t Count(std::size_t system) const { return counts_[system]; }
  std::string_view Name(std::size_t system, std::size_t place) const {
    return {names_[system][place].data(), 2};
  }

 private:
  std::array<std::array<std::array<char, 2>, SignalRoom>, SystemCount> names_{};
  std::array<std::size_t, SystemCount> counts_{};
};

// One signal of one satellite, by numbers that sort as files do but for the signals.
using SignalKey = std::uint16_t;
inline constexpr std::size_t KeyCount = SystemCount * SatelliteRoom * SignalRoom;
constexpr SignalKey KeyOf(std::size_t system, std::size_t satellite, std::size_t signal) {
  return static_cast<SignalKey>((system * SatelliteRoom + satellite) * SignalRoom + signal);
}
constexpr std::size_t SystemOf(SignalKey key) { return key / SignalRoom / SatelliteRoom; }
constexpr std::size_t SatelliteOf(SignalKey key) { return key / SignalRoom % SatelliteRoom; }
constexpr std::size_t SignalOf(SignalKey key) { return key % SignalRoom; }

// A column of a system: "C1C".
struct TypeColumn {
  Value value;
  std::size_t signal;  // place among the names of the system
};
using SystemColumns = std::array<std::vector<TypeColumn>, SystemCount>;

// Bits of the loss-of-lock indicator.
inline constexpr std::uint8_t LockLost = 1;
inline constexpr std::uint8_t HalfCycle = 2;

// What was observed. NaN for what was not.
struct Observed {
  SignalKey key;
  std::uint8_t lossOfLock;  // the indicator of the phase
  bool inMetres;   // phase and Doppler, those of a GLONASS satellite whose channel is not known yet
  float strength;  // dB-Hz
  double pseudorange;
  double phase;
  double doppler;
};

struct Epoch {
  Ticks time = 0;
  double clockOffset = std::numeric_limits<double>::quiet_NaN();  // s
  std::vector<Observed> observations;
};

}  // namespace navframe::tool
