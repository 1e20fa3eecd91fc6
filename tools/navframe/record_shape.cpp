#include "record_shape.h"

#include <algorithm>
#include <array>

namespace navframe::tool {
namespace {

bool Means(const NavframeMember& member) {
  return member.type != NavframePadding && (member.flags & NavframeReserved) == 0;
}

bool IsWanted(const std::string& name, const std::vector<std::string>& fields) {
  return fields.empty() || std::ranges::any_of(fields, [&](const std::string& field) {
           return name == field || name.starts_with(field + ".");
         });
}

class Shaping {
 public:
  Shaping(Level& level, const std::vector<std::string>& fields) : level_(level), fields_(fields) {}

  void Members(const NavframeRecord& record, const std::string& prefix, std::uint32_t offset) {
    for (std::uint32_t m = 0; m < record.memberCount; ++m) {
      const NavframeMember& member = *record.members[m];
      if (!Means(member)) continue;
      const std::string name = prefix + member.name;
      if (member.type != NavframeNested) {
        Values(record, member, name, offset);
      } else if (member.length == 0) {
        Members(*member.record, name + ".", offset + member.offset);
      } else {
        level_.list = &member;
      }
    }
  }

 private:
  void Values(const NavframeRecord& record, const NavframeMember& member, const std::string& name,
              std::uint32_t offset) {
    if (!IsWanted(name, fields_)) return;
    if (member.length == 0) return level_.columns.push_back({name, &record, &member, offset, 0});
    for (std::uint32_t i = 0; i < member.length; ++i) {
      level_.columns.push_back({name + "." + std::to_string(i), &record, &member, offset, i});
    }
  }

  Level& level_;
  const std::vector<std::string>& fields_;
};

}  // namespace

void Column::Append(const void* data, std::string& out) const {
  constexpr std::size_t Room = 64;
  const std::size_t before = out.size();
  const void* const at = static_cast<const std::uint8_t*>(data) + offset;
  if (member->countedBy >= 0 && index >= navframe_length(record, member, at)) return;
  out.resize(before + Room);
  const std::size_t length = navframe_text(member, at, index, out.data() + before, Room);
  if (length >= Room) {
    out.resize(before + length + 1);
    navframe_text(member, at, index, out.data() + before, length + 1);
  }
  out.resize(before + length);
}

Level ShapeOf(const NavframeRecord& record, const std::vector<std::string>& fields) {
  Level level{&record, {}, nullptr, nullptr};
  Shaping(level, fields).Members(record, "", 0);
  if (level.list != nullptr) {
    level.entries = std::make_unique<Level>(ShapeOf(*level.list->record, fields));
    if (level.entries->columns.empty() && level.entries->list == nullptr) level.list = nullptr;
  }
  return level;
}

}  // namespace navframe::tool
