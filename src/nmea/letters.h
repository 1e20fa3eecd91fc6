// What the letters of sentences stand for.
#pragma once

#include <cstdint>

namespace navframe::nmea {

struct LetterRow {
  char letter;
  std::uint8_t value;
};

// Positioning modes, with the numbers that GGA has for them.
inline constexpr LetterRow PositioningModes[] = {{'N', 0}, {'A', 1}, {'D', 2}, {'P', 3}, {'R', 4},
                                                 {'F', 5}, {'E', 6}, {'M', 7}, {'S', 8}};
inline constexpr LetterRow HeadingModes[] = {{'V', 0}, {'A', 1}, {'E', 6}, {'M', 7}, {'S', 8}};

// Navigational and integrity states.
inline constexpr LetterRow States[] = {{'V', 0}, {'S', 1}, {'C', 2}, {'U', 3}};

inline constexpr LetterRow Validities[] = {{'V', 0}, {'A', 1}};
inline constexpr LetterRow SelectionModes[] = {{'M', 0}, {'A', 1}};

}  // namespace navframe::nmea
