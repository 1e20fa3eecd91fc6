#include "ubx/standard_table.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <type_traits>

#include "navframe/navframe.h"
#include "ubx/device_rows.h"
#include "ubx/field_rows.h"
#include "ubx/satellite_rows.h"
#include "ubx/solution_rows.h"
#include "ubx/time_keeping.h"

namespace navframe::ubx {
namespace {

constexpr std::uint16_t NoVersion = 0xFFFF;

// Where a message has its version, and which.
struct Version {
  std::uint16_t offset = NoVersion;
  std::uint8_t number = 0;
};

constexpr LengthRule AnyLength = {0, 0xFFFFFFFF};  // `takes` judges
constexpr std::uint8_t ClassOf(std::uint16_t message) {
  return static_cast<std::uint8_t>(message >> 8U);
}
constexpr std::uint8_t IdOf(std::uint16_t message) { return static_cast<std::uint8_t>(message); }

constexpr void LeaveTime(const Payload&, DecoderClock&) {}

// The usual time keeping of a message.
template <std::size_t TowOffset>
constexpr auto KeepUsual = [] {
  if constexpr (TowOffset == NoTow) {
    return LeaveTime;
  } else {
    return KeepTowAt<TowOffset>;
  }
}();

template <std::uint32_t... Lengths>
bool IsOneOf(const Payload& payload) {
  return ((payload.length == Lengths) || ...);
}

// Message, version, kind.
template <class Record, const auto& Rows, std::size_t TowOffset, auto KeepTime,
          std::uint32_t Length, std::uint32_t... LongerLengths>
constexpr StandardRow Fixed(std::uint16_t message, Version version, std::uint32_t kind) {
  static_assert(PayloadRead(Rows) <= std::max({Length, LongerLengths...}));
  static_assert(TowOffset == NoTow || TowOffset + 4 <= Length);
  return {{ClassOf(message), IdOf(message), AnyLength, kind, sizeof(Record), false,
           [](const Payload& payload, DecoderClock& time, const RecurringRoom& room) {
             DecodeFields<Record, Rows, TowOffset, Length>(payload, time,
                                                           *static_cast<Record*>(room.payload));
           },
           KeepTime},
          version.offset,
          version.number,
          IsOneOf<Length, LongerLengths...>};
}

// The same of all members.
template <class Record, const auto& Rows, std::uint32_t Length, std::size_t TowOffset = 0,
          auto KeepTime = KeepUsual<TowOffset>, std::uint32_t... LongerLengths>
constexpr StandardRow Whole(std::uint16_t message, std::uint32_t kind, Version version = {}) {
  static_assert(CoversEveryMember<Record, Rows>());
  return Fixed<Record, Rows, TowOffset, KeepTime, Length, LongerLengths...>(message, version, kind);
}

constexpr void LeaveRecord(const Payload&, void*) {}

// Whether the payload ends with the last block that it counts.
template <class List>
bool HoldsList(const Payload& payload) {
  constexpr const ListRow& Row = List::Row;
  if (payload.length < Row.offset) return false;
  const std::size_t blocks = payload.length - Row.offset;
  if constexpr (Row.isCounted) {
    return blocks == Row.count(payload) * Row.length;
  } else {
    return blocks % Row.length == 0 && blocks / Row.length <= Row.room;
  }
}

// A message with a list, of which its count tells no more than `Most`. `Finish` writes what rows do
// not tell.
template <class Record, const auto& Rows, class List, std::size_t TowOffset = 0,
          std::size_t Most = 255, auto Takes = HoldsList<List>, auto Finish = LeaveRecord>
constexpr StandardRow Listed(std::uint16_t message, std::uint32_t kind, Version version = {}) {
  constexpr const ListRow& Row = List::Row;
  static_assert(PayloadRead(Rows) <= Row.offset && PayloadRead(List::Rows) <= Row.length);
  static_assert(Row.room >= Most || Row.room >= (LongestPayload - Row.offset) / Row.length);
  return {{ClassOf(message), IdOf(message), AnyLength, kind, sizeof(Record), true,
           [](const Payload& payload, DecoderClock& time, const RecurringRoom& room) {
             auto& record = *static_cast<Record*>(room.payload);
             DecodeFields<Record, Rows, TowOffset, Row.offset, List>(payload, time, record);
             ReadList<Record, List>(payload, record, *room.written);
             Finish(payload, &record);
           },
           KeepUsual<TowOffset>},
          version.offset,
          version.number,
          Takes};
}

bool HoldsSensorData(const Payload& payload) {
  constexpr const ListRow& Row = SensorMeasurementsList::Row;
  if (payload.length < Row.offset) return false;
  const std::size_t count = SensorCount(payload);
  return count <= Row.room &&
         payload.length - Row.offset == (count + CalibrationTimes(payload)) * SensorWord;
}
void TakeCalibrationTime(const Payload& payload, void* record) {
  if (CalibrationTimes(payload) == 0) return;
  static_cast<UbxSensorMeasurementsRecord*>(record)->calibrationTime =
      ReadLe<std::uint32_t>(payload.bytes, payload.length - SensorWord);
}

// What the id tells, and not the payload.
template <std::uint8_t Accepted>
constexpr StandardRow Acknowledge() {
  constexpr std::uint16_t Class = 0x0500;
  StandardRow row = Fixed<UbxAcknowledgeRecord, AcknowledgeRows, NoTow, LeaveTime, 2>(
      Class + Accepted, {}, MsgIdUbxAcknowledge);
  row.decode = [](const Payload& payload, DecoderClock& time, const RecurringRoom& room) {
    auto& record = *static_cast<UbxAcknowledgeRecord*>(room.payload);
    DecodeFields<UbxAcknowledgeRecord, AcknowledgeRows, NoTow, 2>(payload, time, record);
    record.accepted = Accepted;
  };
  return row;
}

template <std::uint8_t Severity>
void DecodeInformation(const Payload& payload, DecoderClock& time, const RecurringRoom& room) {
  auto& record = *static_cast<UbxInformationRecord*>(room.payload);
  DecodeFields<UbxInformationRecord, NoRows, NoTow, 0, InformationText>(payload, time, record);
  record.severity = Severity;
  const auto* const end = std::find(payload.bytes, payload.bytes + payload.length, 0);
  const auto length = static_cast<std::size_t>(end - payload.bytes);
  std::memcpy(record.text, payload.bytes, length);
  MakeUnknownFrom(offsetof(UbxInformationRecord, text) + length, *room.written, record);
}
template <std::uint8_t Severity>
constexpr StandardRow Information() {
  constexpr std::uint16_t Class = 0x0400;
  return {
      {ClassOf(Class), Severity, AnyLength, MsgIdUbxInformation, sizeof(UbxInformationRecord), true,
       DecodeInformation<Severity>, LeaveTime},
      NoVersion,
      0,
      [](const Payload& payload) { return payload.length < sizeof(UbxInformationRecord::text); }};
}

// Class and id, kind, version. In the order of class and id.
constexpr StandardRow Rows[] = {
    Whole<UbxEcefRecord, EcefRows, 20>(0x0101, MsgIdUbxEcef),
    Whole<UbxPositionRecord, PositionRows, 28>(0x0102, MsgIdUbxPosition),
    Whole<UbxStatusRecord, StatusRows, 16>(0x0103, MsgIdUbxStatus),
    Whole<UbxDopRecord, DopRows, 18>(0x0104, MsgIdUbxDop),
    Whole<UbxAttitudeRecord, AttitudeRows, 32>(0x0105, MsgIdUbxAttitude, {4, 0}),
    Whole<UbxSolutionRecord, SolutionRows, 52, 0, KeepSolutionTime>(0x0106, MsgIdUbxSolution),
    Whole<UbxFullNavigationRecord, FullNavigationRows, 84, 0, KeepNavigationTime, 92>(
        0x0107, MsgIdUbxFullNavigation),
    Whole<UbxEcefVelocityRecord, EcefVelocityRows, 20>(0x0111, MsgIdUbxEcefVelocity),
    Whole<UbxVelocityRecord, VelocityRows, 36>(0x0112, MsgIdUbxVelocity),
    Whole<UbxHighPrecisionEcefRecord, HighPrecisionEcefRows, 28, 4>(
        0x0113, MsgIdUbxHighPrecisionEcef, {0, 0}),
    Whole<UbxHighPrecisionPositionRecord, HighPrecisionPositionRows, 36, 4>(
        0x0114, MsgIdUbxHighPrecisionPosition, {0, 0}),
    Whole<UbxVehicleNavigationRecord, VehicleNavigationRows, 116, 0, KeepVehicleTime>(
        0x0117, MsgIdUbxVehicleNavigation, {4, 0}),
    Whole<UbxGpsTimeRecord, GpsTimeRows, 16, 0, KeepGpsTime>(0x0120, MsgIdUbxGpsTime),
    Whole<UbxUtcRecord, UtcRows, 20, 0, KeepUtc>(0x0121, MsgIdUbxUtc),
    Whole<UbxClockRecord, ClockRows, 20>(0x0122, MsgIdUbxClock),
    Whole<UbxLeapSecondsRecord, LeapSecondsRows, 24>(0x0126, MsgIdUbxLeapSeconds, {4, 0}),
    Listed<UbxChannelsRecord, ChannelsRows, ChannelsList>(0x0130, MsgIdUbxChannels),
    Listed<UbxFullSatellitesRecord, FullSatellitesRows, FullSatellitesList>(
        0x0135, MsgIdUbxFullSatellites, {4, 1}),
    Whole<UbxCovarianceRecord, CovarianceRows, 64>(0x0136, MsgIdUbxCovariance, {4, 0}),
    Whole<UbxSurveyInRecord, SurveyInRows, 40, 4>(0x013B, MsgIdUbxSurveyIn, {0, 0}),
    Fixed<UbxRelativePositionRecord, RelativePosition0Rows, 4, KeepTowAt<4>, 40>(
        0x013C, {0, 0}, MsgIdUbxRelativePosition),
    Whole<UbxRelativePositionRecord, RelativePositionRows, 64, 4>(0x013C, MsgIdUbxRelativePosition,
                                                                  {0, 1}),
    Listed<UbxSignalsRecord, SignalsRows, SignalsList>(0x0143, MsgIdUbxSignals, {4, 0}),
    Whole<UbxEndOfEpochRecord, NoRows, 4>(0x0161, MsgIdUbxEndOfEpoch),
    Whole<UbxProtectionLevelsRecord, ProtectionLevelsRows, 52, 12>(0x0162, MsgIdUbxProtectionLevels,
                                                                   {0, 1}),
    Listed<UbxSubframeRecord, Subframe1Rows, SubframeList, NoTow>(0x0213, MsgIdUbxSubframe, {6, 1}),
    Listed<UbxSubframeRecord, SubframeRows, SubframeList, NoTow>(0x0213, MsgIdUbxSubframe, {6, 2}),
    Listed<UbxMeasurementsRecord, MeasurementsRows, MeasurementsList, NoTow>(
        0x0214, MsgIdUbxMeasurements, {0, 1}),
    Whole<UbxRtcmInputRecord, RtcmInputRows, 8, NoTow>(0x0232, MsgIdUbxRtcmInput, {0, 2}),
    Information<0>(),
    Information<1>(),
    Information<2>(),
    Information<3>(),
    Information<4>(),
    Acknowledge<0>(),
    Acknowledge<1>(),
    Listed<UbxVersionRecord, VersionRows, VersionList, NoTow>(0x0A04, MsgIdUbxVersion),
    Whole<UbxTimePulseRecord, TimePulseRows, 16, NoTow>(0x0D01, MsgIdUbxTimePulse),
    Whole<UbxTimeMarkRecord, TimeMarkRows, 28, NoTow>(0x0D03, MsgIdUbxTimeMark),
    Listed<UbxSensorMeasurementsRecord, SensorMeasurementsRows, SensorMeasurementsList, NoTow, 31,
           HoldsSensorData, TakeCalibrationTime>(0x1002, MsgIdUbxSensorMeasurements),
    Listed<UbxRawSensorsRecord, NoRows, RawSensorsList, NoTow>(0x1003, MsgIdUbxRawSensors),
    Listed<UbxFusionStatusRecord, FusionStatusRows, FusionStatusList>(0x1010, MsgIdUbxFusionStatus,
                                                                      {4, 2}),
    Whole<UbxMountingRecord, MountingRows, 16>(0x1014, MsgIdUbxMounting, {4, 1}),
    Whole<UbxInertialRecord, InertialRows, 36, 8>(0x1015, MsgIdUbxInertial, {0, 1}),
};
static_assert(std::ranges::is_sorted(Rows, {}, [](const StandardRow& row) {
  return row.messageClass << 8U | row.id;
}));

// The first row of each message: looked up for every frame.
constexpr std::uint8_t NoRow = 255;
struct Places {
  std::array<std::uint8_t, 256> classes{};  // by class its place in `firsts`; 0 for none
  std::array<std::array<std::uint8_t, 256>, 8> firsts{};
};
constexpr Places FirstRows = [] {
  Places places;
  for (auto& ids : places.firsts) ids.fill(NoRow);
  std::uint8_t classes = 0;
  for (std::size_t i = std::size(Rows); i-- > 0;) {
    std::uint8_t& place = places.classes[Rows[i].messageClass];
    if (place == 0) place = ++classes;
    places.firsts[place][Rows[i].id] = static_cast<std::uint8_t>(i);
  }
  return places;
}();
static_assert(std::size(Rows) < NoRow);

// Whether the payload has the version of a row; `isCut` when it ends before its version.
bool HasVersion(const StandardRow& row, const Payload& payload, bool& isCut) {
  if (row.versionOffset == NoVersion) return true;
  isCut = payload.length <= row.versionOffset;
  return !isCut && payload.bytes[row.versionOffset] == row.version;
}

}  // namespace

StandardAnswer FindStandard(std::uint8_t messageClass, std::uint8_t id, const Payload& payload) {
  const std::uint8_t first = FirstRows.firsts[FirstRows.classes[messageClass]][id];
  if (first == NoRow) return {false, nullptr, NavframeNoKind};
  StandardAnswer answer{true, nullptr, NavframeNoKind};
  for (const auto* row = Rows + first;
       row != std::end(Rows) && row->messageClass == messageClass && row->id == id; ++row) {
    bool isCut = false;
    const bool isThis = HasVersion(*row, payload, isCut);
    if (isThis && row->takes(payload)) return {true, row, NavframeNoReason};
    if (isThis || isCut) answer.reason = NavframeBadContent;
  }
  return answer;
}

}  // namespace navframe::ubx
