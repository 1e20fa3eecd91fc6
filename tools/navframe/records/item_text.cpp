#include "records/item_text.h"

#include <array>
#include <cstdio>

#include "printable.h"

namespace navframe::tool {
namespace {

char* PutDigits(char* to, std::uint32_t value, int digits) {
  for (int i = digits; i-- > 0; value /= 10) to[i] = static_cast<char>('0' + value % 10);
  return to + digits;
}

}  // namespace

bool AppendTime(const NavframeTime& time, std::string& out) {
  constexpr std::uint16_t UnknownYear = 0xFFFF;
  if (time.tow == 0xFFFFFFFF || time.utc.year == UnknownYear) return false;
  std::array<char, 24> text;
  char* to = PutDigits(text.data(), time.utc.year, 4);
  const auto put = [&to](char before, std::uint32_t value, int digits) {
    *to++ = before;
    to = PutDigits(to, value, digits);
  };
  put('-', time.utc.month, 2);
  put('-', time.utc.day, 2);
  put('T', time.utc.hour, 2);
  put(':', time.utc.minute, 2);
  put(':', time.utc.second, 2);
  put('.', time.utc.millisecond, 3);
  *to++ = 'Z';
  out.append(text.data(), to);
  return true;
}

std::string MessageOf(const NavframeItem& item) {
  if (item.type == NavframeItemSkipped) return "";
  std::string name = navframe_protocol_name(item.protocol);
  if (item.type == NavframeItemRejected) return name;
  std::array<char, 32> number{};
  if (item.address[0] != '\0') {
    name += ' ';
    AppendPrintable(item.address, name);
  } else if (item.protocol == NavframeUbx) {
    std::snprintf(number.data(), number.size(), " %02X-%02X", item.message >> 8,
                  item.message & 0xFF);
  } else if (item.subType != 0) {
    std::snprintf(number.data(), number.size(), " %u-%u", item.message, item.subType);
  } else if (item.protocol != NavframeNmea && item.protocol != NavframeNmeaTagBlock) {
    std::snprintf(number.data(), number.size(), " %u", item.message);
  }
  return name + number.data();
}

const char* PartOf(const NavframeItem& item) {
  if (item.type == NavframeItemRejected) return "rejected";
  if (item.type == NavframeItemSkipped) return "skipped";
  if (item.reason == NavframeBadField) return "malformed";
  return item.reason == NavframeNoReason ? "frame" : "undecoded";
}

}  // namespace navframe::tool
