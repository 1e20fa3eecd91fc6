// Reads the start of a text as the C library's formatted scan does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace navframe::asciilog {

// The conversions that log headers and CRC digits need, with the outcome of the formatted scan in
// the "C" locale, whatever locale the host has set: numbers skip leading white space, texts do not,
// an integer too large for 64 bits is clamped there and then cut to 32. The first mismatch ends the
// scan: everything behind it reads as 0 or as an empty text and is not counted.
class FormatScan {
 public:
  explicit FormatScan(std::string_view text) : rest_(text) {}

  // Conversions that yielded a value, skipped texts not counted.
  int Converted() const { return converted_; }

  void SkipText();           // "%*[^,]"
  std::string_view Text();   // "%[^,]"
  std::int32_t Int();        // "%d", and "%ld" cut to 32 bits
  std::uint32_t Unsigned();  // "%u"
  float Float();             // "%f"
  double Double();           // "%lf"
  std::uint32_t Hex();       // "%8X", of at most 8 digits
  void Comma();              // ","

 private:
  std::string_view TakeText();
  bool TakeSign();  // and the white space before it; true for "-"
  void TakeNumber(std::size_t length);
  std::uint64_t TakeInteger(std::uint64_t lowest, std::uint64_t highest);
  template <class T>
  T TakeReal();

  std::string_view rest_;
  bool going_ = true;
  int converted_ = 0;
};

}  // namespace navframe::asciilog
