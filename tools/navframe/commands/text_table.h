// Columns of text, as wide as they have to be.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace navframe::tool {

class TextTable {
 public:
  enum class Side : bool { Left, Right };
  struct Column {
    std::string heading;
    Side side;
  };

  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  // Cells of the first columns; the others are empty.
  void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
  bool IsEmpty() const { return rows_.empty(); }

  // Appends the heading and the rows, each behind two blanks. Columns without any cell are left
  // out.
  void AppendTo(std::string& out) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace navframe::tool
