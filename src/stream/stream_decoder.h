// One receiver's stream: bytes in, items out.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "framing/linear_buffer.h"
#include "navframe/stream.h"
#include "stream/frame_decoders.h"
#include "stream/look_ahead.h"
#include "stream/slot_sink.h"

namespace navframe {

class StreamDecoder {
 public:
  explicit StreamDecoder(const NavframeOptions& options);

  std::size_t Put(const std::uint8_t* data, std::size_t length);
  // False when there is no item before more bytes come.
  bool Next(NavframeItem& item);
  void Flush() { flushing_ = true; }
  void Idle() { idle_ = true; }
  void Reset();

  void Read(NavframeStatistics& statistics) const;
  void* User() const { return options_.user; }

 private:
  // The last span; its records wait in the sink.
  struct Span {
    NavframeItemType type = NavframeItemSkipped;
    const ProtocolRow* row = nullptr;  // null for skipped bytes
    std::uint64_t position = 0;
    const std::uint8_t* bytes = nullptr;
    std::uint32_t length = 0;
    std::uint32_t claimedLength = 0;
    DecodeResult result;
    bool waits = false;  // to be handed out
  };

  bool Advance();
  bool HandleHead(const Head& head);
  bool HandleWaiting(const Head& head, const ProtocolRow& row, std::uint32_t claimed);
  bool TakeFrame(const Head& head, const ProtocolRow& row, std::uint32_t length);
  void KeepTagBlock(const Head& head, const ProtocolRow& row, std::uint32_t length);
  bool Reject(const ProtocolRow& row, NavframeReason reason, std::uint32_t claimed);
  bool FinishFlush();
  bool EndIdle();
  void EndCycle();
  void Cover(NavframeItemType type, const ProtocolRow* row, std::uint32_t length);
  bool IsAskedFor(const Span& span) const;
  bool HandOutRecord(NavframeItem& item);
  void Describe(NavframeItem& item) const;

  NavframeOptions options_;
  std::vector<const NavframeKind*> wanted_;  // sorted; empty for all
  LinearBuffer buffer_;
  SearchedProtocols protocols_;
  SlotSink sink_;
  std::array<std::optional<StrongerFrames>, 2> stronger_;  // by rank
  std::optional<FramesBehind> behind_;
  std::uint64_t position_ = 0;  // of the buffer's first byte in the stream
  std::size_t scanned_ = 0;     // bytes there that start nothing
  bool flushing_ = false;
  bool idle_ = false;
  std::uint64_t givenUpUntil_ = 0;  // position in front of which no head is waited for
  Span span_;
  std::array<char, nmea::LongestTagBlock> tagBlock_{};
  std::uint64_t tagBlockEnd_ = ~std::uint64_t{0};  // position behind the tag block
  bool tagged_ = false;                            // the span is the sentence behind it
  std::uint32_t nextRecord_ = 0;                   // of the sink's
  NavframeStatistics statistics_{};
  std::optional<FrameDecoders> decoders_;  // the last one, see there
};

}  // namespace navframe
