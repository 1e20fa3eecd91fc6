// What satellites send of their orbits: as RTCM 3 ephemerides, and in the parts that UBX hands on.
// Checks and numbers are right, all else is random.
#pragma once

#include "generator/drive.h"
#include "generator/writers.h"

namespace navframe::sample {

// A frame each of 1019, 1020, 1042, 1044, 1045 and 1046, of a satellite that all have.
Bytes RtcmEphemerides(int satellite, Noise& noise);

// The parts (0x02 0x13) of half a minute from a satellite of each system: LNAV of GPS, strings of
// GLONASS, I/NAV, F/NAV, D1 and D2. Sixteen rounds are of one issue.
Bytes UbxSubframes(int satellite, unsigned round);

// `rounds` of eight satellites.
Bytes RtcmEphemerisStream(int rounds);
Bytes UbxSubframeStream(int rounds);

}  // namespace navframe::sample
