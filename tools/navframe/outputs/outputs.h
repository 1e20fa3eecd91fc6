// Where sinks write: one output, or one for each table.
#pragma once

#include <string>

namespace navframe::tool {

// Text that is written in large pieces.
class Output {
 public:
  virtual ~Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  std::string& Buffer() { return buffer_; }
  void WriteWhenLarge() {
    if (buffer_.size() >= LargeEnough) Write();
  }
  virtual void Write() = 0;

 protected:
  Output() = default;

 private:
  static constexpr std::size_t LargeEnough = 1 << 16;

  std::string buffer_;
};

class Outputs {
 public:
  virtual ~Outputs() = default;
  Outputs(const Outputs&) = delete;
  Outputs& operator=(const Outputs&) = delete;

  // The output with this name, "" of forms that have one alone. A new one begins with the heading.
  // Good as long as the outputs are.
  virtual Output& Open(const std::string& name, const std::string& heading) = 0;
  // Everything put so far is to be seen now.
  virtual void Flush() = 0;

 protected:
  Outputs() = default;
};

}  // namespace navframe::tool
