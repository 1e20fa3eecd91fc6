// Traffic as a bad cable delivers it.
#pragma once

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
};

// Some seconds of the drive in all protocols. One frame in a hundred is hit: bits flipped, bytes
// cut out or put in, a chunk sent twice or lost.
DamagedTraffic MakeDamagedTraffic(sample::Drive& drive, int epochs, sample::Noise& noise);

}  // namespace navframe::bench
