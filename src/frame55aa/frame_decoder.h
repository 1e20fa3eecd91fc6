// From a checked 0x55 0xAA frame to a record.
#pragma once

#include <cstdint>

#include "output/record_sink.h"

namespace navframe::frame55aa {

class FrameDecoder {
 public:
  // `sink` must outlive the decoder.
  explicit FrameDecoder(RecordSink& sink) : sink_(sink) {}

  // Makes a record of a payload of one of the four decoded lengths; does nothing with others.
  DecodeResult Decode(const std::uint8_t* payload, std::uint32_t length);

 private:
  RecordSink& sink_;
};

}  // namespace navframe::frame55aa
