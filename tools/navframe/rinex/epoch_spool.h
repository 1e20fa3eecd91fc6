// Epochs on their way into a file whose header is known at its end alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "outputs/temporary_file.h"
#include "rinex/observed.h"

namespace navframe::tool {

// Keeps epochs in the order in which they come: in memory as long as they are few, in a temporary
// file when they are more.
class EpochSpool {
 public:
  // With this time. Throws a WriteFault, as the others do.
  void Put(const Epoch& epoch, Ticks time);

  // Reads them again, from the first one on. False behind the last one.
  void Rewind();
  bool Read(Epoch& epoch);

 private:
  void Take(void* to, std::size_t length);

  std::string memory_;  // what is not in the file; while reading, a piece of all
  TemporaryFile file_;
  std::uint64_t read_ = 0;  // of the file, with that piece
  std::size_t at_ = 0;      // in memory_
};

}  // namespace navframe::tool
