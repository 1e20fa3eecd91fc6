// Ephemerides as the lines of RINEX navigation files.
#pragma once

#include <cstdint>
#include <initializer_list>
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
// Seconds of the UTC week when the frame began, which is at most half a day away from tb.
double FrameTime(const GlonassEphemerisRecord& record);

// The lines of an ephemeris, whose weeks are known and whose satellite has two digits.
void PutEphemeris(std::string& out, const KeplerEphemerisRecord& record, NavigationVersion version);
void PutEphemeris(std::string& out, const GlonassEphemerisRecord& record,
                  NavigationVersion version);

// What lines are made of: "G05"; "2026 03 14 12 00 00" of an epoch; four columns of margin and
// values, unless Blank, see exponent_text.h. The end of a line leaves away what is blank in front
// of it.
std::string SatelliteText(char system, std::uint8_t satellite);
void PutEpoch(std::string& out, std::int64_t seconds);
void PutOrbit(std::string& out, std::initializer_list<double> values);
void PutEnd(std::string& out);

}  // namespace navframe::tool
