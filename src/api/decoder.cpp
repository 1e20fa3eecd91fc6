#include "api/decoder.h"

#include <algorithm>

#include "api/number_faults.h"
#include "asciilog/log_framer.h"
#include "framing/input_step.h"
#include "nmea/sentence_framer.h"

namespace navframe {
namespace {

using asciilog::LogVariant;

constexpr std::size_t RowOf(ParserState state) {
  std::size_t row = 0;
  while (Protocols[row].state != state) ++row;
  return row;
}

// Takes the two bytes of a line end behind a sentence when the second is LF, whatever the first.
void ConsumeLineEnd(InputRing& ring) {
  if (ring.Available() >= 2 && ring[1] == '\n') ring.Advance(2);
}

}  // namespace

Decoder::Decoder() = default;
Decoder::~Decoder() = default;

void Decoder::SetMsgTypes(std::uint32_t mask) {
  scanConfiguration_.msgTypeMask = mask;
  syncBytes_ = SyncBytes(scanConfiguration_);
}

void Decoder::SetBoardType(std::uint32_t type) {
  scanConfiguration_.boardType = type;
  syncBytes_ = SyncBytes(scanConfiguration_);
}

template <ParserState State>
FramerResult Decoder::HandleHead() {
  constexpr const ProtocolRow& row = Protocols[RowOf(State)];
  const std::uint32_t available = std::min(input.ring.Available(), row.longestFrame);
  const Head head{input.ring.View(available), available, input.ring.Position()};
  const Framing framing = row.frame(decoders.framing, decoders.dialect, head);
  switch (framing.Outcome()) {
    case Verdict::NeedMore:
      return FramerResult::NeedMore;
    case Verdict::Rejected:
      // A UBX frame with a wrong checksum is the one fault that hosts are told of.
      if (row.protocol == NavframeUbx && framing.Reason() == NavframeBadChecksum) {
        decoders.ubx.ReportCheckError();
      }
      return SkipOneByte(input);
    case Verdict::Frame:
      break;
  }
  const DecodeResult result = row.decode(decoders, head.bytes, framing.Length());
  // The sentence stays at the head then, and meets the next call.
  if (result.Fault() != NumberFault::None) Throw(result.Fault());
  if constexpr (row.protocol == Navframe55Aa) {
    Accept55Aa(input, framing.Length());
  } else {
    AcceptFrame(input, framing.Length());
  }
  if constexpr (row.protocol == NavframeNmea) ConsumeLineEnd(input.ring);
  return FramerResult::Done;
}

FramerResult Decoder::HandleTagBlock() {
  const Framing framing = nmea::AwaitTaggedSentence(input.ring, tagBlockStarSearch);
  return framing.Outcome() == Verdict::NeedMore ? FramerResult::NeedMore : SkipOneByte(input);
}

std::uint32_t Decoder::PutData(const std::uint8_t* data, std::uint32_t length) {
  RunInputStep(input, syncBytes_, data, length, [this](ParserState state) {
    switch (state) {
      case ParserState::NmeaSentence:
        return HandleHead<ParserState::NmeaSentence>();
      case ParserState::Rtcm3:
        return HandleHead<ParserState::Rtcm3>();
      case ParserState::Ubx:
        return HandleHead<ParserState::Ubx>();
      case ParserState::Binary55Aa:
        return HandleHead<ParserState::Binary55Aa>();
      case ParserState::NmeaTagBlock:
        return HandleTagBlock();
      case ParserState::AsciiLogLine:
        return asciilog::FrameLog(input, decoders.asciiLog, LogVariant::TextLine);
      case ParserState::AsciiLogBinary:
        return asciilog::FrameLog(input, decoders.asciiLog, LogVariant::Binary);
      case ParserState::AsciiLogBinaryFixed:
        return asciilog::FrameLog(input, decoders.asciiLog, LogVariant::BinaryFixed);
      case ParserState::AsciiLogDollarLine:
        return asciilog::FrameLog(input, decoders.asciiLog, LogVariant::DollarLine);
      default:
        return SkipOneByte(input);  // no framer: its sync byte starts nothing
    }
  });
  return sink.Waiting();
}

}  // namespace navframe
