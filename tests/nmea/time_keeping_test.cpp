// How sentences move the decoder's clock, seen in the records that follow.
#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// "time text|week:time of week" of the decoder's clock, as a VTG is stamped.
std::string Clock(Decoder& decoder) {
  const auto records = Push(decoder, Sentence("GPVTG,"));
  const auto& vtg = records.at(records.size() - 1).As<VtgRecord>();
  const GPSTIME& gps = vtg.gpsTime;
  return std::string(vtg.timeText) + "|" + (gps.week == 65535 ? "" : std::to_string(gps.week)) +
         ":" + (gps.tow == 0xFFFFFFFF ? "" : std::to_string(gps.tow));
}

struct Step {
  const char* body;
  const char* clock;  // after it
};

void ExpectClock(std::initializer_list<Step> steps) {
  const auto decoder = std::make_unique<Decoder>();
  int number = 0;
  for (const Step& step : steps) {
    Push(*decoder, Sentence(step.body));
    EXPECT_EQ(Clock(*decoder), step.clock) << "step " << ++number << ", " << step.body;
  }
}

TEST(TimeKeeping, GgaRepeatedInAnEpochMovesTheClockFromTheSecondRepetition) {
  ExpectClock({{"GPGGA,", "|:"},
               {"GPGGA,120001.00", "120001.00|:"},
               {"GPGST,120002.50", "120002.50|:"},
               {"GPGGA,120001.00", "120002.50|:"},
               {"GPGGA,120001.00", "120001.00|:"},
               {"GPGST,120002.50", "120002.50|:"},
               {"GPGGA,120001.00", "120001.00|:"},
               {"GPGGA,120003.00", "120003.00|:"},
               {"GPGST,120004.50", "120004.50|:"},
               {"GPGGA,120003.00", "120004.50|:"},
               // Without a time it repeats too, and clears the text once it counts.
               {"GPGGA,", "|:"},
               {"GPGST,120005.75", "120005.75|:"},
               {"GPGGA,120003.00", "120003.00|:"},
               // The text of the epoch counts, not its value.
               {"GPGGA,120003.000", "120003.000|:"}});
}

TEST(TimeKeeping, RmcSetsDateAndTimeOrFallsBackToWhatIsSaved) {
  ExpectClock({{"GPRMC,120000.000,A,,,,,,,310724", "120000.000|2325:302418000"},
               {"GPGST,120001.25", "120001.25|2325:302419250"},
               {"GPRMC,120002.00", "120002.00|:"},
               {"GPRMC,,,,,,,,,310724", "120002.00|:"},
               {"GPRMC,,,,,,,,,310724", "|2325:"},
               {"GPRMC,,,,,,,,,040824", "|2325:"},  // a Sunday: the week before
               {"GPRMC,,,,,,,,,050824", "|2326:"},
               {"GPRMC,120003.00,A,,,,,,,000000", "120003.00|:"}});
}

// One epoch serves both kinds, each with a counter of its own: RMC behind GGA moves the clock from
// the second epoch on, for good.
TEST(TimeKeeping, GgaOpensTheEpochOfRmc) {
  ExpectClock({{"GPGGA,120000.00", "120000.00|:"},
               {"GPRMC,120000.00,A,,,,,,,310724", "120000.00|:"},
               {"GPGGA,120001.00", "120001.00|:"},
               {"GPRMC,120001.00,A,,,,,,,310724", "120001.00|2325:302419000"},
               {"GPGGA,120002.00", "120002.00|2325:302420000"},
               {"GPRMC,120002.00,A,,,,,,,310724", "120002.00|2325:302420000"},
               {"GPRMC,120002.00,A,,,,,,,010824", "120002.00|2325:388820000"}});
}

TEST(TimeKeeping, ClockMovesOnlyWhenSecondAndMillisecondDiffer) {
  ExpectClock({{"GPRMC,120000.000,A,,,,,,,310724", "120000.000|2325:302418000"},
               {"GPGST,120001.00", "120000.000|2325:302418000"},
               {"GPGBS,120100.50", "120000.000|2325:302418000"},
               {"GPGST,", "120000.000|2325:302418000"},
               {"GPGBS,120101.50", "120101.50|2325:302479500"},
               {"GPGLL,,,,,120202.75", "120101.50|2325:302479500"},
               // A GGA clears the time of day to millisecond 255, which then never differs.
               {"GPGGA,120102.255", "|2325:302479500"},
               {"GPGGA,120103.000", "120103.000|2325:302481000"}});
}

TEST(TimeKeeping, ZdaSetsTheDateUnlessItsTimeIsTheClocks) {
  ExpectClock({{"GPZDA,,31,07,2024", "|:"},  // the empty time is the clock's
               {"GPGGA,120000.00", "120000.00|:"},
               {"GPZDA,120000.00,31,07,2024", "120000.00|:"},
               {"GPZDA,120000.000,31,07,2024", "120000.000|2325:302418000"},
               {"GPZDA,120001.000", "120001.000|2325:302419000"},
               {"GPZDA,,01,08,2024", "120001.000|2325:388819000"},
               {"GPZDA,120002.00,01,13,2024", "120002.00|2325:388819000"},
               {"GPZDA,235960.00,01,08,2024", "235960.00|2325:432018000"},
               {"GPZDA,000000.00,02,08,2024", "000000.00|2325:432019000"}});
}

}  // namespace
}  // namespace navframe::test
