// Lines of the headers of RINEX files: 60 columns of content, then a label.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace navframe::tool {

// A line. Content is cut behind column 60 and filled up to it, the label likewise to column 80.
// What is no printable ASCII becomes "?".
void PutLine(std::string& out, std::string_view content, std::string_view label);

// A text of any length as lines COMMENT, broken between words where it can be.
void PutComment(std::string& out, std::string_view text);

// What stands in the first two lines of every file.
struct FirstLines {
  std::string_view version;  // "3.05"
  char type;                 // 'O' observations, 'N' navigation data
  char system;               // its letter; 'M' for several
  std::string_view runBy;    // who runs the program; "" for not known
  std::chrono::sys_seconds date;
};

// RINEX VERSION / TYPE and PGM / RUN BY / DATE.
void PutFirstLines(std::string& out, const FirstLines& lines);

}  // namespace navframe::tool
