#include <cstring>

#include "base/read_le.h"
#include "ubx/messages.h"
#include "ubx/record_head.h"

namespace navframe::ubx {
namespace {

constexpr double AnglePerDegree = 1e5;

template <class Wire>
double Degrees(const Payload& payload, std::size_t offset) {
  return ReadLe<Wire>(payload.bytes, offset) / AnglePerDegree;
}

}  // namespace

void DecodeAttitude(const Payload& payload, TimeManager& time, UbxAttitudeRecord& record) {
  WriteHead(ReadLe<std::uint32_t>(payload.bytes, 0), time.getWeek(), time, record);
  record.version = payload.bytes[4];
  std::memset(record.reservedInHead, 0, sizeof(record.reservedInHead));
  record.roll = Degrees<std::int32_t>(payload, 8);
  record.pitch = Degrees<std::int32_t>(payload, 12);
  record.heading = Degrees<std::int32_t>(payload, 16);
  record.rollAccuracy = Degrees<std::uint32_t>(payload, 20);
  record.pitchAccuracy = Degrees<std::uint32_t>(payload, 24);
  record.headingAccuracy = Degrees<std::uint32_t>(payload, 28);
}

}  // namespace navframe::ubx
