// The proprietary sentences.
#include <algorithm>
#include <concepts>
#include <string_view>

#include "nmea/field.h"
#include "nmea/sentence_table.h"

namespace navframe::nmea {
namespace {

// How one member is read from its field; an empty field leaves it as it is.
template <std::integral Integer>
void Read(FieldReader& fields, std::size_t index, Integer& member) {
  fields.Int(index, member);
}
void Read(FieldReader& fields, std::size_t index, double& member) { fields.Double(index, member); }
void Read(FieldReader& fields, std::size_t index, float& member) {
  fields.DoubleAsFloat(index, member);
}
void Read(FieldReader& fields, std::size_t index, RecordText& member) {
  // As many characters as the string holds inside itself.
  constexpr std::size_t MostCharacters = 15;
  const std::string_view field = fields[index];
  member.assign(field.substr(0, std::min(field.find('\0'), MostCharacters)));
}
template <std::size_t Width>
void Read(FieldReader& fields, std::size_t index, char (&member)[Width]) {
  if (!fields[index].empty()) CopyText(member, fields[index]);
}

// Feeds the fields from `first` on to the members, in the order given.
template <class... Members>
void ReadInOrder(FieldReader& fields, std::size_t first, Members&... members) {
  (Read(fields, first++, members), ...);
}

template <class Member, std::size_t Count>
void ReadEach(FieldReader& fields, std::size_t first, Member (&members)[Count]) {
  for (Member& member : members) Read(fields, first++, member);
}

// One that does not allow for an empty field.
void ReadByte(FieldReader& fields, std::size_t index, const Number<int>& number,
              std::uint8_t& member) {
  int value;
  if (fields.Take(index, number, value)) member = static_cast<std::uint8_t>(value);
}

// An INSPVA whose time field has its point where a time with decimals has it.
bool IsInsPva(const Fields& fields) {
  constexpr std::size_t PointPosition = 6;
  return fields[2].size() > PointPosition && fields[2][PointPosition] == '.';
}

// PNAVMSG and CWOUT need exactly their number of fields; with any other the record keeps its
// unknown values. PNAVMSG does not allow for an empty field.
//
// $PNAVMSG,1,2,0A,1B,2C,3D,4E,5F,60,71,82,93,A4,B5,C6,D7,E8*hh
void ParsePNavMsg(NmeaContext& /*context*/, FieldReader& fields, PNavMsgRecord& record) {
  constexpr std::size_t FieldCount = 18;
  if (fields.Count() != FieldCount) return;
  ReadByte(fields, 1, ToInt(fields[1]), record.head[0]);
  ReadByte(fields, 2, ToInt(fields[2]), record.head[1]);
  for (std::size_t i = 0; i < std::size(record.values); ++i) {
    ReadByte(fields, 3 + i, ToIntBase16(fields[3 + i]), record.values[i]);
  }
}

// $CWOUT,1,-60,2,-61,3,-62,4,-63,5*hh
void ParseCwOut(NmeaContext& /*context*/, FieldReader& fields, CwOutRecord& record) {
  constexpr std::size_t FieldCount = 10;
  if (fields.Count() == FieldCount) ReadEach(fields, 1, record.values);
}

// $NAVACC,123519.00,A,12,34,56*hh
void ParseNavAcc(NmeaContext& /*context*/, FieldReader& fields, NavAccRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  if (fields[2] == "A") record.status = 1;
  ReadEach(fields, 3, record.values);
}

// $NAVPOS,0,16,61,3,SOL,1,12,4027881.532,306998.672,4919499.421,0.010,0.012,0.015*hh
void ParseNavPos(NmeaContext& /*context*/, FieldReader& fields, NavPosRecord& record) {
  ReadInOrder(fields, 1, record.solutionStatus, record.positionType, record.datum,
              record.stationNumber, record.text, record.status, record.count, record.x, record.y,
              record.z, record.sigmaX, record.sigmaY, record.sigmaZ);
}

// $NAVVEL,0,16,61,3,SOL,26,12,0.012,-0.034,0.001,0.050*hh
void ParseNavVel(NmeaContext& /*context*/, FieldReader& fields, NavVelRecord& record) {
  ReadInOrder(fields, 1, record.solutionStatus, record.positionType, record.datum,
              record.stationNumber, record.text, record.status, record.count, record.velocity[0],
              record.velocity[1], record.velocity[2], record.speedAccuracy);
}

// $NAVTIME,0,1,0.000000001,0,1,0.000000002,0,1,0.000000003,0,1,0.000000004*hh
void ParseNavTime(NmeaContext& /*context*/, FieldReader& fields, NavTimeRecord& record) {
  constexpr std::size_t GroupFields = 3;
  std::size_t first = 1;
  for (NavTimeGroup& group : record.groups) {
    ReadInOrder(fields, first, group.status, group.flag, group.seconds);
    first += GroupFields;
  }
}

// $SNRSTAT,1,0,-3,2,5*hh
void ParseSnrStat(NmeaContext& /*context*/, FieldReader& fields, SnrStatRecord& record) {
  ReadInOrder(fields, 1, record.count, record.state, record.levels[0], record.levels[1],
              record.levels[2]);
}

// $GYOACC,123519.00,0.012,-0.034,0.001,0.050,0.060,9.810*hh
void ParseGyoAcc(NmeaContext& /*context*/, FieldReader& fields, GyoAccRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  ReadEach(fields, 2, record.gyro);
  ReadEach(fields, 5, record.acceleration);
}

// $IMURAW,123519.00,GYRO,ACC,0.012,-0.034,0.001,0.050,0.060,9.810*hh
void ParseImuRaw(NmeaContext& /*context*/, FieldReader& fields, ImuRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  ReadEach(fields, 2, record.text);
  ReadEach(fields, 4, record.values);
}

// $IMUVEH,123519.00,GYRO,ACC,0.012,-0.034,0.001,0.050,0.060,9.810*hh; the time is text alone.
void ParseImuVeh(NmeaContext& /*context*/, FieldReader& fields, ImuRecord& record) {
  CopyText(record.timeText, fields[1]);
  ReadEach(fields, 2, record.text);
  ReadEach(fields, 4, record.values);
}

// $NAVATT,123519.00,1.250,-0.500,84.200,0.050,0.050,0.120*hh
void ParseNavAtt(NmeaContext& /*context*/, FieldReader& fields, NavAttRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  ReadEach(fields, 2, record.values);
}

// $INSPVA,140326,123519.00,47.37640000,8.54760000,431.20,1.2,11.8,0.0,1.25,-0.50,84.20*hh
void ParseInsPva(NmeaContext& /*context*/, FieldReader& fields, InsPvaRecord& record) {
  fields.Date(1, record.utc);
  CopyText(record.dateText, fields[1]);
  fields.TimeOfDay(2, record.utc, record.timeText);
  ReadInOrder(fields, 3, record.latitude, record.longitude, record.height, record.velocity[0],
              record.velocity[1], record.velocity[2], record.attitude[0], record.attitude[1],
              record.attitude[2]);
}

using enum FilterTest;

// Text behind "$"; kind, when the filter is asked, clock, fields, twin. Tried in this order.
struct PrefixRow {
  std::string_view prefix;
  SentenceRow sentence;
};
constexpr PrefixRow Prefixes[] = {
    {"PNAVMSG", With<PNavMsgRecord, ParsePNavMsg>({MsgIdPNavMsg, Never})},
    {"CWOUT", With<CwOutRecord, ParseCwOut>({MsgIdCwOut, BeforeBuilding})},
    {"GYOACC,", With<GyoAccRecord, ParseGyoAcc>(
                    {MsgIdGyoAcc, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmGyoAcc})},
    // The same record under a number of its own, which the filter knows by the other's values
    // alone.
    {"GYOACC-V", With<GyoAccRecord, ParseGyoAcc>({MsgIdGyoAccV, AfterParsing, ClockRule::TimeOfDay,
                                                  nullptr, MsgIdRtcmGyoAcc, MsgIdGyoAcc})},
    // The twins of IMURAW and NAVATT are crossed; hosts rely on it.
    {"IMURAW", With<ImuRecord, ParseImuRaw>(
                   {MsgIdImuRaw, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmImuRaw})},
    {"SNRSTAT", With<SnrStatRecord, ParseSnrStat>(
                    {MsgIdSnrStat, BeforeBuilding, ClockRule::None, nullptr, MsgIdRtcmSnrStat})},
    {"NAVATT", With<NavAttRecord, ParseNavAtt>(
                   {MsgIdNavAtt, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmNavAtt})},
    {"INSPVA", With<InsPvaRecord, ParseInsPva>({.kind = MsgIdInsPva,
                                                .filterTest = AfterParsing,
                                                .clock = ClockRule::TimeOfDay,
                                                .takes = IsInsPva,
                                                .twin = MsgIdRtcmInsPva,
                                                .takesByTime = true})},
    {"IMUVEH", With<ImuRecord, ParseImuVeh>({.kind = MsgIdImuVeh,
                                             .filterTest = BeforeBuilding,
                                             .twin = MsgIdRtcmImuVeh,
                                             .keepsTimeText = true})},
    {"NAVPOS", With<NavPosRecord, ParseNavPos>({MsgIdNavPos, BeforeBuilding})},
    {"NAVVEL", With<NavVelRecord, ParseNavVel>({MsgIdNavVel, BeforeBuilding})},
    {"NAVTIME", With<NavTimeRecord, ParseNavTime>({MsgIdNavTime, BeforeBuilding})},
    {"NAVACC", With<NavAccRecord, ParseNavAcc>({MsgIdNavAcc, AfterParsing, ClockRule::TimeOfDay})},
};

}  // namespace

const SentenceRow* FindProprietary(std::string_view text) {
  const std::string_view address = text.substr(1);
  for (const PrefixRow& row : Prefixes) {
    if (address.starts_with(row.prefix)) return &row.sentence;
  }
  return nullptr;
}

}  // namespace navframe::nmea
