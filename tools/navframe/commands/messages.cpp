#include "commands/messages.h"

#include <cstdio>

#include "printable.h"

namespace navframe::tool {

void Messages::Add(const std::string& text) {
  kept_.append("navframe: ");
  AppendPrintable(text, kept_);
  kept_ += '\n';
  if (!areKept_) Print();
}

void Messages::Print() {
  if (kept_.empty()) return;
  progress_.Hide();
  std::fputs(kept_.c_str(), stderr);
  kept_.clear();
}

}  // namespace navframe::tool
