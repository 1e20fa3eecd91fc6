#include "record_text.h"

#include <array>
#include <charconv>

#include "printable.h"

namespace navframe::tool {
namespace {

bool IsList(const NavframeMember& member) {
  return member.type == NavframeNested && member.length != 0;
}

class Lines {
 public:
  Lines(std::string_view kind, std::string& out) : kind_(kind), out_(out) {}

  void Record(const NavframeRecord& record, const void* data) {
    out_.append(kind_);
    Members(record, data, "");
    out_ += '\n';
    Lists(record, data);
  }

 private:
  // The lists of a record, a line an entry; those within an entry stand behind it.
  void Lists(const NavframeRecord& record, const void* data) {
    for (std::uint32_t m = 0; m < record.memberCount; ++m) {
      const NavframeMember& member = *record.members[m];
      if (!IsList(member)) continue;
      const std::uint32_t length = navframe_length(&record, &member, data);
      for (std::uint32_t i = 0; i < length; ++i) {
        const void* const entry = navframe_nested(&member, data, i);
        out_.append(kind_).append(" ").append(member.name);
        separator_ = " ";
        Members(*member.record, entry, "");
        Inner(*member.record, entry);
        out_ += '\n';
      }
    }
  }

  void Inner(const NavframeRecord& record, const void* data) {
    for (std::uint32_t m = 0; m < record.memberCount; ++m) {
      const NavframeMember& member = *record.members[m];
      if (!IsList(member)) continue;
      const std::uint32_t length = navframe_length(&record, &member, data);
      for (std::uint32_t i = 0; i < length; ++i) {
        out_.append("; ").append(member.name);
        separator_ = " ";
        Members(*member.record, navframe_nested(&member, data, i), "");
      }
    }
  }

  void Members(const NavframeRecord& record, const void* data, const std::string& prefix) {
    for (std::uint32_t m = 0; m < record.memberCount; ++m) {
      const NavframeMember& member = *record.members[m];
      if (member.type == NavframePadding || (member.flags & NavframeReserved) != 0) continue;
      if (IsList(member)) continue;
      if (member.type == NavframeNested) {
        Members(*member.record, navframe_nested(&member, data, 0), prefix + member.name + ".");
      } else {
        Value(record, member, data, prefix);
      }
    }
  }

  void Value(const NavframeRecord& record, const NavframeMember& member, const void* data,
             const std::string& prefix) {
    std::string values;
    const std::uint32_t length = navframe_length(&record, &member, data);
    bool known = false;
    for (std::uint32_t i = 0; i < length; ++i) {
      const std::string value = Element(member, data, i);
      known |= !value.empty();
      values.append(" ").append(value.empty() ? "-" : value);
    }
    if (!known) return;
    out_.append(separator_).append(prefix).append(member.name).append(values);
    if (*member.unit != '\0') out_.append(" ").append(member.unit);
    separator_ = ", ";
  }

  // Empty when it is not known. A value that has a name comes with it.
  static std::string Element(const NavframeMember& member, const void* data, std::uint32_t index) {
    std::array<char, 128> text;
    const std::size_t length = navframe_text(&member, data, index, text.data(), text.size());
    std::string printable;
    AppendPrintable({text.data(), std::min(length, text.size() - 1)}, printable);
    std::int64_t value;
    if (member.valueCount != 0 && navframe_integer(&member, data, index, &value) == NavframeKnown) {
      if (const char* const name = navframe_value_name(&member, value)) {
        printable.append(" (").append(name).append(")");
      }
    }
    return printable;
  }

  std::string_view kind_;
  std::string& out_;
  std::string_view separator_ = " ";
};

}  // namespace

std::vector<const NavframeKind*> KindsNamed(const std::string& text) {
  // A kind that the exports know stands for its message, of which streams may make another.
  constexpr std::uint32_t FirstOfStreams = 0x10000;
  const NavframeKind* const first = navframe_kind_named(text.c_str());
  const char* const message =
      first != nullptr && first->id < FirstOfStreams ? first->message : nullptr;
  std::vector<const NavframeKind*> kinds;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const NavframeKind* const kind = navframe_kind_at(i);
    if (navframe_kind_has_name(kind, text.c_str()) != 0 ||
        navframe_kind_has_name(kind, message) != 0) {
      kinds.push_back(kind);
    }
  }
  std::uint32_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (!kinds.empty() || error != std::errc{} || end != text.data() + text.size()) return kinds;
  const NavframeKind* const numbered = navframe_kind(id, SourceStream);
  const NavframeKind* const log = navframe_kind(id, SourceAsciiLog);
  if (numbered != nullptr || log != nullptr) kinds.push_back(numbered != nullptr ? numbered : log);
  return kinds;
}

void AppendRecord(const NavframeKind& kind, const void* payload, std::string& out) {
  Lines(kind.name, out).Record(*kind.record, payload);
}

}  // namespace navframe::tool
