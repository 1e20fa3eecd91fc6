#include "commands/kinds.h"

#include <string_view>

#include "commands/run_command.h"
#include "outputs/output_file.h"
#include "records/kind_names.h"
#include "records/record_shape.h"

namespace navframe::tool {
namespace {

void Pad(std::string& out, std::size_t from, std::size_t width) {
  const std::size_t length = out.size() - from;
  out.append(length < width ? width - length : 1, ' ');
}

void List(std::string& out) {
  for (const KindGroup& group : KindGroups()) {
    const std::size_t from = out.size();
    out.append(group.name);
    Pad(out, from, 20);
    out.append(group.description).append(":");
    for (const NavframeKind* kind : group.kinds) out.append(" ").append(kind->name);
    out += '\n';
  }
  out += '\n';
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const NavframeKind& kind = *navframe_kind_at(i);
    if (std::string_view(kind.description) == "never made") continue;
    const std::size_t from = out.size();
    out.append(kind.name);
    Pad(out, from, 20);
    out.append(kind.protocol);
    Pad(out, from, 32);
    out.append(kind.description).append("\n");
  }
}

void Members(const Level& level, const std::string& indent, std::string& out) {
  for (const Column& column : level.columns) {
    const NavframeMember& member = *column.member;
    const std::size_t from = out.size();
    out.append(indent).append(column.name);
    Pad(out, from, 34);
    out.append(member.unit);
    Pad(out, from, 44);
    out.append(member.description);
    for (std::uint32_t v = 0; v < member.valueCount; ++v) {
      out.append(v == 0 ? ": " : ", ").append(std::to_string(member.values[v].value));
      out.append(" ").append(member.values[v].name);
    }
    out += '\n';
  }
  if (level.list == nullptr) return;
  out.append(indent).append(level.list->name).append(":\n");
  Members(*level.entries, indent + "  ", out);
}

}  // namespace

ExitStatus ListKinds(const std::vector<std::string>& names) {
  return RunCommand([&names] {
    OutputFile file("-");
    if (names.empty()) List(file.Buffer());
    for (const std::string& name : names) {
      for (const NavframeKind* kind : KindsNamed(name)) {
        file.Buffer().append(kind->name).append(": ").append(kind->description).append(", ");
        file.Buffer().append(kind->protocol).append(" ").append(kind->message).append("\n");
        Members(ShapeOf(*kind->record, {}), "  ", file.Buffer());
      }
    }
    file.Close();
    return Success;
  });
}

}  // namespace navframe::tool
