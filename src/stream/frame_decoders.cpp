#include "stream/frame_decoders.h"

#include "asciilog/log_table.h"
#include "catalogue/kinds.h"
#include "time/true_clock.h"
#include "ubx/subframes.h"

namespace navframe::protocols {

// The subframes of a stream alone are worth a call.
[[gnu::noinline]] static DecodeResult DecodeSubframe(FrameDecoders& decoders,
                                                     const std::uint8_t* frame,
                                                     std::uint32_t length) {
  const auto subframe = ubx::SubframeOf(frame, length);
  if (subframe) decoders.subframes.MakeRoom(*subframe);  // in front of what cannot be done twice
  const DecodeResult result = decoders.ubx.Decode(frame, length);
  if (subframe && result.Reason() == NavframeNoReason) decoders.subframes.Take(*subframe);
  return result;
}

DecodeResult DecodeUbx(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  if (decoders.dialect.standardRecords && ubx::IsSubframe(frame)) {
    return DecodeSubframe(decoders, frame, length);
  }
  return decoders.ubx.Decode(frame, length);
}

DecodeResult DecodeLog(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length) {
  const std::uint32_t log = asciilog::LogOf(frame, length);
  if (catalogue::FindKind(log, SourceAsciiLog) == nullptr) return {NavframeNoKind};
  const std::string_view line(reinterpret_cast<const char*>(frame), length);
  if (!decoders.asciiLog.DecodeLine(line, log)) return {NavframeBadContent};
  if (const auto time = asciilog::TimeOf(*asciilog::RowOf(log), line, decoders.dialect)) {
    true_clock::SetGpsTime(*time, NavframeTimeFromLog, decoders.time);
  }
  return {};
}

}  // namespace navframe::protocols
