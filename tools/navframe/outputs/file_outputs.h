// The outputs that the user named.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "outputs/output_file.h"

namespace navframe::tool {

// Standard output ("-") or a file; or with `hasTables` a folder with a file for each table. Of
// tables there is room for one on standard output, and in a file whose name ends in ".csv".
class FileOutputs : public Outputs {
 public:
  FileOutputs(std::string target, bool hasTables);

  Output& Open(const std::string& name, const std::string& heading) override;
  void Flush() override;
  // They are complete.
  void Close();

 private:
  bool HasRoomForOne() const;

  const std::string target_;
  const bool hasTables_;
  std::map<std::string, OutputFile> files_;
};

}  // namespace navframe::tool
