// From a checked sentence to a record.
#pragma once

#include <array>
#include <cstdint>

#include "base/dialect.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"
#include "nmea/sentence_table.h"
#include "nmea/time_keeping.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"

namespace navframe::nmea {

class NmeaDecoder {
 public:
  // `sink` and `time` must outlive the decoder.
  NmeaDecoder(RecordSink& sink, DecoderClock& time, const Dialect& dialect = LegacyDialect)
      : sink_(sink), time_(time), dialect_(dialect) {}

  // Splits the work on one sentence: its kind, the end of a GSV cycle, its record. Where a field
  // that does not convert ends the work, the sentence has left no trace but its kind.
  DecodeResult Decode(Fields fields, TagFlag tag);

  // Whether satellites in view were collected from all sentences that were announced.
  bool CycleIsWhole() const;

  // The input ended: hands out the satellites in view whose cycle nothing closes any more.
  void EndCycle();

 private:
  const SentenceRow* RowOf(const Fields& fields) const;
  void EmitSatellitesInView(NmeaContext& context);
  void EmitWideView(NmeaContext& context);
  static void NoteSeen(NmeaContext& context);

  RecordSink& sink_;
  DecoderClock& time_;
  const Dialect& dialect_;
  // By tag flag.
  std::array<NmeaContext, 2> contexts_{NmeaContext(wideRecords_[0]), NmeaContext(wideRecords_[1])};
  EpochCounters counters_;
  // Large and seldom in use: behind all else, so that their pages cost no memory.
  WideGsvRecord wideRecords_[2];
};

}  // namespace navframe::nmea
