// Parts of observation files: numbers in their columns, and which phases may have slipped.
#include <gmock/gmock.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "rinex/loss_of_lock.h"
#include "rinex/number_text.h"

namespace navframe::tool {
namespace {

// Empty for what does not fit.
std::string Written(double value) {
  std::array<char, 14> text{};
  const bool fits = PutRounded(value, text.data());
  EXPECT_EQ(HasThousandths(value), fits) << value;
  return fits ? std::string(text.data(), text.size()) : "";
}

std::string Printed(double value) {
  std::array<char, 400> text{};
  std::snprintf(text.data(), text.size(), "%14.3f", value);
  const std::string printed = text.data();
  if (printed == "        -0.000") return "         0.000";
  return printed.size() > 14 || !std::isfinite(value) ? "" : printed;
}

TEST(ObservationFile, NumbersAreThoseOfPrintf) {
  std::vector<double> values = {0, -0.0, NAN, INFINITY, -INFINITY, 5e-324, 0.0005, -0.0005, 0.9995};
  for (const double limit : {9999999999.9995, -999999999.9995, 999999999.0, 999999999.9995}) {
    for (const double value : {limit, std::nextafter(limit, 0), std::nextafter(limit, 1e300)}) {
      values.push_back(value);
      values.push_back(-value);
    }
  }
  for (int i = -4000; i < 4000; ++i) values.push_back(i / 16.0);  // half of them are ties
  std::mt19937_64 random(1);
  for (int i = 0; i < 50'000; ++i) {
    values.push_back(std::bit_cast<double>(random()));
    values.push_back(std::ldexp(static_cast<double>(random()), -30 - static_cast<int>(i % 60)));
    values.push_back(std::round(std::ldexp(static_cast<double>(random()), -22)) / 2000);
  }
  for (const double value : values) ASSERT_EQ(Written(value), Printed(value)) << value;
}

TEST(ObservationFile, LossOfLockIsSinceThePhaseBeforeInTheFile) {
  struct Step {
    const char* what;
    double time;  // s
    std::uint32_t lockTime;
    bool isWritten;
    bool isLost;
  };
  constexpr std::uint32_t Longest = 64'500;
  constexpr Step Steps[] = {
      {"the first one", 10, 0, true, false},
      {"as old as the step", 11, 1000, true, false},
      {"younger", 12, 999, true, true},
      {"lost where it is not written", 13, 100, false, false},
      {"told with the next one", 14, 1100, true, true},
      {"and once", 15, 2100, true, false},
      {"a gap longer than the lock", 40, 20'000, true, true},
      {"the longest stands for longer ones", 400, Longest, true, false},
      {"but not what is below", 800, Longest - 1, true, true},
  };
  LossOfLock locks;
  const SignalKey key = KeyOf(1, 5, 0);
  for (const Step& step : Steps) {
    locks.Note(key, TicksOf(step.time), step.lockTime, Longest);
    EXPECT_EQ(step.isWritten && locks.Take(key), step.isLost) << step.what;
  }
  locks.Shift(TicksPerWeek);
  locks.Note(key, TicksOf(801) + TicksPerWeek, 1000, Longest);
  EXPECT_FALSE(locks.Take(key)) << "a week that became known is no gap";
  locks.NoteLost(key);
  EXPECT_TRUE(locks.Take(key));
}

}  // namespace
}  // namespace navframe::tool
