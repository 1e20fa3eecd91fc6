// Files that appear when they are complete, and standard output.
#pragma once

#include <string>

#include "outputs/outputs.h"

namespace navframe::tool {

// A file has a temporary name beside its own until it is closed; one that is not is removed.
// Writing throws a WriteFault, and ReaderLeft for a pipe.
class OutputFile : public Output {
 public:
  explicit OutputFile(std::string name);  // "-" for standard output
  ~OutputFile() override;

  void Write() override;
  void Close();

 private:
  bool IsOutput() const { return name_ == "-"; }
  std::string Shown() const { return IsOutput() ? "standard output" : name_; }

  std::string name_;
  std::string temporary_;
  int file_;
};

}  // namespace navframe::tool
