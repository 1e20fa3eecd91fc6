// Files that appear when they are complete, and standard output.
#pragma once

#include <string>

namespace navframe::tool {

// Collects text and writes it in large pieces. A file has a temporary name beside its own until it
// is closed; one that is not is removed. Writing throws a WriteFault, and ReaderLeft for a pipe.
class OutputFile {
 public:
  explicit OutputFile(std::string name);  // "-" for standard output
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  std::string& Buffer() { return buffer_; }
  void WriteWhenLarge() {
    if (buffer_.size() >= LargeEnough) Write();
  }
  void Write();
  void Close();

 private:
  static constexpr std::size_t LargeEnough = 1 << 18;

  bool IsOutput() const { return name_ == "-"; }
  std::string Shown() const { return IsOutput() ? "standard output" : name_; }

  std::string name_;
  std::string temporary_;
  std::string buffer_;
  int file_;
};

}  // namespace navframe::tool
