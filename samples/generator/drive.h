// A made drive: where a vehicle is and what its receiver sees, second by second.
#pragma once

#include <cstdint>
#include <vector>

namespace navframe::sample {

// Numbers that look random and are the same on every machine.
class Noise {
 public:
  explicit Noise(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15 + 1) {}

  std::uint64_t Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return state_;
  }
  // 0 to below 1.
  double Uniform() { return static_cast<double>(Next() >> 11) * 0x1p-53; }
  // -amplitude to amplitude.
  double Around(double amplitude) { return amplitude * (2 * Uniform() - 1); }
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(Next() % limit); }

 private:
  std::uint64_t state_;
};

// System ids as in NMEA.
enum System : int { Gps = 1, Glonass = 2, Galileo = 3, BeiDou = 4, Qzss = 5 };

struct Satellite {
  System system;
  int number;        // NMEA number: GLONASS counts from 65
  double azimuth;    // degrees
  double elevation;  // degrees
  double range;      // metres
  double rate;       // metres per second, of the range
  bool used;         // in the solution
};

struct Epoch {
  // 2026-03-14 12:00:00 UTC and the seconds after it.
  int hour;
  int minute;
  int second;
  int day;
  std::uint32_t tow;   // GPS time of week, ms
  std::uint16_t week;  // GPS week
  double latitude;     // degrees
  double longitude;    // degrees
  double altitude;     // above mean sea level, metres
  double speed;        // metres per second
  double course;       // degrees
  std::vector<Satellite> satellites;
};

inline constexpr double GeoidSeparation = 47.3;  // metres

// Simulates one epoch after the other, one second apart.
class Drive {
 public:
  Drive();
  Epoch Next();

 private:
  int secondsDriven_ = 0;
  double latitude_ = 47.376400;
  double longitude_ = 8.547600;
  double course_ = 63;
};

}  // namespace navframe::sample
