#include "sources/gga.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace navframe::tool {
namespace {

std::optional<double> Known(const NavframeItem& item, const char* name) {
  const NavframeMember* const member = navframe_member(item.kind->record, name);
  double value = 0;
  if (member == nullptr || navframe_number(member, item.record, 0, &value) != NavframeKnown) {
    return std::nullopt;
  }
  return value;
}

// "4830.0000000": degrees of so many digits, then minutes.
std::string Minutes(double angle, int digits) {
  constexpr double Units = 60e7;  // of 1e-7 minutes
  const auto units = std::llround(std::fabs(angle) * Units);
  constexpr auto UnitsOfDegree = static_cast<long long>(Units);
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%0*lld%010.7f", digits, units / UnitsOfDegree,
                static_cast<double>(units % UnitsOfDegree) / 1e7);
  return text.data();
}

}  // namespace

std::optional<Position> ParsePosition(const std::string& text) {
  Position position{};
  int length = 0;
  int count =
      std::sscanf(text.c_str(), "%lf,%lf%n", &position.latitude, &position.longitude, &length);
  if (count == 2 && text[static_cast<std::size_t>(length)] == ',') {
    int more = 0;
    if (std::sscanf(text.c_str() + length, ",%lf%n", &position.height, &more) == 1) length += more;
  }
  const bool inRange = std::fabs(position.latitude) <= 90 && std::fabs(position.longitude) <= 180 &&
                       std::isfinite(position.height);
  if (count != 2 || static_cast<std::size_t>(length) != text.size() || !inRange) return {};
  return position;
}

std::optional<Position> PositionOf(const NavframeItem& item) {
  const auto latitude = Known(item, "latitude");
  const auto longitude = Known(item, "longitude");
  if (!latitude || !longitude || std::fabs(*latitude) > 90 || std::fabs(*longitude) > 180)
    return {};
  // Above the ellipsoid is near enough where the height above the sea is not told.
  for (const char* name : {"altitude", "heightMsl", "height"}) {
    if (const auto height = Known(item, name)) return Position{*latitude, *longitude, *height};
  }
  return {};
}

std::string GgaSentence(const Position& position, std::time_t now) {
  std::tm utc{};
  gmtime_r(&now, &utc);
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(),
                "GPGGA,%02d%02d%02d.00,%s,%c,%s,%c,1,10,1.0,%.3f,M,0.0,M,,", utc.tm_hour,
                utc.tm_min, utc.tm_sec, Minutes(position.latitude, 2).c_str(),
                position.latitude < 0 ? 'S' : 'N', Minutes(position.longitude, 3).c_str(),
                position.longitude < 0 ? 'W' : 'E', position.height);
  unsigned check = 0;
  for (const char* c = text.data(); *c != '\0'; ++c) check ^= static_cast<unsigned char>(*c);
  std::array<char, 8> end{};
  std::snprintf(end.data(), end.size(), "*%02X", check);
  return std::string("$") + text.data() + end.data();
}

}  // namespace navframe::tool
