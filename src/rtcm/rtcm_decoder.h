// From a checked frame to a record.
#pragma once

#include <memory>

#include "rtcm/bits.h"
#include "rtcm/msm_decoder.h"
#include "rtcm/observation_decoder.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

class RtcmDecoder {
 public:
  // `sink` and `time` must outlive the decoder.
  RtcmDecoder(RecordSink& sink, DecoderClock& time, const Dialect& dialect = LegacyDialect)
      : services_{sink, time, dialect} {}

  // Dispatches by message number. A number without a decoder yields nothing.
  DecodeResult Decode(const Frame& frame);

 private:
  Services services_;
  MsmDecoder msm_;
  std::unique_ptr<ObservationHistory> observed_;  // from when on it is in use
};

}  // namespace navframe::rtcm
