// Live sources side by side, a thread for each.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "commands/decode.h"
#include "commands/decoding.h"

namespace navframe::tool {

class LiveSources {
 public:
  LiveSources(const DecodeOptions& options, Outputs& outputs, const Reports& reports,
              std::uint64_t& wanted)
      : options_(options), outputs_(outputs), reports_(reports), wanted_(wanted) {}

  // Those that open are read although others do not. False when not all could be read to their
  // end. Throws what ends the output, once all have stopped.
  bool Decode(const std::vector<std::string>& names);

 private:
  struct Live {
    std::string name;
    std::unique_ptr<Source> source;
  };

  void Open(const std::string& name);
  void Run(const Live& live);
  void Fail(const std::string& message);

  const DecodeOptions& options_;
  Outputs& outputs_;
  const Reports reports_;
  std::uint64_t& wanted_;
  std::vector<Live> sources_;
  LiveTogether together_;
  bool isGood_ = true;
  std::exception_ptr failure_;
};

}  // namespace navframe::tool
