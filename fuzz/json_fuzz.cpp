// JSON of records of every kind with any content: it parses, and it keeps to its capacity.
#include <rapidjson/reader.h>

#include <string>

#include "fuzz.h"
#include "navframe/catalogue.h"

using namespace navframe;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  const NavframeKind& kind = *navframe_kind_at(input.Byte() % navframe_kind_count());
  const int fill = input.Byte();  // of what the input does not reach
  const std::size_t capacity = input.Take<std::uint16_t>();
  const auto content = input.Next(kind.size);
  const std::unique_ptr<std::uint8_t[]> payload(new std::uint8_t[kind.size]);
  std::memset(payload.get(), fill, kind.size);
  std::copy(content.begin(), content.end(), payload.get());

  const std::size_t length = navframe_json(&kind, payload.get(), nullptr, 0);
  const std::unique_ptr<char[]> whole(new char[length + 1]);
  fuzz::Require(navframe_json(&kind, payload.get(), whole.get(), length + 1) == length,
                "the length is the same");
  fuzz::Require(std::strlen(whole.get()) == length, "the text has that length");

  rapidjson::MemoryStream stream(whole.get(), length);
  rapidjson::BaseReaderHandler<> ignore;
  rapidjson::Reader reader;
  const auto result = reader.Parse<rapidjson::kParseValidateEncodingFlag>(stream, ignore);
  fuzz::Require(!result.IsError(), "it is JSON");

  const std::unique_ptr<char[]> part(new char[capacity]);
  navframe_json(&kind, payload.get(), part.get(), capacity);
  const std::size_t fitting = capacity == 0 ? 0 : std::min(length, capacity - 1);
  fuzz::Require(std::memcmp(part.get(), whole.get(), fitting) == 0, "what fits is the same");
  fuzz::Require(capacity == 0 || part[fitting] == '\0', "it is terminated");
  return 0;
}
