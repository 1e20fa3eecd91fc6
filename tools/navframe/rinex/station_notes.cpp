#include "rinex/station_notes.h"

#include <cmath>
#include <numbers>
#include <string_view>

#include "navframe/kinds_of.hpp"
#include "navframe/stream.hpp"

namespace navframe::tool {
namespace {

// The payload as what it is; null when it is another.
template <class Record>
const Record* As(const NavframeItem& item) {
  for (const auto& [id, source] : KindsOf<Record>::Ids) {
    if (item.kind->id == id && item.kind->source == source) {
      return static_cast<const Record*>(item.record);
    }
  }
  return nullptr;
}

void Replace(std::string& text, const char* with) {
  if (*with != '\0') text = with;
}

// WGS 84, angles in degrees.
Vector EcefOf(double latitude, double longitude, double height) {
  constexpr double SemiMajorAxis = 6'378'137;
  constexpr double Flattening = 1 / 298.257223563;
  constexpr double Square = Flattening * (2 - Flattening);
  constexpr double Radians = std::numbers::pi / 180;
  const double sine = std::sin(latitude * Radians);
  const double normal = SemiMajorAxis / std::sqrt(1 - Square * sine * sine);
  const double across = (normal + height) * std::cos(latitude * Radians);
  return {across * std::cos(longitude * Radians), across * std::sin(longitude * Radians),
          (normal * (1 - Square) + height) * sine};
}

bool IsKnown(const Vector& vector) {
  return std::isfinite(vector[0]) && std::isfinite(vector[1]) && std::isfinite(vector[2]);
}

}  // namespace

std::vector<const NavframeKind*> StationNotes::Kinds() {
  return kindsOf<StationAntennaPointRecord, StationEquipmentRecord, StationGlonassBiasesRecord,
                 SystemParametersRecord, UbxVersionRecord, UbxLeapSecondsRecord, UbxGpsTimeRecord,
                 UbxHighPrecisionEcefRecord, UbxEcefRecord, UbxFullNavigationRecord,
                 GlonassEphemerisRecord, GgaRecord>();
}

// Of more stations than a stream can be about, nothing is kept.
Equipment* StationNotes::Of(std::uint16_t station) {
  constexpr std::size_t Most = 64;
  const auto known = stations_.find(station);
  if (known != stations_.end()) return &known->second;
  return stations_.size() < Most ? &stations_[station] : nullptr;
}

void StationNotes::Note(const NavframeItem& item) {
  if (const auto* point = As<StationAntennaPointRecord>(item)) {
    Equipment* const station = Of(point->stationId);
    const Vector position = {point->x, point->y, point->z};
    if (station == nullptr || !IsKnown(position)) return;
    station->position = position;
    station->positionMessage = point->rtcmMessage;
    if (!std::isnan(point->antennaHeight)) station->antennaHeight = point->antennaHeight;
  } else if (const auto* equipment = As<StationEquipmentRecord>(item)) {
    Equipment* const station = Of(equipment->stationId);
    if (station == nullptr) return;
    Replace(station->antenna, equipment->antenna);
    Replace(station->antennaSerial, equipment->antennaSerial);
    Replace(station->receiver, equipment->receiver);
    Replace(station->firmware, equipment->firmware);
    Replace(station->receiverSerial, equipment->receiverSerial);
  } else if (const auto* biases = As<StationGlonassBiasesRecord>(item)) {
    Equipment* const station = Of(biases->stationId);
    if (station == nullptr) return;
    station->glonassBiases = {biases->l1Ca, biases->l1P, biases->l2Ca, biases->l2P};
  } else if (const auto* version = As<UbxVersionRecord>(item)) {
    receiver_.receiver = "u-blox";
    for (std::size_t i = 0; i < version->count && i < std::size(version->extensions); ++i) {
      const std::string_view text = version->extensions[i];
      if (text.starts_with("MOD=")) receiver_.receiver = "u-blox " + std::string(text.substr(4));
      if (text.starts_with("FWVER=")) receiver_.firmware = text.substr(6);
    }
    if (receiver_.firmware.empty()) receiver_.firmware = version->software;
  } else if (const auto* ephemeris = As<GlonassEphemerisRecord>(item)) {
    if (ephemeris->satellite < SatelliteRoom && ephemeris->channel != UnknownChannel) {
      channels_[ephemeris->satellite] = ephemeris->channel;
    }
  } else {
    NoteLeapSeconds(item);
    NoteFix(item);
  }
}

void StationNotes::NoteLeapSeconds(const NavframeItem& item) {
  if (const auto* parameters = As<SystemParametersRecord>(item)) {
    leapSeconds_ = parameters->leapSeconds;
  } else if (const auto* leap = As<UbxLeapSecondsRecord>(item)) {
    if (leap->currentValid == 1) leapSeconds_ = leap->current;
  } else if (const auto* time = As<UbxGpsTimeRecord>(item)) {
    if (time->leapValid == 1) leapSeconds_ = time->leapSeconds;
  }
}

void StationNotes::NoteFix(const NavframeItem& item) {
  constexpr double Usable = 100;  // m of accuracy
  if (fix_) return;
  Vector position = {NAN, NAN, NAN};
  if (const auto* fine = As<UbxHighPrecisionEcefRecord>(item)) {
    if (fine->accuracy < Usable) position = {fine->x, fine->y, fine->z};
  } else if (const auto* ecef = As<UbxEcefRecord>(item)) {
    if (ecef->accuracy < Usable) position = {ecef->x, ecef->y, ecef->z};
  } else if (const auto* solution = As<UbxFullNavigationRecord>(item)) {
    if (solution->horizontalAccuracy < Usable) {
      position = EcefOf(solution->latitude, solution->longitude, solution->height);
    }
  } else if (const auto* gga = As<GgaRecord>(item)) {
    constexpr std::uint8_t LastMeasured = 5;  // those behind it are estimated or made up
    if (gga->fixQuality != 0 && gga->fixQuality <= LastMeasured) {
      position =
          EcefOf(gga->latitude, gga->longitude,
                 static_cast<double>(gga->altitude) + static_cast<double>(gga->geoidSeparation));
    }
  }
  if (!IsKnown(position)) return;
  fix_ = position;
  fixMessage_ = item.kind->name;
}

void StationNotes::NoteObservations(const ObservationsRecord& record) {
  if (record.leapKnown == 1) leapSeconds_ = record.leapSeconds;
  for (std::uint32_t i = 0; i < record.count; ++i) {
    const Observation& observation = record.observations[i];
    if (observation.system == Glonass && observation.satellite < SatelliteRoom &&
        observation.channel != UnknownChannel) {
      channels_[observation.satellite] = observation.channel;
    }
  }
}

Equipment StationNotes::Of(std::optional<StationNumber> station) const {
  if (!station) return {};
  if (*station == UbxReceiver) {
    if (stations_.size() != 1) return receiver_;
    Equipment equipment = stations_.begin()->second;
    if (!receiver_.receiver.empty()) {
      equipment.receiver = receiver_.receiver;
      equipment.firmware = receiver_.firmware;
    }
    return equipment;
  }
  const auto known = stations_.find(static_cast<std::uint16_t>(*station));
  return known == stations_.end() ? Equipment() : known->second;
}

std::optional<int> StationNotes::ChannelOf(std::size_t satellite) const {
  if (satellite >= SatelliteRoom || channels_[satellite] == UnknownChannel) return std::nullopt;
  return channels_[satellite];
}

}  // namespace navframe::tool
