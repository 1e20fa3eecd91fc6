// What a decoder of RTCM messages may touch besides its frame.
#pragma once

#include "navframe/time_manager.h"
#include "output/record_sink.h"

namespace navframe::rtcm {

struct Services {
  RecordSink& sink;
  TimeManager& time;
};

}  // namespace navframe::rtcm
