// Satellites and signals by the numbers that messages have for them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace navframe::analysis {

// Systems by the numbers of observations; 0 is none that is known.
inline constexpr std::size_t KnownSystems = 8;

struct Satellite {
  std::size_t system;
  std::size_t number;  // in the system, as RINEX counts them
};

Satellite SatelliteOfObservation(std::size_t system, std::size_t number);
Satellite SatelliteOfUbx(std::size_t system, std::size_t number);
Satellite SatelliteOfChannel(std::size_t number);  // NAV-SVINFO
Satellite SatelliteOfNmea(std::size_t system, std::size_t number);

// 'G' of GPS, '?' of what is not known.
char LetterOf(std::size_t system);
// "GPS" of 'G'.
const char* SystemName(char letter);
// "G05".
std::string SatelliteName(const Satellite& satellite);

// "1C"; "signal 7" of one without a code. Of an observation `code` is that of the record.
std::string SignalName(std::string_view code, std::size_t number);
std::string SignalOfUbx(std::size_t system, std::size_t number);
std::string SignalOfNmea(std::size_t system, std::size_t number);

}  // namespace navframe::analysis
