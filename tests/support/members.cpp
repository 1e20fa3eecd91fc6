#include "support/members.h"

#include <algorithm>
#include <charconv>

#include "base/unknown.h"
#include "catalogue/reading.h"

namespace navframe::test {
namespace {

using catalogue::Load;

struct Writer {
  LeftOut leftOut;
  std::string lines;

  void Add(const std::string& name, std::string_view value) {
    lines.append(name).append("=").append(value).append("\n");
  }

  // The shortest digits that tell the number from its neighbours.
  template <class T>
  void PutNumber(const std::string& name, T value, bool meansNothing) {
    const T silent = meansNothing || leftOut == LeftOut::Zero ? T{0}
                     : std::is_floating_point_v<T>            ? Unknown<T>()
                                                              : static_cast<T>(-1);
    if (std::memcmp(&value, &silent, sizeof value) == 0) return;
    std::array<char, 32> digits;
    Add(name, {digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr});
  }

  void Put(const std::string& name, const GPSTIME& gps) {
    const bool silent = leftOut == LeftOut::Zero ? gps.week == 0 && gps.tow == 0
                                                 : gps.week == 65535 && gps.tow == 0xFFFFFFFF;
    if (!silent) Add(name, std::to_string(gps.week) + ":" + std::to_string(gps.tow));
    PutNumber(name + ".reserved", gps.reserved, true);
  }

  void Put(const std::string& name, const UTCTIME& utc) {
    PutNumber(name + ".year", utc.year, false);
    PutNumber(name + ".month", utc.month, false);
    PutNumber(name + ".day", utc.day, false);
    const std::string time = std::to_string(utc.hour) + ":" + std::to_string(utc.minute) + ":" +
                             std::to_string(utc.second) + "." + std::to_string(utc.millisecond);
    const bool known = time != (leftOut == LeftOut::Zero ? "0:0:0.0" : "255:255:255.65535");
    if (known) Add(name + ".time", time);
    if (utc.flag != known) Add(name + ".flag", std::to_string(utc.flag));
    PutNumber(name + ".reserved0", utc.reserved0, true);
    PutNumber(name + ".reserved1", utc.reserved1, true);
  }

  void Put(const std::string& name, const NavframeMember& member, const std::uint8_t* at) {
    if (member.type == NavframePadding) return PutNumber(name, *at, true);
    if (member.type == NavframeNested) return Put(name, *member.record, at);
    if (catalogue::IsText(member)) {
      std::string_view text = catalogue::ReadText(member, at);
      if (member.type == NavframeText) {  // with what is not 0 behind its end
        text = {reinterpret_cast<const char*>(at), member.size};
        text = text.substr(0, text.find_last_not_of('\0') + 1);
      }
      if (!text.empty()) Add(name, text);
      return;
    }
    const bool reserved = (member.flags & NavframeReserved) != 0;
    const auto& row = static_cast<const catalogue::MemberRow&>(member);
    const bool startsAsZero = member.unknownRule == NavframeUnknownNever && row.preset == 0;
    NavframeMember number = member;  // every value of it is one
    number.unknownRule = NavframeUnknownNever;
    catalogue::ReadNumber(number, at, [&](auto value) {
      PutNumber(name, value, member.name == Tag || (reserved && startsAsZero));
    });
  }

  void Put(const std::string& name, const NavframeRecord& layout, const std::uint8_t* record) {
    if (&layout == &catalogue::RecordOf<GPSTIME>) return Put(name, Load<GPSTIME>(record));
    if (&layout == &catalogue::RecordOf<UTCTIME>) return Put(name, Load<UTCTIME>(record));
    for (const NavframeMember* const member : catalogue::MembersOf(layout)) {
      const std::string path = name + (name.empty() ? "" : ".") + member->name;
      for (std::uint32_t i = 0; i < catalogue::Elements(*member); ++i) {
        Put(member->length == 0 ? path : path + "[" + std::to_string(i) + "]", *member,
            catalogue::ElementAt(*member, record, i));
      }
    }
  }

  // What a record begins with, 0 but behind a tag block.
  static constexpr std::string_view Tag = "tag";
};

}  // namespace

std::string MembersOf(const NavframeRecord& layout, const void* record, LeftOut leftOut) {
  Writer writer{leftOut, ""};
  writer.Put("", layout, static_cast<const std::uint8_t*>(record));
  return writer.lines;
}

std::string MembersOf(const std::vector<Record>& records, std::uint32_t kind, LeftOut leftOut) {
  if (records.size() != 1 || records[0].id != kind) return "none\n";
  const NavframeKind& row = *navframe_kind(kind, records[0].source);
  if (records[0].size != row.size) return "a record of another size\n";
  return MembersOf(*row.record, records[0].payload.get(), leftOut);
}

std::string Lines(std::string pairs) {
  std::ranges::replace(pairs, ' ', '\n');
  return pairs.empty() || pairs.ends_with('\n') ? pairs : pairs + "\n";
}

std::string Down(const std::string& name, int first, int count) {
  std::string pairs;
  for (int i = 0; i < count; ++i) {
    pairs += name + "[" + std::to_string(i) + "]=" + std::to_string(first - i) + " ";
  }
  return pairs;
}

}  // namespace navframe::test
