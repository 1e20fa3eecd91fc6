// From a checked sentence to a record.
#pragma once

#include <array>
#include <cstdint>

#include "navframe/time_manager.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"
#include "nmea/time_keeping.h"
#include "output/record_sink.h"

namespace navframe::nmea {

class NmeaDecoder {
 public:
  // `sink` and `time` must outlive the decoder.
  NmeaDecoder(RecordSink& sink, TimeManager& time) : sink_(sink), time_(time) {}

  // Splits the work on one sentence: its kind, the end of a GSV cycle, its record. Throws what a
  // field conversion throws; the sentence then has left no trace but its kind.
  void Decode(const Fields& fields, TagFlag tag);

 private:
  void EmitSatellitesInView(NmeaContext& context);

  RecordSink& sink_;
  TimeManager& time_;
  std::array<NmeaContext, 2> contexts_;  // by tag flag
  EpochCounters counters_;
};

}  // namespace navframe::nmea
