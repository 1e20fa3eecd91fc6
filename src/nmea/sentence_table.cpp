#include "nmea/sentence_table.h"

#include <algorithm>
#include <array>

#include "navframe/navframe.h"
#include "navframe/records.h"
#include "nmea/fix_sentences.h"
#include "nmea/satellite_sentences.h"
#include "nmea/unknown_records.h"

namespace navframe::nmea {
namespace {

// Adds to a row what follows from the type of its record.
template <class Record, void (*Parse)(NmeaContext&, const Fields&, Record&)>
constexpr SentenceRow With(SentenceRow row, const Record& unknown) {
  static_assert(sizeof(Record) <= LargestRecord);
  row.size = sizeof(Record);
  row.unknown = &unknown;
  row.parse = [](NmeaContext& context, const Fields& fields, void* record) {
    Parse(context, fields, *static_cast<Record*>(record));
  };
  row.gpsTimeOffset = offsetof(Record, gpsTime);
  if constexpr (requires { Record::utc; }) row.utcOffset = offsetof(Record, utc);
  const TextMember text = {offsetof(Record, timeText), sizeof(Record::timeText)};
  (row.clock == ClockRule::None ? row.decoderTime : row.sentenceTime) = text;
  return row;
}

using enum FilterTest;
using enum FirstByte;

// Kind, kind behind a tag block, second filter value, filter test, first byte, clock, field test.
constexpr SentenceRow Rmc = With<RmcRecord, ParseRmc>(
    {MsgIdRmc, MsgIdTaggedRmc, 22, AfterParsing, TagFlag, ClockRule::DateByEpoch, nullptr},
    UnknownRmc);
constexpr SentenceRow Gga = With<GgaRecord, ParseGga>(
    {MsgIdGga, MsgIdTaggedGga, 21, AfterParsing, TagFlag, ClockRule::TimeOfDayByEpoch, nullptr},
    UnknownGga);
constexpr SentenceRow Gsa = With<GsaRecord, ParseGsa>(
    {MsgIdGsa, MsgIdTaggedGsa, 23, AfterParsing, TagFlag, ClockRule::None, IsGsa}, UnknownGsa);
// Accumulated until the cycle ends, so there is no record of the sentence itself.
constexpr SentenceRow Gsv = {MsgIdGsv, MsgIdTaggedGsv,  24,   BeforeBuilding,
                             TagFlag,  ClockRule::None, IsGsv};
constexpr SentenceRow Txt = {MsgIdTxt, MsgIdTxt, 0, Never, Data, ClockRule::None, nullptr};
constexpr SentenceRow Zda = With<ZdaRecord, ParseZda>(
    {MsgIdZda, MsgIdTaggedZda, 29, AfterParsing, TagFlag, ClockRule::Date, nullptr}, UnknownZda);
constexpr SentenceRow Vtg = With<VtgRecord, ParseVtg>(
    {MsgIdVtg, MsgIdTaggedVtg, 28, BeforeBuilding, TagFlag, ClockRule::None, nullptr}, UnknownVtg);
constexpr SentenceRow Gll = With<GllRecord, ParseGll>(
    {MsgIdGll, MsgIdTaggedGll, 25, BeforeBuilding, TagFlag, ClockRule::None, nullptr}, UnknownGll);
constexpr SentenceRow Gst = With<GstRecord, ParseGst>(
    {MsgIdGst, MsgIdTaggedGst, 26, AfterParsing, TagFlag, ClockRule::TimeOfDay, nullptr},
    UnknownGst);
constexpr SentenceRow Gbs = With<GbsRecord, ParseGbs>(
    {MsgIdGbs, MsgIdTaggedGbs, 27, AfterParsing, TagFlag, ClockRule::TimeOfDay, nullptr},
    UnknownGbs);

// Compared with the three characters behind "$" and a two-letter talker, first.
struct FormatterRow {
  std::string_view formatter;
  const SentenceRow* row;
};
constexpr FormatterRow Formatters[] = {
    {"RMC", &Rmc}, {"GGA", &Gga}, {"GSA", &Gsa}, {"GSV", &Gsv}, {"TXT", &Txt},
    {"ZDA", &Zda}, {"VTG", &Vtg}, {"GLL", &Gll}, {"GST", &Gst}, {"GBS", &Gbs},
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
  return nullptr;
}

}  // namespace navframe::nmea
