// Board type 7, as hosts meet it.
#include <gtest/gtest.h>

#include <string>

#include "generator/nmea_stream.h"
#include "navframe/navframe.h"

namespace navframe {
namespace {

const std::string Line = sample::Sentence("GPGLL,4916.45,N,12311.12,W,225444.00,A,A");

std::uint32_t Push(const std::string& bytes) {
  return GNSSPutData(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                     static_cast<std::uint32_t>(bytes.size()));
}

class BoardTypeTest : public testing::Test {
 protected:
  void SetUp() override { GNSSSetBoardType(7); }
  void TearDown() override {
    GNSSSetBoardType(0);
    GNSSSetMsgTypes(0xFFFFFFFF);
    for (GnssMessage message; GNSSGetMsg(&message, 0) == 0;) GNSSFreeMem(&message);
    std::uint32_t ids[64];
    GNSSGetMsgs(ids);
  }
};

TEST_F(BoardTypeTest, DollarLinesAreConsumedUndecoded) {
  EXPECT_EQ(Push(Line + Line + "\r\n" + Line), 0U);
  std::uint32_t ids[64];
  EXPECT_EQ(GNSSGetMsgs(ids), 0U);
}

TEST_F(BoardTypeTest, FourBytesOfTheNextLineGoWithALine) {
  for (const std::uint32_t mask : {0xFFFFFFFFU, 0U}) {  // with and without NMEA
    GNSSSetMsgTypes(mask);
    for (std::size_t there = 0; there <= 6; ++there) {
      // The first bytes of the next line come along with this one, the rest once "$" starts
      // sentences again. Up to four are swallowed; more than that begin with no "$" either.
      GNSSSetBoardType(7);
      Push(Line + Line.substr(0, there));
      GNSSSetBoardType(0);
      GNSSSetMsgTypes(0xFFFFFFFF);
      EXPECT_EQ(Push(Line.substr(there) + ".........."), there == 0 ? 1U : 0U) << there;
      for (GnssMessage message; GNSSGetMsg(&message, 0) == 0;) GNSSFreeMem(&message);
      GNSSSetMsgTypes(mask);
    }
  }
  // Four bytes of anything in between save it.
  GNSSSetBoardType(7);
  Push(Line + "\r\n\r\n");
  GNSSSetBoardType(0);
  GNSSSetMsgTypes(0xFFFFFFFF);
  EXPECT_EQ(Push(Line), 1U);
}

// A line that was cut is lost; what is left of it is scanned with the next chunk.
TEST_F(BoardTypeTest, LineInTwoPiecesIsLost) {
  EXPECT_EQ(Push(Line.substr(0, 20)), 0U);
  GNSSSetBoardType(0);
  EXPECT_EQ(Push(Line.substr(20)), 0U);
  EXPECT_EQ(Push(Line), 1U);
}

}  // namespace
}  // namespace navframe
