// The sentences that the standard names: position, time, quality, satellites.
#include <array>
#include <span>
#include <string_view>

#include "navframe/records_nmea_standard.h"
#include "nmea/field.h"
#include "nmea/further_sentences.h"
#include "nmea/letters.h"
#include "nmea/satellite_sentences.h"
#include "nmea/sentence_table.h"

namespace navframe::nmea {
namespace {

struct ModeLetter {
  std::string_view text;
  std::uint8_t mode;
};
// As the exports know them.
constexpr ModeLetter RmcModes[] = {{"N", 0}, {"A", 1}, {"D", 2}, {"R", 4}, {"F", 5}, {"E", 6}};
constexpr ModeLetter Modes[] = {{"N", 0}, {"A", 1}, {"D", 2}, {"E", 6}};

// Any other text leaves the mode unknown.
void ReadMode(std::span<const ModeLetter> modes, FieldReader& fields, std::size_t index,
              std::uint8_t& mode) {
  if (fields.HasDialect().standardRecords) return fields.Letter(index, PositioningModes, mode);
  const std::string_view field = fields[index];
  for (const ModeLetter& letter : modes) {
    if (field == letter.text) mode = letter.mode;
  }
}

// $GPGGA,123519.00,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*hh
void ParseGga(NmeaContext& /*context*/, FieldReader& fields, GgaRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Latitude(2, record.latitude);
  fields.Longitude(4, record.longitude);
  fields.Int(6, record.fixQuality);
  fields.Int(7, record.satellites);
  fields.Float(8, record.hdop);
  fields.Float(9, record.altitude);
  fields.Float(11, record.geoidSeparation);
  fields.Float(13, record.correctionAge);
  fields.Int(14, record.stationId);
}

// $GPRMC,123519.00,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W,A*hh
template <class Record>
void ReadRmc(FieldReader& fields, Record& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  if (!fields[2].empty()) record.status = fields[2] == "A" ? 1 : 0;
  fields.Latitude(3, record.latitude);
  fields.Longitude(5, record.longitude);
  fields.Float(7, record.speedKnots);
  fields.Float(8, record.course);
  fields.Date(9, record.utc);
  CopyText(record.dateText, fields[9]);
  ReadMode(RmcModes, fields, 12, record.mode);
}
void ParseRmc(NmeaContext& /*context*/, FieldReader& fields, RmcRecord& record) {
  ReadRmc(fields, record);
}

// $GNRMC,123519.00,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W,A,S*hh
void ParseWideRmc(NmeaContext& /*context*/, FieldReader& fields, WideRmcRecord& record) {
  ReadRmc(fields, record);
  fields.Eastward(10, record.magneticVariation);
  fields.Letter(13, States, record.navigationalState);
}
bool IsWideRmc(const Fields& fields) { return !fields[10].empty() || !fields[13].empty(); }

// $GPGLL,4916.45,N,12311.12,W,225444.00,A,A*hh
void ParseGll(NmeaContext& /*context*/, FieldReader& fields, GllRecord& record) {
  fields.Latitude(1, record.latitude);
  fields.Longitude(3, record.longitude);
  fields.TimeOfDay(5, record.utc);
  if (fields[6] == "A") record.status = 1;
  if (fields[6] == "V") record.status = 0;
  ReadMode(Modes, fields, 7, record.mode);
}

// $GPGST,172814.00,0.006,0.023,0.020,273.6,0.023,0.020,0.031*hh
void ParseGst(NmeaContext& /*context*/, FieldReader& fields, GstRecord& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Float(2, record.rangeRms);
  fields.Float(3, record.ellipseSemiMajor);
  fields.Float(4, record.ellipseSemiMinor);
  fields.Float(5, record.ellipseOrientation);
  fields.Float(6, record.latitudeDeviation);
  fields.Float(7, record.longitudeDeviation);
  fields.Float(8, record.altitudeDeviation);
}

// $GPGBS,163317.00,0.2,0.2,0.5,03,,-21.4,3.8,1,0*hh
template <class Record>
void ReadGbs(FieldReader& fields, Record& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.DoubleAsFloat(2, record.latitudeError);
  fields.DoubleAsFloat(3, record.longitudeError);
  fields.DoubleAsFloat(4, record.altitudeError);
  fields.Int(5, record.failedSatellite);
  fields.DoubleAsFloat(7, record.bias);
  fields.DoubleAsFloat(8, record.biasDeviation);
  fields.Int(9, record.systemId);
  if (fields.HasDialect().standardRecords) return fields.Digit(10, record.signalId);
  fields.Int(10, record.signalId);
}
void ParseGbs(NmeaContext& /*context*/, FieldReader& fields, GbsRecord& record) {
  ReadGbs(fields, record);
}

// $GPGBS,163317.00,0.2,0.2,0.5,03,0.001,-21.4,3.8,1,0*hh
void ParseWideGbs(NmeaContext& /*context*/, FieldReader& fields, WideGbsRecord& record) {
  ReadGbs(fields, record);
  fields.DoubleAsFloat(6, record.missedDetection);
}
bool IsWideGbs(const Fields& fields) { return !fields[6].empty(); }

// $GPVTG,089.0,T,,M,15.2,N,28.2,K,A*hh
void ParseVtg(NmeaContext& /*context*/, FieldReader& fields, VtgRecord& record) {
  fields.DoubleAsFloat(1, record.courseTrue);
  fields.DoubleAsFloat(3, record.courseMagnetic);
  fields.DoubleAsFloat(5, record.speedKnots);
  fields.DoubleAsFloat(7, record.speedKmh);
  ReadMode(Modes, fields, 9, record.mode);
}

// $GPZDA,172809.45,12,07,1996,00,00*hh
template <class Record>
void ReadZda(FieldReader& fields, Record& record) {
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Int(2, record.utc.day);
  fields.Int(3, record.utc.month);
  fields.Int(4, record.utc.year);
  fields.Int(5, record.zoneHours);
  fields.Int(6, record.zoneMinutes);
}
void ParseZda(NmeaContext& /*context*/, FieldReader& fields, ZdaRecord& record) {
  ReadZda(fields, record);
}

// $GPZDA,172809.45,12,07,1996,-05,00*hh
void ParseWideZda(NmeaContext& /*context*/, FieldReader& fields, WideZdaRecord& record) {
  ReadZda(fields, record);
}
bool IsWideZda(const Fields& fields) {
  return fields[5].starts_with('-') || fields[6].starts_with('-');
}

using enum FilterTest;

// Rows of the Standard dialect.
constexpr SentenceRow WideRmc =
    With<WideRmcRecord, ParseWideRmc>({MsgIdWideRmc, Never, ClockRule::DateByEpoch, IsWideRmc});
constexpr SentenceRow WideGsa =
    With<WideGsaRecord, ParseWideGsa>({MsgIdWideGsa, Never, ClockRule::None, IsWideGsa});
constexpr SentenceRow WideGbs =
    With<WideGbsRecord, ParseWideGbs>({MsgIdWideGbs, Never, ClockRule::TimeOfDay, IsWideGbs});
constexpr SentenceRow WideZda =
    With<WideZdaRecord, ParseWideZda>({MsgIdWideZda, Never, ClockRule::Date, IsWideZda});

// A row with the one that takes what it has no room for.
constexpr SentenceRow OrWide(SentenceRow row, const SentenceRow& wide) {
  row.wide = &wide;
  return row;
}

// Formatter; kind, when the filter is asked, clock, fields.
struct FormatterRow {
  std::string_view formatter;
  SentenceRow sentence;
};
constexpr FormatterRow Formatters[] = {
    // Most sentences. Accumulated until the cycle ends, so there is no record of the sentence
    // itself.
    {"GSV", {MsgIdGsv, BeforeBuilding, ClockRule::None, IsGsv}},
    {"RMC",
     OrWide(With<RmcRecord, ParseRmc>({MsgIdRmc, AfterParsing, ClockRule::DateByEpoch}), WideRmc)},
    {"GGA", With<GgaRecord, ParseGga>({MsgIdGga, AfterParsing, ClockRule::TimeOfDayByEpoch})},
    {"GSA",
     OrWide(With<GsaRecord, ParseGsa>({MsgIdGsa, AfterParsing, ClockRule::None, IsGsa}), WideGsa)},
    {"TXT", OrWide({MsgIdTxt, Never}, TextRow)},
    {"ZDA", OrWide(With<ZdaRecord, ParseZda>({MsgIdZda, AfterParsing, ClockRule::Date}), WideZda)},
    {"VTG", With<VtgRecord, ParseVtg>({MsgIdVtg, BeforeBuilding})},
    {"GLL", With<GllRecord, ParseGll>({MsgIdGll, BeforeBuilding})},
    {"GST", With<GstRecord, ParseGst>({MsgIdGst, AfterParsing, ClockRule::TimeOfDay})},
    {"GBS",
     OrWide(With<GbsRecord, ParseGbs>({MsgIdGbs, AfterParsing, ClockRule::TimeOfDay}), WideGbs)},
};

constexpr std::uint32_t Packed(std::string_view formatter) {
  return static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[0])) |
         static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[1])) << 8U |
         static_cast<std::uint32_t>(static_cast<unsigned char>(formatter[2])) << 16U;
}

// What is searched: a match is a load, not the product of a place and the size of a row.
struct PackedRow {
  std::uint32_t formatter;
  const SentenceRow* sentence;
};
constexpr auto PackedFormatters = [] {
  std::array<PackedRow, std::size(Formatters)> packed{};
  for (std::size_t i = 0; i < packed.size(); ++i) {
    packed[i] = {Packed(Formatters[i].formatter), &Formatters[i].sentence};
  }
  return packed;
}();

}  // namespace

const SentenceRow* Classify(std::string_view text) {
  constexpr std::size_t FormatterAt = 3;
  if (text.size() >= FormatterAt + 3) {
    const std::uint32_t formatter = Packed(text.substr(FormatterAt, 3));
    for (const PackedRow& row : PackedFormatters) {
      if (formatter == row.formatter) return row.sentence;
    }
  }
  return FindProprietary(text);
}

}  // namespace navframe::nmea
