// A stream, and the items that came out of it and wait to be handed to Python. Knows no Python, so
// that it works while others have the interpreter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "navframe/stream.hpp"

namespace navframe::python {

// What a stream is opened with.
struct Options {
  std::vector<const NavframeKind*> kinds;  // none: all
  std::uint32_t protocols = 0;             // NavframeProtocol bits; 0: all
  std::uint32_t startWeek = 0;
  bool legacy = false;
  bool withParts = false;  // what is no record, too
};
Stream OpenStream(const Options& options);

// The bytes of a record that mean something: what lies behind the entries in use of a list at its
// end does not.
std::uint32_t LengthInUse(const NavframeKind& kind, const void* record);

// An item with its own copy of everything. It lies in the batch until the next call.
struct Waiting {
  NavframeItem item;        // without its pointers, but for `kind`
  const char* messageName;  // navframe_message_name
  std::uint32_t dataLength;
  std::uint32_t tagLength;
  bool hasTag;

  // The payload of a record, or the bytes of a part.
  std::span<const std::uint8_t> Data() const {
    return {reinterpret_cast<const std::uint8_t*>(this + 1), dataLength};
  }
  std::string_view Tag() const {
    return {reinterpret_cast<const char*>(this + 1) + dataLength, tagLength};
  }
};

class Decoder {
 public:
  explicit Decoder(const Options& options) : stream_(OpenStream(options)) {}

  // Decodes the bytes; throws std::bad_alloc.
  void Take(std::span<const std::uint8_t> bytes);
  void Idle();
  void Flush();
  void Reset();
  NavframeStatistics Statistics() const { return stream_.statistics(); }

  // The next item; null when none waits.
  const Waiting* Next();
  bool IsEmpty() const { return next_ == end_; }

 private:
  void Drain();
  void Add(const NavframeItem& item);
  std::uint8_t* Room(std::size_t length);

  Stream stream_;
  std::vector<std::uint64_t> room_;  // items one behind the other, as wide as they need
  std::size_t next_ = 0;             // in words
  std::size_t end_ = 0;
};

}  // namespace navframe::python
