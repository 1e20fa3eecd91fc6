// A file descriptor that closes itself, and reads that wait.
#pragma once

#include <unistd.h>

#include <utility>

#include "fault.h"
#include "sources/source.h"

namespace navframe::tool {

class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ > STDERR_FILENO) close(number_);
  }
  int Number() const { return number_; }

 private:
  int number_;
};

// Source::Read of a descriptor; `error` is an errno, or 0.
Reading TryRead(int descriptor, std::uint8_t* to, std::size_t room, int& error);

// The same, which throws. `name` stands in the message of the Fault.
Reading ReadDescriptor(int descriptor, const std::string& name, std::uint8_t* to, std::size_t room);

}  // namespace navframe::tool
