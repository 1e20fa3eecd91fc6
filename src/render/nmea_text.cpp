#include "render/nmea_text.h"

#include <algorithm>
#include <cmath>

#include "render/names.h"

namespace navframe {
namespace {

// Both letters follow the sign of the latitude: every position in the south is written with "W"
// and every one in the north with "E". Hosts rely on it.
void Position(double latitude, double longitude, TextWriter& writer) {
  const bool south = latitude < 0;
  writer.FixedOr(std::abs(latitude), 8, south ? ",S," : ",N,", ",,");
  writer.FixedOr(std::abs(longitude), 8, south ? ",W," : ",E,", ",,");
}

void Status(std::uint8_t status, TextWriter& writer) { writer.Text(status == 1 ? "A," : "V,"); }

std::string_view ModeLetter(std::uint8_t mode) {
  switch (mode) {
    case 0:
    case 255:
      return "N";
    case 1:
      return "A";
    case 2:
      return "D";
    case 6:
      return "E";
    default:
      return "Unknown Mode";
  }
}

std::string_view SystemOrUnknown(std::uint8_t systemId) {
  const std::string_view name = SystemName(systemId, NameOf::SatelliteLine);
  return name.empty() ? "Unknown" : name;
}

}  // namespace

void FormatGga(const GgaRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  Position(record.latitude, record.longitude, writer);
  writer.IntOr(record.fixQuality, ",", ",");
  writer.IntOr(record.satellites, ",", ",");
  writer.FixedOr(record.hdop, 2, ",", "99.99,");
  writer.FixedOr(record.altitude, 3, ",M,", ",M,");
  writer.FixedOr(record.geoidSeparation, 3, ",M,", ",M,");
  writer.FixedOr(record.correctionAge, 1, ",", ",");
  writer.IntOr(record.stationId, "", "");
}

void FormatRmc(const RmcRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  Status(record.status, writer);
  Position(record.latitude, record.longitude, writer);
  writer.FixedOr(record.speedKnots, 3, ",", ",");
  writer.FixedOr(record.course, 2, ",", ",");
  writer.Field(record.dateText);
  writer.Text(",,");  // magnetic variation is never written
  writer.Text(ModeLetter(record.mode));
  writer.Text(",V");
}

void FormatGsa(const GsaRecord& record, TextWriter& writer) {
  constexpr std::size_t Places = std::size(GsaRecord{}.usedSatellites);
  writer.Text(record.selectionMode == 1 ? "A," : "M,");
  writer.IntOr(record.fixType, ",", ",");
  const std::size_t used = std::min<std::size_t>(record.usedCount, Places);
  for (std::size_t i = 0; i < used; ++i) {
    writer.Int(record.usedSatellites[i]);
    writer.Text(",");
  }
  for (std::size_t i = used; i < Places; ++i) writer.Text(",");
  for (const float dop : {record.pdop, record.hdop, record.vdop}) {
    writer.FixedOr(dop, 2, ",", "99.99,");
  }
  writer.Text(SystemName(static_cast<std::int32_t>(record.systemId)));
}

void FormatGsv(const GsvRecord& record, TextWriter& writer) {
  bool anyLine = false;
  const auto satellites =
      std::min<std::size_t>(record.satelliteCount, std::size(record.satellites));
  for (std::size_t i = 0; i < satellites; ++i) {
    const SatelliteInView& satellite = record.satellites[i];
    const auto signals = std::min<std::size_t>(satellite.signalCount, std::size(satellite.signals));
    for (std::size_t j = 0; j < signals; ++j) {
      const SatelliteSignal& signal = satellite.signals[j];
      writer.IntOr(satellite.number, ",", ",");
      writer.Text(SystemOrUnknown(satellite.systemId));
      writer.Text(",");
      writer.Text(SignalName(satellite.systemId, signal.signalId));
      writer.Text(",");
      writer.IntOr(satellite.azimuth, ",", ",");
      writer.IntOr(satellite.elevation, ",", ",");
      writer.IntOr(signal.cn0, "\n", "\n");
      anyLine = true;
    }
  }
  if (anyLine) writer.TakeBack(1);  // the last line has no line end
}

void FormatGll(const GllRecord& record, TextWriter& writer) {
  Position(record.latitude, record.longitude, writer);
  writer.Field(record.timeText);
  Status(record.status, writer);
  writer.Text(ModeLetter(record.mode));
}

void FormatGst(const GstRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  writer.FixedOr(record.rangeRms, 1, ",", ",");
  writer.Text(",,,");  // the error ellipse is never written
  for (const float deviation :
       {record.latitudeDeviation, record.longitudeDeviation, record.altitudeDeviation}) {
    writer.FixedOr(deviation, 2, ",", ",");
  }
}

void FormatGbs(const GbsRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  for (const float error : {record.latitudeError, record.longitudeError, record.altitudeError}) {
    writer.FixedOr(error, 1, ",", ",");
  }
  if (record.failedSatellite < 255) writer.Int(record.failedSatellite);
  writer.Text(",,,,");  // neither the bias nor its deviation is written
  writer.Text(SystemName(record.systemId));
  writer.Text(",");
  writer.Text(SignalName(record.systemId, record.signalId));
}

void FormatVtg(const VtgRecord& record, TextWriter& writer) {
  writer.FixedOr(record.courseTrue, 3, ",T,", ",T,");
  writer.FixedOr(record.courseMagnetic, 3, ",M,", ",M,");
  writer.FixedOr(record.speedKnots, 3, ",N,", ",N,");
  writer.FixedOr(record.speedKmh, 3, ",K,", ",K,");
  writer.Text(ModeLetter(record.mode));
}

void FormatZda(const ZdaRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  const UTCTIME& utc = record.utc;
  if (IsUnknown(utc.day)) {
    writer.Text(",,,");
  } else {
    for (const unsigned part : {unsigned{utc.day}, unsigned{utc.month}, unsigned{utc.year}}) {
      writer.Int(part);
      writer.Text(",");
    }
  }
  writer.Text("00,00");  // the local zone is always written as zero
}

}  // namespace navframe
