#include "nmea/sentence_table.h"

#include <array>
#include <cstring>
#include <new>

#include "catalogue/unknown_records.h"
#include "navframe/records.h"
#include "nmea/fix_sentences.h"
#include "nmea/proprietary.h"
#include "nmea/satellite_sentences.h"

namespace navframe::nmea {
namespace {

// Copies every byte of a record, also those between its members.
template <class Record>
void CopyRecord(void* to, const void* from) {
  std::memcpy(to, from, sizeof(Record));
  if constexpr (requires { Record::text.c_str(); }) {
    // A string's bytes may point into the string itself.
    new (&static_cast<Record*>(to)->text) RecordText(static_cast<const Record*>(from)->text);
  }
}

// Adds to a row what follows from the type of its record.
template <class Record, void (*Parse)(NmeaContext&, const Fields&, Record&)>
constexpr SentenceRow With(SentenceRow row) {
  static_assert(sizeof(Record) <= LargestRecord);
  row.size = sizeof(Record);
  row.hasTag = requires { Record::tag; };
  row.makeUnknown = [](void* record) { catalogue::MakeUnknown(*static_cast<Record*>(record)); };
  row.copy = CopyRecord<Record>;
  row.parse = [](NmeaContext& context, const Fields& fields, void* record) {
    Parse(context, fields, *static_cast<Record*>(record));
  };
  row.gpsTimeOffset = offsetof(Record, gpsTime);
  if constexpr (requires { Record::utc; }) row.utcOffset = offsetof(Record, utc);
  if constexpr (requires { Record::timeText; }) {
    row.text = {offsetof(Record, timeText), sizeof(Record::timeText)};
  }
  return row;
}

using enum FilterTest;

// Kind, when the filter is asked, clock, fields, twin.
constexpr SentenceRow Rmc =
    With<RmcRecord, ParseRmc>({MsgIdRmc, AfterParsing, ClockRule::DateByEpoch});
constexpr SentenceRow Gga =
    With<GgaRecord, ParseGga>({MsgIdGga, AfterParsing, ClockRule::TimeOfDayByEpoch});
constexpr SentenceRow Gsa =
    With<GsaRecord, ParseGsa>({MsgIdGsa, AfterParsing, ClockRule::None, IsGsa});
// Accumulated until the cycle ends, so there is no record of the sentence itself.
constexpr SentenceRow Gsv = {MsgIdGsv, BeforeBuilding, ClockRule::None, IsGsv};
constexpr SentenceRow Txt = {MsgIdTxt, Never};
constexpr SentenceRow Zda = With<ZdaRecord, ParseZda>({MsgIdZda, AfterParsing, ClockRule::Date});
constexpr SentenceRow Vtg = With<VtgRecord, ParseVtg>({MsgIdVtg, BeforeBuilding});
constexpr SentenceRow Gll = With<GllRecord, ParseGll>({MsgIdGll, BeforeBuilding});
constexpr SentenceRow Gst =
    With<GstRecord, ParseGst>({MsgIdGst, AfterParsing, ClockRule::TimeOfDay});
constexpr SentenceRow Gbs =
    With<GbsRecord, ParseGbs>({MsgIdGbs, AfterParsing, ClockRule::TimeOfDay});

constexpr SentenceRow PNavMsg = With<PNavMsgRecord, ParsePNavMsg>({MsgIdPNavMsg, Never});
constexpr SentenceRow CwOut = With<CwOutRecord, ParseCwOut>({MsgIdCwOut, BeforeBuilding});
constexpr SentenceRow GyoAcc = With<GyoAccRecord, ParseGyoAcc>(
    {MsgIdGyoAcc, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmGyoAcc});
// The same record under a number of its own, which the filter knows by the other's values alone.
constexpr SentenceRow GyoAccV = With<GyoAccRecord, ParseGyoAcc>(
    {MsgIdGyoAccV, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmGyoAcc, MsgIdGyoAcc});
constexpr SentenceRow SnrStat = With<SnrStatRecord, ParseSnrStat>(
    {MsgIdSnrStat, BeforeBuilding, ClockRule::None, nullptr, MsgIdRtcmSnrStat});
// The twins of IMURAW and NAVATT are crossed; hosts rely on it.
constexpr SentenceRow ImuRaw = With<ImuRecord, ParseImuRaw>(
    {MsgIdImuRaw, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmImuRaw});
constexpr SentenceRow NavAtt = With<NavAttRecord, ParseNavAtt>(
    {MsgIdNavAtt, AfterParsing, ClockRule::TimeOfDay, nullptr, MsgIdRtcmNavAtt});
constexpr SentenceRow InsPva = With<InsPvaRecord, ParseInsPva>(
    {MsgIdInsPva, AfterParsing, ClockRule::TimeOfDay, IsInsPva, MsgIdRtcmInsPva});
constexpr SentenceRow ImuVeh = With<ImuRecord, ParseImuVeh>({.kind = MsgIdImuVeh,
                                                             .filterTest = BeforeBuilding,
                                                             .twin = MsgIdRtcmImuVeh,
                                                             .keepsTimeText = true});
constexpr SentenceRow NavPos = With<NavPosRecord, ParseNavPos>({MsgIdNavPos, BeforeBuilding});
constexpr SentenceRow NavVel = With<NavVelRecord, ParseNavVel>({MsgIdNavVel, BeforeBuilding});
constexpr SentenceRow NavTime = With<NavTimeRecord, ParseNavTime>({MsgIdNavTime, BeforeBuilding});
constexpr SentenceRow NavAcc =
    With<NavAccRecord, ParseNavAcc>({MsgIdNavAcc, AfterParsing, ClockRule::TimeOfDay});

// Compared with the three characters behind "$" and a two-letter talker, first.
struct FormatterRow {
  std::string_view formatter;
  const SentenceRow* row;
};
constexpr FormatterRow Formatters[] = {
    {"RMC", &Rmc}, {"GGA", &Gga}, {"GSA", &Gsa}, {"GSV", &Gsv}, {"TXT", &Txt},
    {"ZDA", &Zda}, {"VTG", &Vtg}, {"GLL", &Gll}, {"GST", &Gst}, {"GBS", &Gbs},
};

// Compared with the text directly behind "$" when no formatter matched, in this order.
struct PrefixRow {
  std::string_view prefix;
  const SentenceRow* row;
};
constexpr PrefixRow Prefixes[] = {
    {"PNAVMSG", &PNavMsg}, {"CWOUT", &CwOut},     {"GYOACC,", &GyoAcc}, {"GYOACC-V", &GyoAccV},
    {"IMURAW", &ImuRaw},   {"SNRSTAT", &SnrStat}, {"NAVATT", &NavAtt},  {"INSPVA", &InsPva},
    {"IMUVEH", &ImuVeh},   {"NAVPOS", &NavPos},   {"NAVVEL", &NavVel},  {"NAVTIME", &NavTime},
    {"NAVACC", &NavAcc},
};

constexpr std::uint32_t Packed(std::string_view formatter) {
  return static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[0])) |
         static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[1])) << 8U |
         static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[2])) << 16U;
}

constexpr auto PackedFormatters = [] {
  std::array<std::uint32_t, std::size(Formatters)> packed{};
  for (std::size_t i = 0; i < packed.size(); ++i) packed[i] = Packed(Formatters[i].formatter);
  return packed;
}();

}  // namespace

const SentenceRow* Classify(std::string_view text) {
  constexpr std::size_t FormatterAt = 3;
  if (text.size() >= FormatterAt + 3) {
    const std::uint32_t formatter = Packed(text.substr(FormatterAt, 3));
    for (std::size_t i = 0; i < PackedFormatters.size(); ++i) {
      if (formatter == PackedFormatters[i]) return Formatters[i].row;
    }
  }
  const std::string_view address = text.substr(1);
  for (const PrefixRow& row : Prefixes) {
    if (address.starts_with(row.prefix)) return row.row;
  }
  return nullptr;
}

}  // namespace navframe::nmea
