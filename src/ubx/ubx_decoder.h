// From a checked UBX frame to a record.
#pragma once

#include <cstdint>

#include "base/dialect.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"
#include "ubx/raw_observations.h"

namespace navframe::ubx {

class UbxDecoder {
 public:
  // `sink`, `time` and `dialect` must outlive the decoder.
  UbxDecoder(RecordSink& sink, DecoderClock& time, const Dialect& dialect = LegacyDialect)
      : sink_(sink), time_(time), dialect_(dialect) {}

  // Decodes a whole frame of `length` bytes, or does nothing when it is of no known message, of a
  // length that its message does not have, or blocked by the output filter.
  DecodeResult Decode(const std::uint8_t* frame, std::uint32_t length);

  // Pushes the diagnostic record of a frame with a wrong checksum.
  void ReportCheckError();

 private:
  RecordSink& sink_;
  DecoderClock& time_;
  const Dialect& dialect_;
  RawObservations observed_;
};

}  // namespace navframe::ubx
