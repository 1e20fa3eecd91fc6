// The streams that are measured.
#pragma once

#include <string>
#include <vector>

#include "host.h"

namespace navframe::bench {

struct NamedStream {
  std::string name;
  Bytes bytes;
};

// Well-formed traffic, a stream per question; `scale` divides the usual length.
std::vector<NamedStream> MakeTraffic(int scale);
const std::vector<NamedStream>& Traffic();

// The same of ephemerides, of which the exports make no records.
std::vector<NamedStream> MakeEphemerides(int scale);

// Bytes that start nothing, and bytes that look like starts.
const std::vector<NamedStream>& Noises();

// A frame of a stream of frames that follow each other without a gap.
struct FrameOfStream {
  std::size_t offset;
  std::size_t length;
};
std::vector<FrameOfStream> FramesOf(const Bytes& bytes);

}  // namespace navframe::bench
