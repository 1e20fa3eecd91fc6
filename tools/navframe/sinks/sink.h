// Where items go: one class for each form of output.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "navframe/stream.h"
#include "output_file.h"

namespace navframe::tool {

// An item that is wanted.
struct Wanted {
  const NavframeItem& item;
  const void* record;         // the item's payload, without the entries that are not wanted
  const std::string& source;  // name of the input
};

class Sink {
 public:
  virtual ~Sink() = default;
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;

  // Every frame comes before its records, also one that is none of the wanted parts itself.
  virtual void Take(const Wanted& wanted) = 0;
  // Everything taken so far is to be seen now.
  virtual void Flush() = 0;
  // The end of the output, which is then complete..
  virtual void End() = 0;

 protected:
  Sink() = default;
};

struct SinkOptions {
  std::string target = "-";         // a file, a folder for csv; "-" for standard output
  std::vector<std::string> fields;  // members that are shown; none for all
  bool withSource = false;          // several inputs: tell which
  bool withParts = false;           // undecoded, rejected and skipped ones too
};

// Forms, by the names that --format takes.
struct FormRow {
  const char* name;
  const char* description;
  std::unique_ptr<Sink> (*make)(const SinkOptions& options);
};

std::unique_ptr<Sink> MakeText(const SinkOptions& options);
std::unique_ptr<Sink> MakeJson(const SinkOptions& options);
std::unique_ptr<Sink> MakeCsv(const SinkOptions& options);
std::unique_ptr<Sink> MakeRaw(const SinkOptions& options);

inline constexpr FormRow Forms[] = {
    {"text", "lines for people: time, kind, name value unit", MakeText},
    {"json", "JSON Lines: one object a record", MakeJson},
    {"csv", "a table a kind, in a folder, or of one kind", MakeCsv},
    {"raw", "the bytes of the frames that pass", MakeRaw},
};

}  // namespace navframe::tool
