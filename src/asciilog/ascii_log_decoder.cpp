#include "asciilog/ascii_log_decoder.h"

#include <algorithm>
#include <cstring>

#include "asciilog/log_table.h"

namespace navframe::asciilog {

AsciiLogDecoder::AsciiLogDecoder(RecordSink& sink, const Dialect& dialect)
    : sink_(sink), dialect_(dialect) {
  sink_.DeclareFixed(&lineBuffer_);
  sink_.DeclareFixed(&inertialBlock_);
  sink_.DeclareFixed(&positionBlock_);
}

// Two logs have always been decoded and then answered with a block of zeros; hosts that were
// written for it ask for nothing else.
void* AsciiLogDecoder::FixedBlockOf(std::uint32_t identifier) {
  switch (identifier) {
    case LogIdInertial:
      return &inertialBlock_;
    case LogIdPosition57026:
      return &positionBlock_;
    default:
      return nullptr;
  }
}

bool AsciiLogDecoder::DecodeLine(std::string_view line, std::uint32_t identifier) {
  const LogRow* const row = RowOf(identifier);
  if (row == nullptr) return false;
  void* const record = sink_.Allocate(row->recordSize);
  std::memset(record, 0, row->recordSize);
  const bool decoded = DecodeLog(*row, line, record, dialect_) == DecodeResult::Success;
  void* const fixed = FixedBlockOf(identifier);
  // A record that is not queued is not freed either, only set aside.
  if (!decoded || fixed != nullptr) sink_.Abandon(record, row->recordSize);
  if (!decoded) return false;
  sink_.PushMessage(identifier, fixed != nullptr ? fixed : record, row->recordSize, SourceAsciiLog);
  return true;
}

void AsciiLogDecoder::PushLineBuffer(std::uint32_t identifier) {
  sink_.PushMessage(identifier, &lineBuffer_, LineBufferSize, SourceAsciiLog);
}

std::span<const std::uint8_t, AsciiLogDecoder::LineBufferSize> AsciiLogDecoder::FillLineBuffer(
    std::span<const std::uint8_t> bytes) {
  // The host may read all of the buffer, so all of it is defined.
  const auto end = std::ranges::copy(bytes, lineBuffer_.bytes.begin()).out;
  std::fill(end, lineBuffer_.bytes.end(), std::uint8_t{0});
  return lineBuffer_.bytes;
}

}  // namespace navframe::asciilog
