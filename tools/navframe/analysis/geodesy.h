// Positions on the ellipsoid of WGS 84, and how far many of them lie apart.
#pragma once

#include <array>
#include <cstdint>

namespace navframe::analysis {

struct Ecef {
  double x;  // m
  double y;
  double z;
};

struct Geodetic {
  double latitude;   // deg, north positive
  double longitude;  // deg, east positive
  double height;     // m above the ellipsoid
};

Ecef ToEcef(const Geodetic& position);
Geodetic ToGeodetic(const Ecef& position);

// Mean and deviations of positions. They are taken in Cartesian coordinates: nothing happens at the
// date line or at a pole.
class Cloud {
 public:
  void Add(const Ecef& position);
  void Add(const Cloud& others);

  std::uint64_t Count() const { return count_; }
  Ecef Mean() const { return {mean_[0], mean_[1], mean_[2]}; }

  // Standard deviations around the mean, in its horizon, m.
  struct Spread {
    double east;
    double north;
    double up;
  };
  Spread Deviations() const;

 private:
  std::uint64_t count_ = 0;
  std::array<double, 3> mean_{};
  std::array<std::array<double, 3>, 3> moments_{};  // sums of products of deviations
};

}  // namespace navframe::analysis
