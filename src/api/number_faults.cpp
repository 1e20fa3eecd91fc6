#include "api/number_faults.h"

#include <stdexcept>

namespace navframe {

void Throw(NumberFault fault) {
  switch (fault) {
    case NumberFault::NoInt:
      throw std::invalid_argument("invalid stoi argument");
    case NumberFault::NoDouble:
      throw std::invalid_argument("invalid stod argument");
    case NumberFault::NoFloat:
      throw std::invalid_argument("invalid stof argument");
    case NumberFault::IntRange:
      throw std::out_of_range("stoi argument out of range");
    case NumberFault::DoubleRange:
      throw std::out_of_range("stod argument out of range");
    case NumberFault::FloatRange:
      throw std::out_of_range("stof argument out of range");
    case NumberFault::None:
    case NumberFault::TooShort:
      break;
  }
  throw std::out_of_range("invalid string position");
}

}  // namespace navframe
