#include "asciilog/log_fields.h"

namespace navframe::asciilog {

bool ReadSatelliteId(std::string_view text, std::byte* member) {
  constexpr std::string_view Signs = "+-";
  std::uint16_t satellite = 0;
  std::int16_t channel = 0;
  const std::size_t sign = text.find_first_of(Signs);
  if (!ConvertNumber(text.substr(0, sign), satellite)) return false;
  if (sign != std::string_view::npos && !ConvertNumber(text.substr(sign), channel)) return false;
  std::memcpy(member, &satellite, sizeof(satellite));
  std::memcpy(member + sizeof(satellite), &channel, sizeof(channel));
  return true;
}

}  // namespace navframe::asciilog
