#include "api/decoder.h"

#include <array>

#include "asciilog/log_framer.h"
#include "frame55aa/frame_framer.h"
#include "framing/input_step.h"
#include "rtcm/rtcm_framer.h"
#include "ubx/ubx_framer.h"

namespace navframe {
namespace {

using asciilog::LogVariant;

using Framer = FramerResult (*)(Decoder& decoder);

struct FramerRow {
  ParserState state;
  Framer framer;
};

template <LogVariant Variant>
FramerResult FrameLog(Decoder& decoder) {
  return asciilog::FrameLog(decoder.stream, decoder.asciiLog, Variant);
}

constexpr FramerRow FramerRows[] = {
    {ParserState::NmeaSentence,
     [](Decoder& decoder) { return nmea::FrameSentence(decoder.stream, decoder.nmea); }},
    {ParserState::NmeaTagBlock,
     [](Decoder& decoder) {
       return nmea::FrameTagBlock(decoder.stream, decoder.tagBlockStarSearch);
     }},
    {ParserState::AsciiLogLine, FrameLog<LogVariant::TextLine>},
    {ParserState::AsciiLogBinary, FrameLog<LogVariant::Binary>},
    {ParserState::AsciiLogBinaryFixed, FrameLog<LogVariant::BinaryFixed>},
    {ParserState::AsciiLogDollarLine, FrameLog<LogVariant::DollarLine>},
    {ParserState::Ubx,
     [](Decoder& decoder) {
       return ubx::FrameUbx(decoder.stream, decoder.ubxChecksum, decoder.ubx);
     }},
    {ParserState::Binary55Aa,
     [](Decoder& decoder) { return frame55aa::FrameBinary(decoder.stream, decoder.binary55Aa); }},
    {ParserState::Rtcm3,
     [](Decoder& decoder) {
       return rtcm::FrameRtcm3(decoder.stream, decoder.rtcmCrc, decoder.rtcm);
     }},
};

// A state without a framer of its own: its sync byte starts nothing.
FramerResult SkipUnframed(Decoder& decoder) { return SkipOneByte(decoder.stream); }

constexpr auto Framers = [] {
  std::array<Framer, ParserStates> framers{};
  framers.fill(SkipUnframed);
  for (const FramerRow& row : FramerRows) framers[static_cast<std::size_t>(row.state)] = row.framer;
  return framers;
}();

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

std::uint32_t Decoder::PutData(const std::uint8_t* data, std::uint32_t length) {
  RunInputStep(stream, syncBytes_, data, length, [this](ParserState state) {
    return Framers[static_cast<std::size_t>(state)](*this);
  });
  return sink.Waiting();
}

}  // namespace navframe
