// The decoder context: everything that the exports work on.
#pragma once

#include <cstdint>

#include "asciilog/ascii_log_decoder.h"
#include "framing/forward_search.h"
#include "framing/ring_input.h"
#include "framing/sync_scan.h"
#include "output/queue_sink.h"
#include "stream/frame_decoders.h"

namespace navframe {

// The decoder of the exports. The library has one of them because their interface is process-wide;
// tests make their own.
class Decoder {
 public:
  Decoder();
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder();

  void SetMsgTypes(std::uint32_t mask);
  void SetBoardType(std::uint32_t type);

  // Decodes what `data` completes; returns the number of records waiting. See GNSSPutData.
  std::uint32_t PutData(const std::uint8_t* data, std::uint32_t length);

  QueueSink sink;
  FrameDecoders decoders{sink};
  RingInput input;
  ForwardSearch tagBlockStarSearch{'*'};

 private:
  template <ParserState State>
  FramerResult HandleHead();
  FramerResult HandleTagBlock();

  ScanConfiguration scanConfiguration_;
  SyncBytes syncBytes_{scanConfiguration_};
};

}  // namespace navframe
