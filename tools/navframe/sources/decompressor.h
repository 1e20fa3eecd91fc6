// Formats of compression, each in pieces of any size.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace navframe::tool {

class Decompressor {
 public:
  struct Step {
    std::size_t taken = 0;
    std::size_t made = 0;
    std::string fault;       // empty for none
    std::size_t behind = 0;  // of a fault: taken before, from where on anything may be damaged
  };

  virtual ~Decompressor() = default;
  Decompressor(const Decompressor&) = delete;
  Decompressor& operator=(const Decompressor&) = delete;

  virtual const char* Name() const = 0;
  virtual Step Take(std::span<const std::uint8_t> input, std::span<std::uint8_t> output) = 0;
  // Whether the input may end here.
  virtual bool IsComplete() const = 0;

 protected:
  Decompressor() = default;
};

// Throw a Fault when the tool was built without the library.
std::unique_ptr<Decompressor> MakeGzip();
std::unique_ptr<Decompressor> MakeZstd();

}  // namespace navframe::tool
