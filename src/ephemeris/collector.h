// Ephemerides out of the parts that receivers hand on.
#pragma once

#include <array>
#include <memory>

#include "ephemeris/beidou_subframes.h"
#include "ephemeris/galileo_pages.h"
#include "ephemeris/glonass_strings.h"
#include "ephemeris/lnav.h"
#include "ephemeris/subframe.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"

namespace navframe::ephemeris {

class SubframeCollector {
 public:
  // `sink` and `time` must outlive the collector.
  SubframeCollector(RecordSink& sink, DecoderClock& time) : sink_(sink), time_(time) {}

  // Has the room ready for all satellites that send the message of a part. Throws std::bad_alloc.
  void MakeRoom(const Subframe& subframe);

  // Takes a part, once there is room, and pushes the ephemeris that it completes.
  void Take(const Subframe& subframe);

 private:
  // By satellite, made with the first part of the message.
  template <class Assembly, std::size_t Satellites>
  using Room = std::unique_ptr<std::array<Assembly, Satellites>>;

  // Calls `use` with the room of a part, the place of its satellite, and what takes it; not at all
  // for a message without ephemerides.
  template <class Use>
  void WithRoom(const Subframe& subframe, Use&& use);

  RecordSink& sink_;
  DecoderClock& time_;
  Room<LnavAssembly, 32> gps_;
  Room<LnavAssembly, 10> qzss_;
  Room<GlonassAssembly, 32> glonass_;
  Room<InavAssembly, 36> inav_;
  Room<FnavAssembly, 36> fnav_;
  Room<D1Assembly, 53> d1_;
  Room<D2Assembly, 10> d2_;
};

}  // namespace navframe::ephemeris
