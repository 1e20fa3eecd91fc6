#include "ubx/message_table.h"

#include <array>
#include <type_traits>

#include "navframe/navframe.h"
#include "navframe/records.h"
#include "ubx/field_rows.h"
#include "ubx/messages.h"
#include "ubx/solution_rows.h"
#include "ubx/time_keeping.h"

namespace navframe::ubx {
namespace {

constexpr std::uint32_t AnyLength = 0xFFFFFFFF;
constexpr LengthRule Exactly(std::uint32_t length) { return {length, length}; }
constexpr LengthRule AtLeast(std::uint32_t length) { return {length, AnyLength}; }

template <class Record, auto Decode, auto KeepTime>
constexpr MessageRow Row(std::uint8_t messageClass, std::uint8_t id, LengthRule frameLength,
                         std::uint32_t msgId) {
  constexpr bool Recurs =
      std::is_invocable_v<decltype(Decode), const Payload&, DecoderClock&, Record&, std::uint32_t&>;
  return {messageClass,
          id,
          frameLength,
          msgId,
          sizeof(Record),
          Recurs,
          [](const Payload& payload, DecoderClock& time, const RecurringRoom& room) {
            auto& record = *static_cast<Record*>(room.payload);
            if constexpr (Recurs) {
              Decode(payload, time, record, *room.written);
            } else {
              Decode(payload, time, record);
            }
          },
          KeepTime};
}

// A message that is rows of fields; where its time of week stands.
template <class Record, const auto& Rows, std::uint32_t PayloadLength, std::size_t TowOffset = 0>
constexpr MessageRow Fixed(std::uint8_t messageClass, std::uint8_t id, std::uint32_t msgId) {
  static_assert(PayloadRead(Rows) <= PayloadLength && TowOffset + 4 <= PayloadLength);
  static_assert(CoversEveryMember<Record, Rows>());
  return Row<Record, DecodeFields<Record, Rows, TowOffset, PayloadLength>, KeepTowAt<TowOffset>>(
      messageClass, id, Exactly(HeaderLength + PayloadLength + ChecksumLength), msgId);
}

// Class, id, length of the frame where it is not that of rows, kind.
constexpr MessageRow Messages[] = {
    Fixed<UbxProtectionLevelsRecord, ProtectionLevelsRows, 52, 12>(0x01, 0x62,
                                                                   MsgIdUbxProtectionLevels),
    Row<UbxNavigationRecord, DecodeNavigation, KeepNavigationTime>(0x01, 0x07, Exactly(100),
                                                                   MsgIdUbxNavigation),
    Row<UbxSatellitesRecord, DecodeSatellites, KeepTowAt<0>>(0x01, 0x35, AtLeast(15),
                                                             MsgIdUbxSatellites),
    Row<UbxRawMeasurementsRecord, DecodeRawMeasurements, KeepRawTime>(0x02, 0x15, AtLeast(0),
                                                                      MsgIdUbxRawMeasurements),
    Fixed<UbxAttitudeRecord, AttitudeRows, 32>(0x01, 0x05, MsgIdUbxAttitude),
};

}  // namespace

const MessageRow* FindMessage(std::uint8_t messageClass, std::uint8_t id) {
  for (const MessageRow& row : Messages) {
    if (row.messageClass == messageClass && row.id == id) return &row;
  }
  return nullptr;
}

}  // namespace navframe::ubx
