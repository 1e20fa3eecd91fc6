#include "streams.h"

#include <algorithm>

#include "generator/ephemeris_stream.h"
#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"

namespace navframe::bench {
namespace {

using namespace sample;

Bytes Mixed(int epochs) {
  Drive drive;
  Bytes bytes;
  for (int i = 0; i < epochs; ++i) {
    const Epoch epoch = drive.Next();
    Append(bytes, ToBytes(NmeaEpoch(epoch)));
    Append(bytes, RtcmEpoch(epoch, Msm::Msm7));
    Append(bytes, UbxNavigation(epoch));
    Append(bytes, UbxSatellites(epoch));
    Append(bytes, UbxRawMeasurements(epoch));
  }
  return bytes;
}

// Bytes below `limit`, of which none is a sync byte when it is 32.
Bytes Random(std::uint32_t limit) {
  Bytes bytes(1 << 20);
  Noise noise(limit);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(noise.Below(limit));
  return bytes;
}

std::size_t FrameLength(const std::uint8_t* frame, const std::uint8_t* end) {
  switch (frame[0]) {
    case 0xB5:
      return 8 + frame[4] + 256U * frame[5];
    case 0xD3:
      return 6 + 256U * (frame[1] & 3U) + frame[2];
    case 0x55:
      return 7 + frame[2] + 256U * frame[3];
    default:
      return static_cast<std::size_t>(std::find(frame, end, '\n') - frame) + 1;
  }
}

}  // namespace

std::vector<NamedStream> MakeTraffic(int scale) {
  return {
      // 36 sentences an epoch: four systems, 45 satellites with two signals each.
      {"nmea", ToBytes(NmeaStream(400 / scale))},
      // Five systems, 27 cells each; GLONASS is MSM7 in both.
      {"rtcm-msm4", RtcmStream(500 / scale, Msm::Msm4)},
      {"rtcm-msm7", RtcmStream(500 / scale, Msm::Msm7)},
      // Navigation, 47 satellites, attitude.
      {"ubx-nav", UbxNavigationStream(1000 / scale)},
      // 71 to 88 raw measurements.
      {"ubx-raw", UbxRawStream(400 / scale)},
      // Navigation, 47 satellites, 71 to 88 raw measurements.
      {"ubx", UbxStream(300 / scale)},
      // A frame of 231 to 467 bytes.
      {"55aa", Stream55Aa(2000 / scale)},
      // nmea, rtcm-msm7 and ubx: 31, 24 and 45 % of the bytes.
      {"mixed", Mixed(150 / scale)},
  };
}

std::vector<NamedStream> MakeEphemerides(int scale) {
  return {
      // 1019, 1020, 1042, 1044, 1045 and 1046 of eight satellites, with other contents each time.
      {"rtcm-eph", RtcmEphemerisStream(1000 / scale)},
      // Parts of the navigation messages of 40 satellites, of another issue every eight minutes.
      {"ubx-sfrbx", UbxSubframeStream(200 / scale)},
  };
}

const std::vector<NamedStream>& Traffic() {
  static const std::vector<NamedStream> streams = MakeTraffic(1);
  return streams;
}

const std::vector<NamedStream>& Noises() {
  static const std::vector<NamedStream> streams = {
      {"garbage", Random(32)},           // no byte starts a frame
      {"random", Random(256)},           // a false start every 51 bytes
      {"all-b5", Bytes(1 << 20, 0xB5)},  // every byte a false start of UBX
      {"all-d3", Bytes(1 << 20, 0xD3)},  // every byte a false start of RTCM 3
  };
  return streams;
}

std::vector<FrameOfStream> FramesOf(const Bytes& bytes) {
  std::vector<FrameOfStream> frames;
  const std::uint8_t* const end = bytes.data() + bytes.size();
  for (std::size_t offset = 0; offset < bytes.size(); offset += frames.back().length) {
    frames.push_back({offset, FrameLength(bytes.data() + offset, end)});
  }
  return frames;
}

}  // namespace navframe::bench
