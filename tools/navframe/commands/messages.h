// Messages to standard error.
#pragma once

#include <string>

#include "progress.h"

namespace navframe::tool {

// Collected while others have their turn.
class Messages {
 public:
  Messages(Progress& progress, bool areKept) : progress_(progress), areKept_(areKept) {}

  void Add(const std::string& text);
  void Print();

 private:
  Progress& progress_;
  const bool areKept_;
  std::string kept_;
};

}  // namespace navframe::tool
