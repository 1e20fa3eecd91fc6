// What the fuzz targets share. An input of a target that decodes begins with bytes that steer it;
// the receiver's output follows.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

#include "api/decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace navframe::fuzz {

using Bytes = std::vector<std::uint8_t>;

// Ends the run when a property does not hold.
inline void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", property);
  std::abort();
}

// Hands out the bytes of an input one after the other, and zeros behind the last.
class Input {
 public:
  explicit Input(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

  template <class T>
  T Take() {
    T value{};
    const std::size_t length = std::min(sizeof(T), rest_.size());
    if (length != 0) std::memcpy(&value, rest_.data(), length);
    rest_ = rest_.subspan(length);
    return value;
  }
  std::uint8_t Byte() { return Take<std::uint8_t>(); }
  bool Empty() const { return rest_.empty(); }
  std::span<const std::uint8_t> Next(std::size_t length) {
    const auto next = rest_.first(std::min(length, rest_.size()));
    rest_ = rest_.subspan(next.size());
    return next;
  }
  std::span<const std::uint8_t> Rest() { return Next(rest_.size()); }

 private:
  std::span<const std::uint8_t> rest_;
};

inline constexpr std::size_t SteeringLength = 32;

// Longer inputs show nothing more; a whole one gives fewer records than the queue holds.
inline constexpr std::size_t LongestStream = 4096;

// Behind it nothing is pending: it is longer than any frame, starts none, and has the "*" that a
// tag block may wait for.
inline Bytes Flush() {
  Bytes flush(4096 + 256);
  flush.push_back('*');
  flush.resize(flush.size() + 300);
  return flush;
}

// The protocols whose frames the exports recognise by default, tag blocks aside.
inline constexpr std::uint32_t ExportsProtocols =
    ProtocolNmea | ProtocolRtcm3 | ProtocolUbx | Protocol55Aa;

// Gives every byte that could start a frame of the protocols in `mask` a frame: lengths that the
// protocol knows and that fit, and the right checksum. Bytes that it contains start none.
void Seal(std::span<std::uint8_t> stream, std::uint32_t mask);

// The same for ASCII logs and their binary forms.
void SealLogs(std::span<std::uint8_t> stream, bool binary);

// Pushes a chunk to a decoder of its own. A sentence with a field that cannot be converted loses
// its "$".
inline void Push(Decoder& decoder, std::span<const std::uint8_t> chunk) {
  // A copy of exactly this size, so that a read behind it is seen.
  const Bytes copy(chunk.begin(), chunk.end());
  const std::uint8_t* data = copy.data();
  auto length = static_cast<std::uint32_t>(copy.size());
  for (;;) {
    try {
      decoder.PutData(data, length);
      return;
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    Require(decoder.input.state == ParserState::NmeaSentence, "only sentences throw");
    static_cast<void>(SkipOneByte(decoder.input));
    data = nullptr;
    length = 0;
  }
}

// Depends on every byte, so that memory checkers see each one that is not defined.
inline void ReadAll(const void* payload, std::uint32_t size) {
  const auto* const bytes = static_cast<const std::uint8_t*>(payload);
  unsigned sum = 0;
  for (std::uint32_t i = 0; i < size; ++i) sum = sum * 31 + bytes[i];
  if (sum == 0x5EED) std::fputs("", stderr);
}

// Frames and skipped bytes account for what was consumed, but for the line ends that were taken
// along with sentences.
inline void RequireAccounts(const RingInput& stream, std::size_t pushed) {
  const FramingStatistics& counts = stream.statistics;
  const std::size_t accounted = std::size_t{counts.acceptedBytes} + counts.bytes55Aa +
                                counts.skippedBytes + stream.ring.Available();
  Require(accounted <= pushed, "no byte is counted twice");
  const std::size_t lineEnds = pushed - accounted;
  Require(lineEnds % 2 == 0 && lineEnds <= 2 * std::size_t{counts.acceptedFrames},
          "frames, skipped bytes and line ends are all there is");
}

}  // namespace navframe::fuzz
