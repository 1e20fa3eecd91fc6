#include "stream/frame_decoders.h"

#include "catalogue/kinds.h"
#include "ubx/ubx_framer.h"

namespace navframe::protocols {

Framing FrameNmea(FramingState& state, const Dialect&, const Head& head) {
  return nmea::FrameSentence(head, state.sweep);
}
Framing FrameRtcm(FramingState& state, const Dialect&, const Head& head) {
  return rtcm::FrameRtcm3(head, state.rtcmCrc);
}
Framing FrameUbx(FramingState& state, const Dialect& dialect, const Head& head) {
  return ubx::FrameUbx(head, dialect.longRawMeasurements, state.ubxChecksum);
}
Framing Frame55Aa(FramingState&, const Dialect&, const Head& head) {
  return frame55aa::FrameBinary(head);
}
Framing FrameTagBlock(FramingState&, const Dialect&, const Head& head) {
  return nmea::FrameTagBlock(head);
}
Framing FrameLog(FramingState& state, const Dialect&, const Head& head) {
  return asciilog::FrameLine(head, state.logSearched);
}

DecodeResult DecodeNmea(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t) {
  const nmea::Fields fields(reinterpret_cast<const char*>(frame), decoders.framing.sweep);
  return decoders.nmea.Decode(fields, nmea::TagFlag::Plain);
}
DecodeResult DecodeRtcm(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  return decoders.rtcm.Decode({frame, length});
}
DecodeResult DecodeUbx(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  return decoders.ubx.Decode(frame, length);
}
DecodeResult Decode55Aa(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  constexpr std::uint32_t Around = frame55aa::HeaderLength + frame55aa::ChecksumLength;
  return decoders.binary55Aa.Decode(frame + frame55aa::HeaderLength, length - Around);
}
// Its text goes with the sentence behind it.
DecodeResult DecodeTagBlock(FrameDecoders&, const std::uint8_t*, std::uint32_t) { return {}; }

DecodeResult DecodeLog(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  const std::uint32_t log = asciilog::LogOf(frame, length);
  if (catalogue::FindKind(log, SourceAsciiLog) == nullptr) return {NavframeNoKind};
  const std::string_view line(reinterpret_cast<const char*>(frame), length);
  if (!decoders.asciiLog.DecodeLine(line, log)) return {NavframeBadContent};
  return {};
}

}  // namespace navframe::protocols
