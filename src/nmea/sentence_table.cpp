#include "nmea/sentence_table.h"

#include <array>
#include <cstring>
#include <new>

#include "navframe/records.h"
#include "nmea/fix_sentences.h"
#include "nmea/proprietary.h"
#include "nmea/satellite_sentences.h"
#include "nmea/unknown_records.h"

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
constexpr SentenceRow With(SentenceRow row, const Record& unknown) {
  static_assert(sizeof(Record) <= LargestRecord);
  row.size = sizeof(Record);
  row.unknown = &unknown;
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
using enum FirstByte;
using enum TimeText;

// clang-format off
// Kind, kind behind a tag block, filter values, when tested, first byte, time text, clock, fields.
constexpr SentenceRow Rmc = With<RmcRecord, ParseRmc>(
    {2, 22, {2, 22}, AfterParsing,   TagFlag, FromSentence, ClockRule::DateByEpoch, nullptr}, UnknownRmc);
constexpr SentenceRow Gga = With<GgaRecord, ParseGga>(
    {1, 21, {1, 21}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDayByEpoch, nullptr}, UnknownGga);
constexpr SentenceRow Gsa = With<GsaRecord, ParseGsa>(
    {3, 23, {3, 23}, AfterParsing,   TagFlag, FromDecoder,  ClockRule::None, IsGsa}, UnknownGsa);
// Accumulated until the cycle ends, so there is no record of the sentence itself.
constexpr SentenceRow Gsv =
    {4, 24, {4, 24}, BeforeBuilding, TagFlag, FromDecoder,  ClockRule::None, IsGsv};
constexpr SentenceRow Txt =
    {34, 34, {34, 34}, Never,        Data,    FromDecoder,  ClockRule::None, nullptr};
constexpr SentenceRow Zda = With<ZdaRecord, ParseZda>(
    {9, 29, {9, 29}, AfterParsing,   TagFlag, FromSentence, ClockRule::Date, nullptr}, UnknownZda);
constexpr SentenceRow Vtg = With<VtgRecord, ParseVtg>(
    {8, 28, {8, 28}, BeforeBuilding, TagFlag, FromDecoder,  ClockRule::None, nullptr}, UnknownVtg);
constexpr SentenceRow Gll = With<GllRecord, ParseGll>(
    {5, 25, {5, 25}, BeforeBuilding, TagFlag, FromDecoder,  ClockRule::None, nullptr}, UnknownGll);
constexpr SentenceRow Gst = With<GstRecord, ParseGst>(
    {6, 26, {6, 26}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownGst);
constexpr SentenceRow Gbs = With<GbsRecord, ParseGbs>(
    {7, 27, {7, 27}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownGbs);

constexpr SentenceRow PNavMsg = With<PNavMsgRecord, ParsePNavMsg>(
    {35, 35, {35, 35}, Never,          Data,    FromDecoder,  ClockRule::None, nullptr}, UnknownPNavMsg);
constexpr SentenceRow CwOut = With<CwOutRecord, ParseCwOut>(
    {36, 36, {36, 36}, BeforeBuilding, Data,    FromDecoder,  ClockRule::None, nullptr}, UnknownCwOut);
constexpr SentenceRow GyoAcc = With<GyoAccRecord, ParseGyoAcc>(
    {41, 41, {41, 71}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownGyoAcc);
// The same record under a number of its own, which the filter knows by the other's values alone.
constexpr SentenceRow GyoAccV = With<GyoAccRecord, ParseGyoAcc>(
    {50, 50, {41, 71}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownGyoAcc);
// The twins of IMURAW and NAVATT are crossed; hosts rely on it.
constexpr SentenceRow ImuRaw = With<ImuRecord, ParseImuRaw>(
    {43, 43, {43, 74}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownImu);
constexpr SentenceRow SnrStat = With<SnrStatRecord, ParseSnrStat>(
    {42, 42, {42, 72}, BeforeBuilding, TagFlag, FromDecoder,  ClockRule::None, nullptr}, UnknownSnrStat);
constexpr SentenceRow NavAtt = With<NavAttRecord, ParseNavAtt>(
    {44, 44, {44, 73}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownNavAtt);
constexpr SentenceRow InsPva = With<InsPvaRecord, ParseInsPva>(
    {45, 45, {45, 75}, AfterParsing,   TagFlag, FromSentence, ClockRule::TimeOfDay, IsInsPva}, UnknownInsPva);
constexpr SentenceRow ImuVeh = With<ImuRecord, ParseImuVeh>(
    {46, 46, {46, 76}, BeforeBuilding, TagFlag, FromSentence, ClockRule::None, nullptr}, UnknownImu);
constexpr SentenceRow NavPos = With<NavPosRecord, ParseNavPos>(
    {30, 30, {30, 30}, BeforeBuilding, Data,    FromDecoder,  ClockRule::None, nullptr}, UnknownNavPos);
constexpr SentenceRow NavVel = With<NavVelRecord, ParseNavVel>(
    {31, 31, {31, 31}, BeforeBuilding, Data,    FromDecoder,  ClockRule::None, nullptr}, UnknownNavVel);
constexpr SentenceRow NavTime = With<NavTimeRecord, ParseNavTime>(
    {32, 32, {32, 32}, BeforeBuilding, Data,    FromDecoder,  ClockRule::None, nullptr}, UnknownNavTime);
constexpr SentenceRow NavAcc = With<NavAccRecord, ParseNavAcc>(
    {33, 33, {33, 33}, AfterParsing,   Data,    FromSentence, ClockRule::TimeOfDay, nullptr}, UnknownNavAcc);
// clang-format on

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
