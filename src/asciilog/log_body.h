// The comma-separated fields of a log's body, and what they become in a record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace navframe::asciilog {

// Hands out one field after the other. A field that begins with a quote reaches to the next quote,
// commas included.
class BodyReader {
 public:
  explicit BodyReader(std::string_view body) : rest_(body) {}

  // Nothing behind the last field.
  std::optional<std::string_view> Next();

 private:
  std::optional<std::string_view> rest_;
};

// One field of a body: how wide it is in the record and how it gets there. Records have the fields
// in the order of the line and without gaps, so that a log is the plain list of its fields.
struct Field {
  std::size_t width;
  // Writes `width` bytes at `member`, which has no alignment. False when the text has no value of
  // the type.
  bool (*read)(std::string_view text, std::byte* member);
};

// The fields of one kind of log.
struct BodyFormat {
  std::span<const Field> fields;
  // Groups of fields behind them, as many as the last of `fields`, 32 bits wide, says.
  std::span<const Field> group = {};
  std::size_t mostGroups = 0;

  constexpr std::size_t Width() const { return WidthOf(fields) + mostGroups * WidthOf(group); }

  static constexpr std::size_t WidthOf(std::span<const Field> fields) {
    std::size_t width = 0;
    for (const Field& field : fields) width += field.width;
    return width;
  }
};

// Writes the fields of a body to the record at `body`, which has room for Width() bytes, and
// returns how many bytes that were. Nothing when the line lacks a field, when a field has no value
// of its type, or when there are more groups than the record has room for; fields behind the last
// one of the format are left alone.
std::optional<std::size_t> ReadBody(const BodyFormat& format, std::string_view text,
                                    std::byte* body);

}  // namespace navframe::asciilog
