// From a checked frame to a record.
#pragma once

#include "rtcm/bits.h"
#include "rtcm/msm_decoder.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

class RtcmDecoder {
 public:
  // `sink` and `time` must outlive the decoder.
  RtcmDecoder(RecordSink& sink, TimeManager& time) : services_{sink, time} {}

  // Dispatches by message number. A number without a decoder yields nothing.
  void Decode(const Frame& frame);

 private:
  Services services_;
  MsmDecoder msm_;
};

}  // namespace navframe::rtcm
