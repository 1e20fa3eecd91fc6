// The decoder context: everything that the exports work on.
#pragma once

#include <cstdint>

#include "asciilog/ascii_log_decoder.h"
#include "frame55aa/frame_decoder.h"
#include "framing/forward_search.h"
#include "framing/overlapping_checksum.h"
#include "framing/stream.h"
#include "framing/sync_scan.h"
#include "navframe/time_manager.h"
#include "nmea/nmea_decoder.h"
#include "nmea/sentence_framer.h"
#include "output/record_sink.h"
#include "rtcm/crc24q.h"
#include "rtcm/rtcm_decoder.h"
#include "ubx/fletcher.h"
#include "ubx/ubx_decoder.h"

namespace navframe {

// One stream's decoder. The library has one of them because its interface is process-wide; tests
// make their own.
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

  TimeManager time;  // shared by the decoders of all protocols
  RecordSink sink;
  Stream stream;
  nmea::NmeaDecoder nmea{sink, time};
  ForwardSearch tagBlockStarSearch{'*'};
  asciilog::AsciiLogDecoder asciiLog{sink};
  OverlappingChecksum<ubx::Fletcher> ubxChecksum;
  ubx::UbxDecoder ubx{sink, time};
  frame55aa::FrameDecoder binary55Aa{sink};
  OverlappingChecksum<rtcm::Crc24q> rtcmCrc;
  rtcm::RtcmDecoder rtcm{sink, time};

 private:
  ScanConfiguration scanConfiguration_;
  SyncBytes syncBytes_{scanConfiguration_};
};

}  // namespace navframe
