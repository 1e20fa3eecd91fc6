// What a decoder of RTCM messages may touch besides its frame.
#pragma once

#include "base/dialect.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"

namespace navframe::rtcm {

struct Services {
  RecordSink& sink;
  DecoderClock& time;
  const Dialect& dialect;
};

}  // namespace navframe::rtcm
