// Sentences of which streams of the Standard dialect alone make records.
#include "nmea/further_sentences.h"

#include <string_view>

#include "navframe/records_nmea_standard.h"
#include "nmea/letters.h"

namespace navframe::nmea {
namespace {

// $GNGNS,123519.00,4807.038,N,01131.000,E,AANNNN,08,0.9,545.4,46.9,1.0,0120,S*hh; the last field
// since NMEA 4.10.
void ParseGns(NmeaContext& /*context*/, FieldReader& fields, GnsRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Latitude(2, record.latitude);
  fields.Longitude(4, record.longitude);
  fields.Letters(6, PositioningModes, record.modes, record.modeCount);
  fields.Int(7, record.satellites);
  fields.Float(8, record.hdop);
  fields.Double(9, record.altitude);
  fields.Double(10, record.geoidSeparation);
  fields.Float(11, record.correctionAge);
  fields.Int(12, record.stationId);
  fields.Letter(13, States, record.navigationalState);
}

// $GPTHS,77.52,E*hh
void ParseThs(NmeaContext& /*context*/, FieldReader& fields, ThsRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.Double(1, record.heading);
  fields.Letter(2, HeadingModes, record.mode);
}

// $GPHDT,274.07,T*hh
void ParseHdt(NmeaContext& /*context*/, FieldReader& fields, HdtRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.Double(1, record.heading);
}

// $GPROT,-35.6,A*hh
void ParseRot(NmeaContext& /*context*/, FieldReader& fields, RotRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.Double(1, record.rate);
  fields.Letter(2, Validities, record.status);
}

// $GPTXT,01,01,02,ANTSTATUS=OK*hh; commas that are not sent as ^2C belong to the text, too.
void ParseText(NmeaContext& /*context*/, FieldReader& fields, TextRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.Int(1, record.total);
  fields.Int(2, record.number);
  fields.Int(3, record.identifier);
  fields.EscapedText(4, record.text, record.length);
}

// $GPDTM,999,CH95,0.08,N,0.07,E,-47.7,W84*hh
void ParseDtm(NmeaContext& /*context*/, FieldReader& fields, DtmRecord& record) {
  CopyText(record.talker, fields.Talker());
  CopyText(record.datum, fields[1]);
  CopyText(record.subdivision, fields[2]);
  fields.Northward(3, record.latitudeOffset);
  fields.Eastward(5, record.longitudeOffset);
  fields.Double(7, record.altitudeOffset);
  CopyText(record.reference, fields[8]);
}

// $GNGRS,104148.00,1,2.6,2.2,-1.6,-1.1,-1.7,-1.5,5.8,1.7,,,,,1,1*hh; the last two fields since
// NMEA 4.10.
void ParseGrs(NmeaContext& /*context*/, FieldReader& fields, GrsRecord& record) {
  constexpr std::size_t FirstResidual = 3;
  CopyText(record.talker, fields.Talker());
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Int(2, record.recomputed);
  for (std::size_t i = 0; i < std::size(record.residuals); ++i) {
    fields.Float(FirstResidual + i, record.residuals[i]);
  }
  fields.Digit(15, record.systemId);
  fields.Digit(16, record.signalId);
}

// $GNGFA,104148.00,3.2,4.8,0.61,0.42,31.5,1.1,5.0,SVV*hh
void ParseGfa(NmeaContext& /*context*/, FieldReader& fields, GfaRecord& record) {
  CopyText(record.talker, fields.Talker());
  fields.TimeOfDay(1, record.utc, record.timeText);
  fields.Float(2, record.horizontalProtection);
  fields.Float(3, record.verticalProtection);
  fields.Float(4, record.ellipseSemiMajor);
  fields.Float(5, record.ellipseSemiMinor);
  fields.Float(6, record.ellipseOrientation);
  fields.Float(7, record.altitudeDeviation);
  fields.Float(8, record.selectedAccuracy);
  fields.Letters(9, States, record.integrity, record.integrityCount);
}

using enum FilterTest;

struct FurtherRow {
  std::string_view formatter;
  SentenceRow sentence;
};
constexpr FurtherRow Further[] = {
    {"GNS", With<GnsRecord, ParseGns>({MsgIdGns, Never, ClockRule::TimeOfDay})},
    {"GRS", With<GrsRecord, ParseGrs>({MsgIdGrs, Never, ClockRule::TimeOfDay})},
    {"GFA", With<GfaRecord, ParseGfa>({MsgIdGfa, Never, ClockRule::TimeOfDay})},
    {"HDT", With<HdtRecord, ParseHdt>({MsgIdHdt, Never})},
    {"THS", With<ThsRecord, ParseThs>({MsgIdThs, Never})},
    {"ROT", With<RotRecord, ParseRot>({MsgIdRot, Never})},
    {"DTM", With<DtmRecord, ParseDtm>({MsgIdDtm, Never})},
};

constexpr std::size_t FormatterAt = 3;

// A talker and a formatter of the standard.
bool IsStandard(std::string_view address) {
  return address.size() == FormatterAt + 3 && address[1] != 'P';
}
bool IsText(const Fields& fields) { return IsStandard(fields[0]); }

}  // namespace

constinit const SentenceRow TextRow =
    With<TextRecord, ParseText>({MsgIdText, Never, ClockRule::None, IsText});

const SentenceRow* FindFurther(std::string_view address) {
  if (!IsStandard(address)) return nullptr;
  for (const FurtherRow& row : Further) {
    if (address.substr(FormatterAt) == row.formatter) return &row.sentence;
  }
  return nullptr;
}

}  // namespace navframe::nmea
