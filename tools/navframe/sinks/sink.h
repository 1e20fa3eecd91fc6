// Where items go: one class for each form of output.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "navframe/stream.h"
#include "outputs/outputs.h"

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

  virtual void Take(const Wanted& wanted) = 0;
  // An item that is not wanted.
  virtual void Leave(const NavframeItem&) {}

 protected:
  Sink() = default;
};

struct SinkOptions {
  std::vector<std::string> fields;  // members that are shown; none for all
  bool withSource = false;          // several inputs: tell which
  bool withParts = false;           // undecoded, rejected and skipped ones too
  bool bySome = false;              // some records are wanted, by their content, not all
  bool legacy = false;              // records are those of the exports
};

// Forms, by the names that --format takes. A sink is made for each input.
struct FormRow {
  const char* name;
  const char* description;
  std::unique_ptr<Sink> (*make)(const SinkOptions& options, Outputs& outputs);
  bool hasTables = false;    // outputs with names
  bool takesFrames = false;  // every whole frame, in front of its records, and all records
};

std::unique_ptr<Sink> MakeText(const SinkOptions& options, Outputs& outputs);
std::unique_ptr<Sink> MakeJson(const SinkOptions& options, Outputs& outputs);
std::unique_ptr<Sink> MakeCsv(const SinkOptions& options, Outputs& outputs);
std::unique_ptr<Sink> MakeRaw(const SinkOptions& options, Outputs& outputs);

inline constexpr FormRow Forms[] = {
    {"text", "lines for people: time, kind, name value unit", MakeText},
    {"json", "JSON Lines: one object a record", MakeJson},
    {"csv", "a table a kind, in a folder, or of one kind", MakeCsv, true, false},
    {"raw", "the bytes of the frames that pass", MakeRaw, false, true},
};

}  // namespace navframe::tool
