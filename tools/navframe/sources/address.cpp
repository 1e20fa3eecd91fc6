#include "sources/address.h"

#include <charconv>
#include <cstdint>
#include <string_view>

#include "fault.h"

namespace navframe::tool {
namespace {

// Where what stands behind "scheme://" begins; npos without it.
std::size_t BehindScheme(const std::string& name) {
  constexpr std::string_view Separator = "://";
  const std::size_t end = name.find_first_not_of("abcdefghijklmnopqrstuvwxyz");
  const bool isScheme = end != 0 && end != std::string::npos &&
                        std::string_view(name).substr(end).starts_with(Separator);
  return isScheme ? end + Separator.size() : std::string::npos;
}

// Where user and password stand; both ends 0 for none.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
};
Range UserInfo(const std::string& name) {
  const std::size_t begin = BehindScheme(name);
  if (begin == std::string::npos) return {};
  const std::size_t at = name.substr(0, name.find('/', begin)).rfind('@');
  return at == std::string::npos || at < begin ? Range{} : Range{begin, at};
}

std::string Decoded(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint8_t byte = 0;
    const char* const digits = text.data() + i + 1;
    if (text[i] == '%' && i + 2 < text.size() &&
        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      decoded += static_cast<char>(byte);
      i += 2;
    } else {
      decoded += text[i];
    }
  }
  return decoded;
}

bool IsPort(const std::string& text) {
  std::uint16_t port = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, port);
  return error == std::errc() && stopped == end && port != 0;
}

}  // namespace

Address ParseAddress(const std::string& name) {
  Address address;
  std::size_t begin = BehindScheme(name);
  if (const Range info = UserInfo(name); info.end != 0) {
    const std::string_view text = std::string_view(name).substr(begin, info.end - begin);
    const std::size_t colon = text.find(':');
    address.user = Decoded(text.substr(0, colon));
    if (colon != std::string_view::npos) address.password = Decoded(text.substr(colon + 1));
    begin = info.end + 1;
  }
  const std::size_t slash = name.find('/', begin);
  if (slash != std::string::npos) address.path = name.substr(slash + 1);
  std::string place = name.substr(begin, slash == std::string::npos ? slash : slash - begin);
  std::size_t colon = place.rfind(':');
  if (place.starts_with('[')) {
    const std::size_t bracket = place.find(']');
    if (bracket == std::string::npos) throw Fault(ShownName(name) + ": a \"]\" is missing");
    address.host = place.substr(1, bracket - 1);
    colon = bracket + 1 < place.size() ? bracket + 1 : std::string::npos;
  } else {
    address.host = place.substr(0, colon);
  }
  if (colon != std::string::npos) {
    address.port = place.substr(colon + 1);
    if (place[colon] != ':' || !IsPort(address.port)) {
      throw Fault(ShownName(name) + ": " + place.substr(colon) + " is no port");
    }
  }
  if (address.host.empty()) throw Fault(ShownName(name) + ": the host is missing");
  return address;
}

bool IsAddress(const std::string& name) {
  return name.starts_with("serial:") || BehindScheme(name) != std::string::npos;
}

std::string ShownName(const std::string& name) {
  const Range info = UserInfo(name);
  const std::size_t colon = name.find(':', info.begin);
  if (info.end == 0 || colon >= info.end) return name;
  return name.substr(0, colon) + name.substr(info.end);
}

}  // namespace navframe::tool
