// Signals as RINEX 3.05 names them, and their carriers.
#pragma once

#include <array>
#include <cstdint>
#include <limits>

namespace navframe::observations {

inline constexpr double SpeedOfLight = 299792458;  // m/s

// The codes of Observation::system.
enum class System : std::uint8_t {
  Gps = 1,
  Glonass = 2,
  Galileo = 3,
  BeiDou = 4,
  Qzss = 5,
  NavIc = 6,
  Sbas = 7,
  None = 255,
};

// Satellites of SBAS are numbered from here on.
inline constexpr std::uint8_t FirstSbas = 120;

inline constexpr std::int8_t UnknownChannel = std::numeric_limits<std::int8_t>::min();

// A signal: its code, and its carrier at channel 0 with the step from channel to channel, which
// GLONASS alone has. Frequency unknown and code empty for a signal that is not listed.
struct Signal {
  double frequency;  // Hz
  double step;       // Hz
  std::array<char, 4> code;
};

// By the number that a protocol gives to a signal of a system.
constexpr std::size_t SignalNumbers = 33;
using SignalTable = std::array<Signal, SignalNumbers>;

const SignalTable& MsmSignalsOf(System system);                        // by MSM signal id, 1 to 32
const Signal& L1SignalOf(System system, std::uint32_t codeIndicator);  // of 1001 to 1012
const Signal& L2SignalOf(System system, std::uint32_t codeIndicator);

// By the gnssId and sigId of UBX.
struct UbxSignal {
  const Signal& signal;
  System system;
};
UbxSignal UbxSignalOf(std::uint8_t gnssId, std::uint8_t signalId);

}  // namespace navframe::observations
