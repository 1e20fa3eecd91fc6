// Carrier frequencies of MSM signals.
#pragma once

#include <array>
#include <cstdint>

namespace navframe::rtcm {

// The codes of MsmRecord::system.
enum class MsmSystem : std::uint8_t { Gps = 1, Glonass = 2, Galileo = 3, BeiDou = 4, Qzss = 5 };

// Hz by signal id, 1 to 32; 0 for a signal without a frequency.
using FrequencyTable = std::array<double, 33>;

const FrequencyTable& FrequenciesOf(MsmSystem system);

}  // namespace navframe::rtcm
