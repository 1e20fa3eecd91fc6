// Ephemerides as the lines of RINEX navigation files.
#pragma once

#include <cstdint>
#include <string>

#include "navframe/records_ephemerides.h"

namespace navframe::tool {

enum class NavigationVersion : std::uint8_t { V305, V402 };

// "3.05".
const char* VersionText(NavigationVersion version);

// The letter of a value EphemerisSystem; '\0' for none.
char SystemLetter(std::uint8_t system);

// Seconds from 1980-01-06 on, of the time that stands in the first line: that of the system, of
// GLONASS UTC.
std::int64_t EpochOf(const KeplerEphemerisRecord& record);
std::int64_t EpochOf(const GlonassEphemerisRecord& record);

// The lines of an ephemeris, whose weeks are known and whose satellite has two digits.
void PutEphemeris(std::string& out, const KeplerEphemerisRecord& record, NavigationVersion version);
void PutEphemeris(std::string& out, const GlonassEphemerisRecord& record,
                  NavigationVersion version);

// The offsets of GLONASS time that an ephemeris came with, as records STO of version 4.
void PutTimeOffsets(std::string& out, const GlonassEphemerisRecord& record);

}  // namespace navframe::tool
