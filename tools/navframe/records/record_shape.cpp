#include "records/record_shape.h"

#include <algorithm>

namespace navframe::tool {
namespace {

// Longer arrays of bytes are what a message carries, and no numbers.
constexpr std::uint32_t LongestRow = 32;

bool IsWanted(const std::string& name, const std::vector<std::string>& fields) {
  return fields.empty() || std::ranges::any_of(fields, [&](const std::string& field) {
           return name.starts_with(field) &&
                  (name.size() == field.size() || name[field.size()] == '.');
         });
}

class Shaping {
 public:
  // `list` is the name of the list whose entries the level has, with a point.
  Shaping(Level& level, const std::vector<std::string>& fields, std::string list)
      : level_(level), fields_(fields), list_(std::move(list)) {}

  void Members(const NavframeRecord& record, const std::string& prefix, std::uint32_t offset) {
    for (std::uint32_t m = 0; m < record.memberCount; ++m) {
      const NavframeMember& member = *record.members[m];
      if (!Means(member)) continue;
      const std::string name = prefix + member.name;
      if (member.type == NavframeNested) {
        Nested(member, name, offset);
      } else if (IsNamed(name)) {
        const bool isBinary = member.type == NavframeU8 && member.length > LongestRow;
        const ValueText value(member, offset);
        level_.columns.push_back({name, &record, &member, offset, isBinary,
                                  member.length == 0 && value.IsNumber(), value});
      }
    }
  }

 private:
  // Alone, or with the lists that it stands in, all or the inner ones.
  bool IsNamed(const std::string& name) const {
    for (std::size_t list = 0; list < list_.size(); list = list_.find('.', list) + 1) {
      if (IsWanted(list_.substr(list) + name, fields_)) return true;
    }
    return IsWanted(name, fields_);
  }

  void Nested(const NavframeMember& member, const std::string& name, std::uint32_t offset) {
    if (member.length == 0) {
      return Members(*member.record, name + ".", offset + member.offset);
    }
    auto entries = std::make_unique<Level>(Level{member.record, {}, nullptr, nullptr});
    Shaping(*entries, fields_, list_ + member.name + ".").Members(*member.record, "", 0);
    if (entries->IsEmpty()) return;
    level_.list = &member;
    level_.entries = std::move(entries);
  }

  Level& level_;
  const std::vector<std::string>& fields_;
  const std::string list_;
};

}  // namespace

char* Column::PutBytes(const void* data, char* to) const {
  constexpr char Digits[] = "0123456789abcdef";
  const std::uint8_t* const at = At(data) + member->offset;
  const std::uint32_t count = Count(data);
  for (std::uint32_t i = 0; i < count; ++i) {
    *to++ = Digits[at[i] >> 4];
    *to++ = Digits[at[i] & 0xF];
  }
  return to;
}

bool Means(const NavframeMember& member) {
  return member.type != NavframePadding && (member.flags & NavframeReserved) == 0;
}

Level ShapeOf(const NavframeRecord& record, const std::vector<std::string>& fields) {
  Level level{&record, {}, nullptr, nullptr};
  Shaping(level, fields, "").Members(record, "", 0);
  return level;
}

}  // namespace navframe::tool
