#include "commands/text_table.h"

#include <algorithm>

namespace navframe::tool {
namespace {

// Characters, not bytes: UTF-8 is all that cells are made of.
std::size_t WidthOf(const std::string& text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void AppendLine(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths,
                const std::vector<TextTable::Column>& columns, std::string& out) {
  const std::size_t begin = out.size();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (widths[i] == 0) continue;
    const std::string& cell = i < cells.size() ? cells[i] : std::string();
    const std::string room(widths[i] - WidthOf(cell), ' ');
    const bool isRight = columns[i].side == TextTable::Side::Right;
    out.append("  ").append(isRight ? room : cell).append(isRight ? cell : room);
  }
  out.erase(std::max(out.find_last_not_of(' ') + 1, begin));
  out += '\n';
}

}  // namespace

void TextTable::AppendTo(std::string& out) const {
  std::vector<std::size_t> widths(columns_.size());
  std::vector<std::string> headings;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    for (const auto& row : rows_) {
      if (i < row.size()) widths[i] = std::max(widths[i], WidthOf(row[i]));
    }
    headings.push_back(columns_[i].heading);
    if (widths[i] != 0) widths[i] = std::max(widths[i], WidthOf(headings.back()));
  }
  AppendLine(headings, widths, columns_, out);
  for (const auto& row : rows_) AppendLine(row, widths, columns_, out);
}

}  // namespace navframe::tool
