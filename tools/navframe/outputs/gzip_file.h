// Files that are compressed while they are written.
#pragma once

#include <memory>
#include <string>

#include "outputs/outputs.h"

namespace navframe::tool {

// As an OutputFile, with gzip. The bytes depend on the content alone. Throws a WriteFault where the
// tool was built without zlib.
class GzipFile : public Output {
 public:
  explicit GzipFile(const std::string& name);
  ~GzipFile() override;

  void Write() override;
  void Close();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace navframe::tool
