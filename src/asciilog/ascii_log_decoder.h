// From a checked log to a record.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/dialect.h"
#include "framing/forward_search.h"
#include "navframe/records.h"
#include "output/record_sink.h"

namespace navframe::asciilog {

// The output filter does not apply to logs, and they never enter the decoded-id set.
class AsciiLogDecoder {
 public:
  static constexpr std::uint32_t LineBufferSize = NAVFRAME_ASCII_LOG_FRAME_CAPACITY;

  // `sink` and `dialect` must outlive the decoder. Tells it which payloads are no memory of its
  // own.
  explicit AsciiLogDecoder(RecordSink& sink, const Dialect& dialect = LegacyDialect);
  AsciiLogDecoder(const AsciiLogDecoder&) = delete;
  AsciiLogDecoder& operator=(const AsciiLogDecoder&) = delete;

  // Decodes a "#" line, without its CR LF. An identifier without a decoder, and a line that fails
  // in it, leave nothing. False for these.
  bool DecodeLine(std::string_view line, std::uint32_t identifier);

  // Queues the line buffer itself as the record of a binary frame; the next log overwrites it.
  void PushLineBuffer(std::uint32_t identifier);

  // The buffer with `bytes`, at most LineBufferSize of them, at its start and zeros behind them.
  std::span<const std::uint8_t, LineBufferSize> FillLineBuffer(std::span<const std::uint8_t> bytes);

  ForwardSearch starSearch{'*'};
  ForwardSearch lineFeedSearch{'\n'};

 private:
  // A payload that is handed out again and again; nothing here writes it.
  template <std::size_t Size>
  struct alignas(8) FixedBlock {
    std::array<std::uint8_t, Size> bytes{};
  };

  void* FixedBlockOf(std::uint32_t identifier);

  // Of the exports alone. Not cleared, so that streams spare its memory: it is filled before it is
  // pushed. In front of all else, next to what streams spare of other decoders.
  struct alignas(8) LineBuffer {
    std::array<std::uint8_t, LineBufferSize> bytes;
  };
  LineBuffer lineBuffer_;

  RecordSink& sink_;
  const Dialect& dialect_;
  FixedBlock<sizeof(InertialLogRecord)> inertialBlock_;
  FixedBlock<sizeof(PositionLogRecord)> positionBlock_;
};

}  // namespace navframe::asciilog
