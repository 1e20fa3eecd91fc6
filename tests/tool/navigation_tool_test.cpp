// navframe rinex, as far as it makes navigation files.
#include "generator/rtcm_stream.h"
#include "tool.h"

namespace navframe::test {
namespace {

using sample::BitWriter;
using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

// Messages 1019 and 1045 of a week as far as they tell it; toc and toe are its start.
std::string GpsOfWeek2305() {
  BitWriter bits;
  bits.Put(1019, 12).Put(3, 6).Put(2305 % 1024, 10);
  bits.Put(0, 460);  // the rest
  return Text(sample::RtcmFrame(bits.Written()));
}
std::string GalileoOfWeek2305() {
  BitWriter bits;
  bits.Put(1045, 12).Put(5, 6).Put(2305 - 1024, 12);
  bits.Put(0, 466);  // the rest
  return Text(sample::RtcmFrame(bits.Written()));
}

TEST_F(Tool, MakesNavigationFiles) {
  const Outcome undated = Run("navframe rinex $IN -o $DIR/nav", GpsOfWeek2305());
  EXPECT_EQ(undated.status, 1);
  EXPECT_THAT(undated.err, AllOf(HasSubstr("left out: 1 ephemerides whose week nothing tells"),
                                 HasSubstr("no observations and no ephemerides")));

  const Outcome dated =
      Run("navframe rinex $IN --date 2024-03-14 -o $DIR/nav && cat $DIR/nav.nav && ls $DIR",
          GpsOfWeek2305() + GpsOfWeek2305());
  EXPECT_EQ(dated.status, 0) << dated.err;
  EXPECT_THAT(dated.out, AllOf(StartsWith("     3.05           NAVIGATION DATA     G"),
                               HasSubstr("\nweeks: from --date "),
                               HasSubstr("\nG03 2024 03 10 00 00 00 0.000000000000E+00")));
  EXPECT_EQ(dated.out.find("G03"), dated.out.rfind("G03"));
  EXPECT_THAT(dated.out, Not(HasSubstr(".obs")));

  const Outcome compressed =
      Run("navframe rinex $IN --version 4 --sat E --station ABCD00CHE --gzip -o $DIR/new/files && "
          "cd $DIR/new/files && ls && zcat *",
          GpsOfWeek2305() + GalileoOfWeek2305());
  EXPECT_EQ(compressed.status, 0) << compressed.err;
  EXPECT_THAT(compressed.out,
              MatchesRegex("ABCD00CHE_S_20240700000_01M_EN.rnx.gz\n     4.02 (.|\n)*END OF HEADER "
                           "*\n> EPH E05 FNAV\nE05 2024 03 10 (.|\n)*"));
  EXPECT_THAT(compressed.out, Not(HasSubstr("G03")));
}

}  // namespace
}  // namespace navframe::test
