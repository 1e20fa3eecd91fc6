#include "rtcm/station_messages.h"

#include <array>

#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

// The coordinates are kept as the bits of the message on purpose, without their sign.
#define P(...) NAVFRAME_FIELD(StationPositionRecord, __VA_ARGS__)
constexpr auto StationPosition = std::to_array<FieldRow>({
    P(stationId, 12),
    P(itrfYear, 6),
    P(gps, 1),
    P(glonass, 1),
    P(galileo, 1),
    P(referenceStation, 1),
    P(x, 38),
    Skipped(2),  // single-receiver oscillator indicator, reserved
    P(y, 38),
    Skipped(2),  // quarter-cycle indicator
    P(z, 38),
});
#undef P
static_assert(BitLength(StationPosition) == 140);

#define S(...) NAVFRAME_FIELD(SystemParametersRecord, __VA_ARGS__)
constexpr auto SystemParameters = std::to_array<FieldRow>({
    S(stationId, 12),
    S(modifiedJulianDay, 16),
    S(secondsOfDay, 17),
    S(count, 5),
    S(leapSeconds, 8),
});
#undef S
static_assert(BitLength(SystemParameters) == 58);

#define A(...) NAVFRAME_FIELD(MessageAnnouncement, __VA_ARGS__)
constexpr auto Announcement =
    std::to_array<FieldRow>({A(messageId, 12), A(synchronous, 1), A(interval, 16)});
#undef A
static_assert(BitLength(Announcement) == 29);

}  // namespace

void DecodeStationPosition(const Frame& frame, StationPositionRecord& record) {
  ReadFields(frame, FirstFieldBit, StationPosition, &record);
}

void DecodeSystemParameters(const Frame& frame, SystemParametersRecord& record) {
  std::uint32_t bit = ReadFields(frame, FirstFieldBit, SystemParameters, &record);
  for (std::uint32_t i = 0; i < record.count; ++i) {  // 5 bits: at most the 31 there are
    bit = ReadFields(frame, bit, Announcement, &record.announcements[i]);
  }
}

}  // namespace navframe::rtcm
