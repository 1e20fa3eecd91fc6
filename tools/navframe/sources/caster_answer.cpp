#include "sources/caster_answer.h"

#include <algorithm>
#include <utility>

#include "printable.h"

namespace navframe::tool {
namespace {

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return lower;
}

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t\r\n") + 1);
}

}  // namespace

void CasterAnswer::TakeHeadLine(std::string_view line) {
  line = Trimmed(line);
  if (line.starts_with("HTTP/")) {
    *this = {};
    isFirstLine_ = false;
    line = Trimmed(line.substr(std::min(line.find(' '), line.size())));
    status_ = line.substr(0, line.find(' '));
    reason_ = Trimmed(line.substr(status_.size()));
  } else if (line.empty()) {
    const bool isGood = status_ == "200";
    kind_ = !isGood                                 ? Kind::Other
            : type_.starts_with("gnss/sourcetable") ? Kind::SourceTable
            : type_.starts_with("text/html")        ? Kind::Other
                                                    : Kind::Stream;
  } else {
    const std::string name = Lower(line.substr(0, line.find(':')));
    const std::string value = Lower(Trimmed(line.substr(std::min(name.size() + 1, line.size()))));
    if (name == "content-type") type_ = value;
    if (name == "www-authenticate") wantsDigest_ |= value.starts_with("digest");
  }
}

void CasterAnswer::TakeBody(std::string_view bytes) {
  body_.append(bytes);
  if (isFirstLine_) TakeFirstLine();
}

// "ICY 200 OK", "SOURCETABLE 200 OK", "ERROR - Bad Password".
void CasterAnswer::TakeFirstLine() {
  constexpr std::size_t LongestLine = 256;
  const std::size_t end = body_.find('\n');
  if (end == std::string::npos && body_.size() < LongestLine) {
    reason_ = body_;
    return;
  }
  isFirstLine_ = false;
  const std::string line(Trimmed(body_.substr(0, std::min(end, LongestLine))));
  if (line.starts_with("ICY 200")) {
    kind_ = Kind::Stream;
  } else if (line.starts_with("SOURCETABLE 200")) {
    kind_ = Kind::SourceTable;
  } else {
    kind_ = Kind::Other;
    reason_ = line;
    if (line.starts_with("<")) type_ = "text/html";
    return;
  }
  body_.erase(0, end + 1);
  if (body_.starts_with("\r\n")) body_.erase(0, 2);  // some casters end a head with it
}

std::string CasterAnswer::Why() const {
  if (kind_ == Kind::SourceTable) {
    return "the caster has no such mountpoint and answers with the list of those that it has: see "
           "navframe sources";
  }
  if (status_ == "401") return "the caster answers 401: user or password is not right";
  if (status_ == "404") return "the caster answers 404: there is no such mountpoint";
  if (type_.starts_with("text/html") && (status_.empty() || status_ == "200")) {
    return "answers with a web page: this is no caster";
  }
  std::string text;
  AppendPrintable(status_ + (status_.empty() ? "" : " ") + reason_, text);
  return text.empty() ? "the caster answers nothing" : "the caster answers " + text;
}

}  // namespace navframe::tool
