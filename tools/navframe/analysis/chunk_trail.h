// Heads of a transfer in chunks (HTTP) that were left in a recording: the length of the data in
// hexadecimal digits, CR LF, the data, CR LF.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "analysis/frame_check.h"

namespace navframe::analysis {

// Heads each of which stands where the length of the one before says.
struct Trail {
  std::uint64_t begin = 0;  // of the first head
  std::uint64_t lead = 0;   // bytes in front of it that end the chunk before
  std::uint64_t end = 0;    // behind the last head
  std::uint64_t heads = 0;
  std::uint64_t original = 0;  // where it began in the recording
};

// The number of a head, without its CR LF; -1 when the line is none.
std::int64_t ChunkLength(Bytes line);

class ChunkTrails {
 public:
  static constexpr std::size_t MostTrails = 4096;

  using Original = std::function<std::uint64_t(std::uint64_t)>;
  explicit ChunkTrails(Original original) : original_(std::move(original)) {}

  // All bytes, in their order.
  void Take(Bytes bytes);
  std::vector<Trail> End();
  // Line ends that are CR LF.
  std::uint64_t CrLfs() const { return crLfs_; }

 private:
  // A head, and where the one behind it must stand.
  struct Waiting {
    Trail trail;
    std::uint64_t next = 0;
  };
  static constexpr std::size_t MostWaiting = 8;
  static constexpr std::size_t LongestHead = 24;

  void Line();
  void Head(std::int64_t length);
  void Close();

  Original original_;
  std::uint64_t position_ = 0;   // of the next byte
  std::uint64_t lineBegin_ = 0;  // of the line that it is in
  std::vector<std::uint8_t> line_;
  bool isBehindCrLf_ = true;  // or at the beginning
  bool isBehindBlank_ = false;
  bool isReply_ = false;  // of an HTTP server, whose header the recording begins with
  bool wasCr_ = false;
  std::uint64_t crLfs_ = 0;
  bool isFollowing_ = false;  // the trail of which at least two heads were seen
  Waiting followed_;
  std::vector<Waiting> waiting_;
  std::size_t oldest_ = 0;
  std::vector<Trail> trails_;
};

}  // namespace navframe::analysis
