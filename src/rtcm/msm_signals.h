// Carrier frequencies of MSM signals.
#pragma once

#include <array>
#include <cstdint>

#include "observations/signals.h"

namespace navframe::rtcm {

// The codes of MsmRecord::system, of which it has those of GPS to QZSS.
using MsmSystem = observations::System;

// Of MsmRecord: Hz by signal id, 1 to 32; 0 for a signal without a frequency.
using FrequencyTable = std::array<double, 33>;

const FrequencyTable& FrequenciesOf(MsmSystem system);

}  // namespace navframe::rtcm
