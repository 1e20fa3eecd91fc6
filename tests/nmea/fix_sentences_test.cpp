#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

TEST(NmeaFix, GgaIsDecodedWhole) {
  const auto records =
      Decoded(Sentence("GPGGA,123519.00,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,"));
  ASSERT_EQ(records.size(), 1U);
  const auto& gga = records[0].As<GgaRecord>();
  EXPECT_DOUBLE_EQ(gga.latitude, 48.1173);
  EXPECT_EQ(Rendered(records[0]),
            "123519.00,48.11730000,N,11.51666667,E,1,8,0.90,545.400,M,46.900,M,,");
}

}  // namespace
}  // namespace navframe::test
