#include "kinds.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "navframe/records.h"

namespace navframe::tool {
namespace {

// A readable form of records that the library does not render.
using Describe = void (*)(const void* payload, std::string& out);

struct KindRow {
  std::uint32_t id;
  std::string_view name;
  Describe describe = nullptr;  // null: rendered by the library
};
constexpr KindRow Kinds[] = {
    {MsgIdGga, "GGA"}, {MsgIdRmc, "RMC"}, {MsgIdGsa, "GSA"}, {MsgIdGsv, "GSV"}, {MsgIdGll, "GLL"},
    {MsgIdGst, "GST"}, {MsgIdGbs, "GBS"}, {MsgIdVtg, "VTG"}, {MsgIdZda, "ZDA"},
};

const KindRow* FindKind(std::uint32_t id) {
  const auto* const found =
      std::find_if(std::begin(Kinds), std::end(Kinds), [id](auto& row) { return row.id == id; });
  return found == std::end(Kinds) ? nullptr : found;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::toupper(x) == std::toupper(y);
  });
}

void AppendPrefixed(std::string_view name, std::string_view lines, std::string& out) {
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    out.append(name).append(",").append(lines.substr(0, end)).append("\n");
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
}

}  // namespace

std::string KindName(std::uint32_t id) {
  const KindRow* const kind = FindKind(id);
  return kind == nullptr ? "MSG" + std::to_string(id) : std::string(kind->name);
}

std::optional<std::uint32_t> KindId(std::string_view text) {
  for (const KindRow& row : Kinds) {
    if (EqualIgnoringCase(text, row.name)) return row.id;
  }
  std::uint32_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return id;
}

void RecordPrinter::Append(const GnssMessage& message, std::string& out) {
  const KindRow* const kind = FindKind(message.id);
  const std::string_view name = kind == nullptr ? std::string_view("MSG") : kind->name;
  if (kind != nullptr && kind->describe != nullptr) {
    std::string lines;
    kind->describe(message.data, lines);
    AppendPrefixed(name, lines, out);
  } else if (structDataToStr(&message, rendered_.data(), 1) == 0) {
    AppendPrefixed(name, rendered_.data(), out);
  } else {
    AppendPrefixed(name, std::to_string(message.id), out);
  }
}

}  // namespace navframe::tool
