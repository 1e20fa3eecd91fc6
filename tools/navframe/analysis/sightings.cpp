#include "analysis/sightings.h"

#include <string_view>

#include "navframe/records.h"

namespace navframe::analysis {
namespace {

using Sightings = std::vector<Sighting>;

bool IsId(const NavframeItem& item, std::uint32_t id) { return item.kind->id == id; }

// Values that stand for "not known" are out of range.
void Place(double azimuth, double elevation, Sighting& sighting) {
  constexpr double Around = 360;
  constexpr double Zenith = 90;
  if (azimuth < 0 || azimuth > Around || elevation < -Zenith || elevation > Zenith) return;
  sighting.azimuth = azimuth;
  sighting.elevation = elevation;
}

// Of UBX, where 0 and 255 are none.
void Strong(std::uint8_t cn0, Sighting& sighting) {
  if (cn0 != 0 && cn0 != 0xFF) sighting.cn0 = cn0;
}

void Use(std::uint8_t flag, Sighting& sighting) {
  sighting.tellsUse = flag <= 1;
  sighting.isUsed = flag == 1;
}

void ReadObservations(const ObservationsRecord& record, Sightings& out) {
  for (std::size_t i = 0; i < record.count; ++i) {
    const Observation& one = record.observations[i];
    Sighting& sighting = out.emplace_back();
    sighting.satellite = SatelliteOfObservation(one.system, one.satellite);
    sighting.signal =
        SignalName(std::string_view(one.code, one.code[0] == '\0' ? 0 : 2), one.signal);
    if (one.cn0 > 0) sighting.cn0 = static_cast<double>(one.cn0);  // which NaN is not
  }
}

void ReadSignals(const UbxSignalsRecord& record, Sightings& out) {
  for (std::size_t i = 0; i < record.count; ++i) {
    const UbxSignal& one = record.signals[i];
    Sighting& sighting = out.emplace_back();
    sighting.satellite = SatelliteOfUbx(one.systemId, one.satelliteId);
    sighting.signal = SignalOfUbx(sighting.satellite.system, one.signalId);
    Strong(one.cn0, sighting);
    Use(one.rangeUsed, sighting);
  }
}

template <class Record>
void ReadSatellites(const Record& record, Sightings& out) {
  for (std::size_t i = 0; i < record.count; ++i) {
    const auto& one = record.satellites[i];
    Sighting& sighting = out.emplace_back();
    sighting.satellite = SatelliteOfUbx(one.systemId, one.satelliteId);
    Strong(one.cn0, sighting);
    Place(one.azimuth, one.elevation, sighting);
    Use(one.used, sighting);
  }
}

void ReadChannels(const UbxChannelsRecord& record, Sightings& out) {
  for (std::size_t i = 0; i < record.count; ++i) {
    const UbxChannel& one = record.channels[i];
    Sighting& sighting = out.emplace_back();
    sighting.satellite = SatelliteOfChannel(one.satelliteId);
    Strong(one.cn0, sighting);
    Place(one.azimuth, one.elevation, sighting);
    Use(one.used, sighting);
  }
}

template <class Record>
void ReadInView(const Record& record, Sightings& out) {
  constexpr bool IsWide = sizeof(Record) == sizeof(WideGsvRecord);
  constexpr double Units = IsWide ? 100 : 1;
  constexpr std::uint32_t Unknown = IsWide ? 0xFFFF : 0xFF;
  for (std::size_t i = 0; i < record.satelliteCount; ++i) {
    const auto& one = record.satellites[i];
    Sighting sighting;
    sighting.satellite = SatelliteOfNmea(one.systemId, one.number);
    Place(one.azimuth, one.elevation, sighting);
    Use(one.used, sighting);
    if (one.signalCount == 0) out.push_back(sighting);
    for (std::size_t j = 0; j < one.signalCount; ++j) {
      const auto& signal = one.signals[j];
      Sighting& with = out.emplace_back(sighting);
      if (signal.signalId != 0) {
        with.signal = SignalOfNmea(sighting.satellite.system, signal.signalId);
      }
      if (signal.cn0 != 0 && signal.cn0 != Unknown) with.cn0 = signal.cn0 / Units;
    }
  }
}

template <class Record>
const Record& RecordOf(const NavframeItem& item) {
  return *static_cast<const Record*>(item.record);
}

}  // namespace

void Read(SeenIn in, const NavframeItem& item, Sightings& sightings) {
  sightings.clear();
  switch (in) {
    case SeenIn::Observations:
      return ReadObservations(RecordOf<ObservationsRecord>(item), sightings);
    case SeenIn::NavSig:
      return ReadSignals(RecordOf<UbxSignalsRecord>(item), sightings);
    case SeenIn::NavSat:
      if (IsId(item, MsgIdUbxSatellites)) {
        return ReadSatellites(RecordOf<UbxSatellitesRecord>(item), sightings);
      }
      return ReadSatellites(RecordOf<UbxFullSatellitesRecord>(item), sightings);
    case SeenIn::NavSvInfo:
      return ReadChannels(RecordOf<UbxChannelsRecord>(item), sightings);
    case SeenIn::Gsv:
      if (IsId(item, MsgIdGsv)) return ReadInView(RecordOf<GsvRecord>(item), sightings);
      return ReadInView(RecordOf<WideGsvRecord>(item), sightings);
    default:
      return;
  }
}

}  // namespace navframe::analysis
