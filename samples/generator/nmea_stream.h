// The drive as a receiver's NMEA output.
#pragma once

#include <string>
#include <string_view>

#include "generator/drive.h"

namespace navframe::sample {

// "$" + body + "*" + checksum + CR LF.
std::string Sentence(std::string_view body);

// One epoch of 36 sentences: RMC, VTG, GGA, GSA of four systems, GSV of two signals each with
// signal ids, GLL, GST, GBS, ZDA.
std::string NmeaEpoch(const Epoch& epoch);

// The first `epochs` seconds of the drive.
std::string NmeaStream(int epochs);

}  // namespace navframe::sample
