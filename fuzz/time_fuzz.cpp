// The methods of TimeManager in any order over any values.
#include "fuzz.h"

using namespace navframe;

namespace {

void Step(TimeManager& time, fuzz::Input& input) {
  auto utc = input.Take<UTCTIME>();
  auto gps = input.Take<GPSTIME>();
  auto hms = input.Take<HMSTimeType>();
  char text[] = "120000.000";
  std::uint16_t week = gps.week;
  const int method = input.Byte() % 14;
  if (method == 0) return time.UTC2GPSTime(utc, time.gpsTime);
  if (method == 1) return time.date2Week(utc, time.gpsTime.week, static_cast<int>(gps.tow));
  if (method == 2) return time.updateHMS(hms, text);
  if (method == 3) return time.updateTime(utc, text);
  if (method == 4) return time.updateDate(utc);
  if (method == 5) return time.updateDateTime(utc, text);
  if (method == 6) return time.updateTOW(gps.tow);
  if (method == 7) return time.updateGPST(gps);
  if (method == 8) return time.setLeap(static_cast<std::int32_t>(gps.tow));
  if (method == 9) return time.setTOW(gps.tow);
  if (method == 10) return time.setWeek(week);
  if (method == 11) return time.setDateTime(utc, text);
  if (method == 13) return time.setHMS(hms, text);
  time.savedUtcTime = utc;
  time.savedGpsTime = gps;
  time.clearTime(hms.hour % 2 == 0);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TimeManager time;
  for (fuzz::Input input({data, size}); !input.Empty();) {
    Step(time, input);
    char text[64];
    fuzz::Require(time.timeText.size() < sizeof(text), "time texts are short");
    time.getHMSStr(text);
    fuzz::Require(time.timeText == text, "the text is copied whole");
    const std::unique_ptr<char[]> numbers(new char[18]);
    time.getGPSTStr(numbers.get());
    fuzz::ReadAll(numbers.get(), static_cast<std::uint32_t>(std::strlen(numbers.get())));
  }
  return 0;
}
