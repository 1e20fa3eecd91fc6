// Traffic as a bad cable delivers it.
#pragma once

#include <array>
#include <vector>

#include "generator/drive.h"
#include "host.h"
#include "streams.h"

namespace navframe::bench {

struct DamagedTraffic {
  Bytes bytes;
  // Places of `bytes` where a frame of the undamaged traffic stands whole.
  std::vector<FrameOfStream> intact;
  std::size_t hits = 0;
  std::size_t weakHits =
      0;  // of them on frames with an 8-bit check, false heads of such among them
};

// Whether 8 bits are all that tells the frame at these bytes from chance.
bool IsWeak(const std::uint8_t* frame);

// Some seconds of the drive in all protocols. One frame in a hundred is hit: bits flipped, bytes
// cut out or put in, a chunk sent twice or lost.
DamagedTraffic MakeDamagedTraffic(sample::Drive& drive, int epochs, sample::Noise& noise);

// One fault at a time.
enum class Fault {
  FalseHeads,  // in front of 5 % of the frames, of any protocol and with any length
  LostBytes,   // one in ten thousand
  Noise,       // 200 bytes in front of 5 % of the frames
  Cuts,        // 2 % of the frames end anywhere
};
inline constexpr std::array Faults = {Fault::FalseHeads, Fault::LostBytes, Fault::Noise,
                                      Fault::Cuts};
const char* NameOf(Fault fault);

// `source` holds the frames, and maybe line ends between them.
DamagedTraffic MakeDamagedTraffic(const Bytes& source, const std::vector<FrameOfStream>& frames,
                                  Fault fault, sample::Noise& noise);

}  // namespace navframe::bench
