// Ephemerides out of the parts that receivers hand on.
#pragma once

#include <memory>

#include "ephemeris/subframe.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"

namespace navframe::ephemeris {

class SubframeCollector {
 public:
  // `sink` and `time` must outlive the collector.
  SubframeCollector(RecordSink& sink, DecoderClock& time);
  ~SubframeCollector();
  SubframeCollector(const SubframeCollector&) = delete;
  SubframeCollector& operator=(const SubframeCollector&) = delete;

  // Has the room for all satellites ready, which most streams never need. Throws std::bad_alloc.
  void MakeRoom();

  // Takes a part, once there is room, and pushes the ephemeris that it completes.
  void Take(const Subframe& subframe);

 private:
  struct Rooms;

  RecordSink& sink_;
  DecoderClock& time_;
  std::unique_ptr<Rooms> rooms_;
};

}  // namespace navframe::ephemeris
