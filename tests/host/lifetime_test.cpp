// A host that uses the static library for longer than that library's own objects would live: from
// the constructor of a static object, linked in front of the library, to its destructor.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "generator/nmea_stream.h"
#include "navframe/navframe.h"

namespace navframe {
namespace {

const std::string Stream = sample::Sentence("GPVTG,,,,,,,,,N") +
                           sample::Sentence("GPGLL,4916.45,N,12311.12,W,225444.00,A,A");

std::uint32_t Push(const std::string& bytes) {
  return GNSSPutData(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                     static_cast<std::uint32_t>(bytes.size()));
}

class Host {
 public:
  Host() {
    GNSSSetOutMsgID(MsgIdGll);
    waiting = Push(Stream);
  }
  // No test sees this; the exit code shows what went wrong.
  ~Host() {
    const std::uint32_t twice = Push(Stream);
    for (GnssMessage message; GNSSGetMsg(&message, MsgIdGll) == 0;) GNSSFreeMem(&message);
    if (twice != 2 || Push("") != 0) std::_Exit(EXIT_FAILURE);
  }

  std::uint32_t waiting;
};

Host host;

TEST(Lifetime, WhatAStaticConstructorSetsAndPushesIsThere) {
  EXPECT_EQ(host.waiting, 1U);
  EXPECT_EQ(Push(""), 1U);
}

}  // namespace
}  // namespace navframe
