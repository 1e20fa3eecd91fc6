// Bytes in, records out: the verbs of the tests.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "api/decoder.h"
#include "generator/nmea_stream.h"

namespace navframe::test {

using Bytes = std::vector<std::uint8_t>;

// Volumes shrink and memory is not measured under the sanitizers, which hold freed blocks back.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool Sanitized = true;
#else
inline constexpr bool Sanitized = false;
#endif

Bytes ToBytes(std::string_view text);
Bytes operator+(Bytes a, const Bytes& b);

using sample::Sentence;

// A popped record that owns its payload.
struct Record {
  std::uint32_t id;
  std::shared_ptr<void> payload;
  std::uint32_t size;
  std::uint32_t source;

  template <class T>
  const T& As() const {
    return *static_cast<const T*>(payload.get());
  }
};

// Pops all records that wait.
std::vector<Record> PopAll(QueueSink& sink);
std::vector<Record> PopAll(Decoder& decoder);

// The kinds decoded since the last call.
std::set<std::uint32_t> DecodedIds(Decoder& decoder);

// Pushes the bytes in chunks of `chunk` and pops after each; the records in order.
std::vector<Record> Push(Decoder& decoder, const Bytes& bytes, std::size_t chunk = SIZE_MAX);
std::vector<Record> Push(Decoder& decoder, std::string_view text, std::size_t chunk = SIZE_MAX);

// What a fresh decoder makes of a stream.
std::vector<Record> Decoded(const Bytes& bytes, std::size_t chunk = SIZE_MAX);
std::vector<Record> Decoded(std::string_view text, std::size_t chunk = SIZE_MAX);

// Empties the ring and moves its head to a place in the buffer, before the last byte of it, with
// one byte of garbage there that keeps the indices from starting over.
void PlaceHead(RingInput& stream, std::uint32_t position);
// Pushes behind what is there, though it could go to the front; pops nothing.
void PutInPlace(Decoder& decoder, const Bytes& bytes);

// The ids of records, and "id:text" of each with its rendered form.
std::vector<std::uint32_t> Ids(const std::vector<Record>& records);
std::string Rendered(const Record& record, bool leadingFields = false);

// Two streams of records are the same when their ids and all bytes of their payloads are.
bool SameRecords(const std::vector<Record>& a, const std::vector<Record>& b);

// A file of the folder in the environment variable NAVFRAME_CAPTURES; nothing when that is not
// set or the file is not there. A test skips itself then, with a message.
std::optional<Bytes> Capture(std::string_view name);

// Resident memory of this process in bytes; always 0 under the sanitizers.
std::size_t ResidentMemory();

}  // namespace navframe::test

// Skips the test without the capture.
#define NAVFRAME_CAPTURE_OR_SKIP(bytes, name)                                                      \
  const auto bytes##Capture = ::navframe::test::Capture(name);                                     \
  if (!bytes##Capture) GTEST_SKIP() << "NAVFRAME_CAPTURES does not name a folder with " << (name); \
  const ::navframe::test::Bytes& bytes = *bytes##Capture
