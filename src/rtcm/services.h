// What a decoder of RTCM messages may touch besides its frame.
#pragma once

#include "base/dialect.h"
#include "navframe/time_manager.h"
#include "output/record_sink.h"

namespace navframe::rtcm {

struct Services {
  RecordSink& sink;
  TimeManager& time;
  const Dialect& dialect;
};

}  // namespace navframe::rtcm
