#include "asciilog/log_body.h"

#include <cstring>

namespace navframe::asciilog {
namespace {

bool ReadFields(std::span<const Field> fields, BodyReader& reader, std::byte*& at) {
  for (const Field& field : fields) {
    const auto text = reader.Next();
    if (!text || !field.read(*text, at)) return false;
    at += field.width;
  }
  return true;
}

}  // namespace

std::optional<std::string_view> BodyReader::Next() {
  if (!rest_) return std::nullopt;
  std::size_t searchFrom = 0;
  if (rest_->starts_with('"')) {
    const std::size_t quote = rest_->find('"', 1);
    if (quote != std::string_view::npos) searchFrom = quote;
  }
  const std::size_t comma = rest_->find(',', searchFrom);
  const std::string_view field = rest_->substr(0, comma);
  if (comma == std::string_view::npos) {
    rest_.reset();
  } else {
    rest_->remove_prefix(comma + 1);
  }
  return field;
}

std::optional<std::size_t> ReadBody(const BodyFormat& format, std::string_view text,
                                    std::byte* body) {
  BodyReader reader(text);
  std::byte* at = body;
  if (!ReadFields(format.fields, reader, at)) return std::nullopt;
  if (format.mostGroups != 0) {
    std::uint32_t groups = 0;
    std::memcpy(&groups, at - sizeof(groups), sizeof(groups));
    if (groups > format.mostGroups) return std::nullopt;
    for (std::uint32_t i = 0; i < groups; ++i) {
      if (!ReadFields(format.group, reader, at)) return std::nullopt;
    }
  }
  return static_cast<std::size_t>(at - body);
}

}  // namespace navframe::asciilog
