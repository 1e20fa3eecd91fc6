// Output that waits for its turn.
#pragma once

#include <atomic>
#include <map>
#include <string>
#include <vector>

#include "outputs/outputs.h"
#include "outputs/temporary_file.h"

namespace navframe::tool {

// Keeps what is written until the turn comes, then hands it on; in memory as long as it is little,
// in a temporary file when it is more. Written from one thread; another may say that the turn has
// come.
class Spool : public Outputs {
 public:
  Spool() = default;

  Output& Open(const std::string& name, const std::string& heading) override;
  void Flush() override;

  // From its next piece on the writer hands on everything by itself. What it wrote before is handed
  // on then, or with End.
  void GiveTurn(Outputs& to) { to_ = &to; }
  // The writer is done: everything that waits goes to `to`.
  void End(Outputs& to);

 private:
  class Waiting : public Output {
   public:
    Waiting(Spool& spool, const std::string& name, const std::string& heading)
        : spool_(spool), name_(name), heading_(heading) {}
    void Write() override { spool_.Put(*this); }
    Output& In(Outputs& to) const { return to.Open(name_, heading_); }

   private:
    Spool& spool_;
    const std::string name_;
    const std::string heading_;
  };
  // What was written in a row to one output, in memory_ or behind each other in file_.
  struct Piece {
    const Waiting* output;
    std::size_t length;
  };

  void Put(Waiting& output);
  void HandOn(Outputs& to);
  void Spill();

  std::map<std::string, Waiting> outputs_;
  std::vector<Piece> pieces_;
  std::string memory_;  // the last of them
  TemporaryFile file_;  // those before
  std::atomic<Outputs*> to_ = nullptr;
};

}  // namespace navframe::tool
