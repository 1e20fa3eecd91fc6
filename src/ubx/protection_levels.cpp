#include <cstring>

#include "base/read_le.h"
#include "ubx/messages.h"
#include "ubx/record_head.h"

namespace navframe::ubx {

void DecodeProtectionLevels(const Payload& payload, TimeManager& time,
                            UbxProtectionLevelsRecord& record) {
  const std::uint8_t* const p = payload.bytes;
  std::memset(&record, 0, sizeof(record));
  WriteHead(ReadLe<std::uint32_t>(p, 12), time.getWeek(), time, record);
  record.version = p[0];
  record.riskCoefficient = p[1];
  record.riskExponent = ReadLe<std::int8_t>(p, 2);
  record.positionValid = p[3];
  record.positionFrame = p[4];
  record.velocityValid = p[5];
  record.velocityFrame = p[6];
  record.timeValid = p[7];
  record.positionInvalidReason = p[8];
  record.velocityInvalidReason = p[9];
  record.timeInvalidReason = p[10];
  for (std::size_t axis = 0; axis < 3; ++axis) {
    record.positionLevels[axis] = ReadLe<std::uint32_t>(p, 16 + 4 * axis);
    record.velocityLevels[axis] = ReadLe<std::uint32_t>(p, 28 + 4 * axis);
  }
  record.positionOrientation = ReadLe<std::uint16_t>(p, 40);
  record.velocityOrientation = ReadLe<std::uint16_t>(p, 42);
  record.timeLevel = ReadLe<std::uint32_t>(p, 44);
  record.reservedAtEnd = ReadLe<std::uint32_t>(p, 48);
}

}  // namespace navframe::ubx
