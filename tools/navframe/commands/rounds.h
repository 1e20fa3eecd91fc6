// Looks at a recording as often as it takes to say what is wrong with it: what can be taken out of
// it is taken out, and what is left looked at again.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/examination.h"
#include "commands/doctor_page.h"
#include "commands/messages.h"
#include "commands/undone_source.h"
#include "navframe/stream.h"
#include "progress.h"

namespace navframe::tool {

class Rounds {
 public:
  // Others that look at the items of the recording as it is, with its statistics in the end.
  struct Others {
    std::function<void(const NavframeItem&)> take;
    std::function<void(const NavframeStatistics&)> end;
  };

  // Of a failure behind the opening there is a message.
  Rounds(std::string name, Progress& progress, Messages& messages);
  ~Rounds();

  // Throws a Fault when the recording does not open.
  void Examine(const Others& others = {});

  const analysis::Diagnosis& Found() const { return diagnosis_; }
  // Whether all of it was read.
  bool IsGood() const { return isGood_; }
  const Repaired& TakenOut() const { return repaired_; }

  // The recording from its beginning, without what was found in it so far. Good until the next
  // call.
  Source& Open();

 private:
  class Kept;
  class KeepingSource;
  class KeptSource;

  std::uint64_t Original(std::uint64_t offset) const;
  analysis::Examination::Result Round(const Others* others);
  void Close();

  const std::string name_;
  Progress& progress_;
  Messages& messages_;
  std::unique_ptr<Kept> kept_;
  bool isRead_ = false;
  std::vector<analysis::Undo> undos_;
  std::unique_ptr<Source> source_;
  std::vector<const UndoneSource*> undone_;  // of the source that is open
  std::vector<std::uint64_t> takenOut_;      // bytes, by each of undos_
  analysis::Diagnosis diagnosis_;
  Repaired repaired_;
  bool isGood_ = true;
};

}  // namespace navframe::tool
