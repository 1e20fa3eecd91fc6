#include "ubx/message_table.h"

#include "navframe/navframe.h"
#include "navframe/records.h"
#include "ubx/messages.h"

namespace navframe::ubx {
namespace {

constexpr std::uint32_t AnyLength = 0xFFFFFFFF;
constexpr LengthRule Exactly(std::uint32_t length) { return {length, length}; }
constexpr LengthRule AtLeast(std::uint32_t length) { return {length, AnyLength}; }

template <class Record, void (*Decode)(const Payload&, TimeManager&, Record&)>
constexpr MessageRow Row(std::uint8_t messageClass, std::uint8_t id, LengthRule frameLength,
                         std::uint32_t msgId) {
  return {messageClass,
          id,
          frameLength,
          msgId,
          sizeof(Record),
          [](const Payload& payload, TimeManager& time, void* record) {
            Decode(payload, time, *static_cast<Record*>(record));
          }};
}

constexpr MessageRow Messages[] = {
    Row<UbxProtectionLevelsRecord, DecodeProtectionLevels>(0x01, 0x62, Exactly(60),
                                                           MsgIdUbxProtectionLevels),
    Row<UbxNavigationRecord, DecodeNavigation>(0x01, 0x07, Exactly(100), MsgIdUbxNavigation),
    Row<UbxSatellitesRecord, DecodeSatellites>(0x01, 0x35, AtLeast(15), MsgIdUbxSatellites),
    Row<UbxRawMeasurementsRecord, DecodeRawMeasurements>(0x02, 0x15, AtLeast(0),
                                                         MsgIdUbxRawMeasurements),
    Row<UbxAttitudeRecord, DecodeAttitude>(0x01, 0x05, Exactly(40), MsgIdUbxAttitude),
};

}  // namespace

const MessageRow* FindMessage(std::uint8_t messageClass, std::uint8_t id) {
  for (const MessageRow& row : Messages) {
    if (row.messageClass == messageClass && row.id == id) return &row;
  }
  return nullptr;
}

}  // namespace navframe::ubx
