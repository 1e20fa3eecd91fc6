// What goes wrong, as messages for people.
#pragma once

#include <stdexcept>
#include <string>

namespace navframe::tool {

// Of an input: without the name of the program, with that of the file or the address.
class Fault : public std::runtime_error {
 public:
  explicit Fault(const std::string& text, int error = 0)
      : std::runtime_error(text), error_(error) {}
  // The errno behind it; 0 for none.
  int Error() const { return error_; }

 private:
  int error_;
};
// Of the output, behind which there is nothing left to do.
class WriteFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What was asked for cannot be meant.
class UsageFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// "cannot read NAME: WHY" with the text of an errno.
Fault CannotRead(const std::string& name, int error);
WriteFault CannotWrite(const std::string& name, int error);

// The reader of the output has read enough, as `head` has: no failure, but nothing is left to do.
class ReaderLeft : public std::exception {};

}  // namespace navframe::tool
