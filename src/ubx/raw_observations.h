// Raw measurements (RXM-RAWX) as observations that all sources share.
#pragma once

#include <memory>

#include "output/record_sink.h"
#include "time/decoder_clock.h"
#include "ubx/frame.h"

namespace navframe::ubx {

inline constexpr std::uint8_t RawClass = 0x02;
inline constexpr std::uint8_t RawId = 0x15;

class RawObservations {
 public:
  RawObservations();
  ~RawObservations();

  // Takes a payload of exactly the measurements that it counts. A version that is not known is no
  // kind.
  DecodeResult Decode(const Payload& payload, DecoderClock& clock, RecordSink& sink);

 private:
  // Made with the first message, so that streams without any spare its memory.
  struct History;
  std::unique_ptr<History> history_;
};

}  // namespace navframe::ubx
