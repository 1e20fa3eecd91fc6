// Streams of hosts, watched while they decode.
#pragma once

#include <string>
#include <vector>

#include "navframe/stream.hpp"
#include "support/streams.h"

namespace navframe::test {

// An item as a line:
//   frame     "NMEA GPVTG 41 =1", "UBX 0107 100 =0 no kind": length, number of records, reason
//   rejected  "UBX rejected checksum 18": reason and the length that it claims
//   skipped   "skipped 5"
//   record    "  VTG": kind; with its payload as JSON
std::string LineOf(const Item& item, bool withJson = false);

// What a stream makes of all the bytes and their end, with records as JSON.
std::string LinesOf(const NavframeOptions& options, const Bytes& bytes,
                    std::size_t chunk = SIZE_MAX);

// Puts bytes, takes the items and holds each against what streams promise: spans cover every byte
// once, with the bytes that were put; records name the frame in front of them, or an end of the
// input; statistics count what came. What does not is a failure of the test. Asks for all items.
class WatchedStream {
 public:
  explicit WatchedStream(StreamOptions options = StreamOptions());
  ~WatchedStream();

  // The items that come, as lines.
  std::string Put(const Bytes& bytes, std::size_t chunk = SIZE_MAX);
  std::string Flush();
  std::string Idle();
  std::string PutFlush(const Bytes& bytes);
  std::string PutIdle(const Bytes& bytes);

  bool withJson = false;
  Stream stream;

 private:
  std::string Take();
  void CheckSpan(const Item& item);
  void CheckRecord(const Item& item);
  void CheckStatistics();

  Bytes put_;
  NavframeStatistics counted_{};
  std::uint64_t covered_ = 0;
  std::uint64_t skippedBefore_ = 0;  // length of the last span, when it was skipped
  struct {
    std::uint64_t offset = 0;
    std::uint32_t length = 0;
    std::uint32_t recordsToCome = 0;
  } frame_;
  bool ending_ = false;  // a cycle may come without a frame
};

// All that a watched stream makes of the bytes and their end.
std::string Watched(const Bytes& bytes, std::size_t chunk = SIZE_MAX);

}  // namespace navframe::test
