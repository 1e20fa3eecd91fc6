// The loops by hand over the parts of a stream, one for each protocol.
#pragma once

#include "bare_nmea.h"
#include "bare_observations.h"
#include "bare_rtcm.h"
#include "bare_ubx.h"
#include "streams.h"

namespace navframe::bench {

// Frames of one protocol, with slack behind them.
struct Part {
  std::uint8_t syncByte;
  Bytes bytes;

  std::span<const std::uint8_t> Frames() const { return {bytes.data(), bytes.size() - Slack}; }
};

// The loops that make the records of the exports, or those of streams.
struct ExportLoops {
  BareNmea nmea;
  BareRtcm<BareMsmRecords> rtcm;
  BareUbx<BareMeasurements> ubx;
};
struct StreamLoops {
  BareNmea nmea;
  BareRtcm<BareObservations> rtcm;
  BareUbx<BareObservations> ubx;
};

template <class Loops, class Take>
void RunLoop(Loops& loops, const Part& part, Take&& take) {
  switch (part.syncByte) {
    case '$':
      return loops.nmea.Decode(part.Frames(), take);
    case 0xD3:
      return loops.rtcm.Decode(part.Frames(), take);
    default:
      return loops.ubx.Decode(part.Frames(), take);
  }
}

inline std::vector<Part> PartsOf(const Bytes& bytes) {
  std::vector<Part> parts;
  for (const std::uint8_t syncByte : {std::uint8_t{'$'}, std::uint8_t{0xD3}, std::uint8_t{0xB5}}) {
    Part part{syncByte, {}};
    for (const FrameOfStream& frame : FramesOf(bytes)) {
      const std::uint8_t* const begin = bytes.data() + frame.offset;
      if (*begin == syncByte) part.bytes.insert(part.bytes.end(), begin, begin + frame.length);
    }
    if (part.bytes.empty()) continue;
    part.bytes.resize(part.bytes.size() + Slack);
    parts.push_back(std::move(part));
  }
  return parts;
}

// Takes records, of which every byte has to be there.
struct Count {
  std::uint64_t records = 0;
  void operator()(std::uint32_t /*id*/, const void* record) {
    asm volatile("" : : "r"(record) : "memory");
    ++records;
  }
};
}  // namespace navframe::bench
