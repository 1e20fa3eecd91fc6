// The loop by hand for UBX: NAV-PVT, NAV-SAT, NAV-ATT and RXM-RAWX.
#pragma once

#include <algorithm>
#include <array>

#include "bare_loops.h"
#include "ubx/fletcher.h"

namespace navframe::bench {

inline std::uint8_t BareFlags(std::uint32_t word, unsigned lowest, unsigned count = 1) {
  return static_cast<std::uint8_t>(word >> lowest & ((1U << count) - 1));
}

// Entries behind the last one are unknown.
template <class Entry, std::size_t Room>
void ClearRest(std::size_t count, Entry (&entries)[Room]) {
  std::memset(static_cast<void*>(entries + count), 0xFF, (Room - count) * sizeof(Entry));
}

// A deviation for each of 16 exponents of two.
using BareDeviations = std::array<float, 16>;
constexpr BareDeviations PowersOfTwo(double unit) {
  BareDeviations deviations{};
  for (unsigned n = 0; n < 16; ++n) {
    deviations[n] = static_cast<float>(unit * static_cast<double>(1U << n));
  }
  return deviations;
}

inline constexpr BareDeviations PseudorangeDeviations = PowersOfTwo(0.01);
inline constexpr BareDeviations DopplerDeviations = PowersOfTwo(0.002);

// The record of the exports.
class BareMeasurements {
 public:
  static std::uint32_t KindOf(std::uint32_t /*system*/) { return MsgIdUbxRawMeasurements; }

  const void* Fill(const std::uint8_t* p, std::size_t count) {
    UbxRawMeasurementsRecord& record = record_;
    const double ms = LoadLe<double>(p) * 1000.0 + 0.5;
    record.tow = ms >= 0 && ms < 604'800'001 ? static_cast<std::uint32_t>(ms) : 0xFFFF'FFFF;
    record.week = LoadLe<std::uint16_t>(p + 8);
    record.leapSeconds = LoadLe<std::int8_t>(p + 10);
    record.leapKnown = BareFlags(p[12], 0);
    record.clockReset = BareFlags(p[12], 1);
    record.version = p[13];
    record.count = static_cast<std::uint8_t>(count);
    ClearRest(count, record.measurements);
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint8_t* const entry = p + 16 + 32 * i;
      UbxRawMeasurement& measurement = record.measurements[i];
      measurement.pseudorange = LoadLe<double>(entry);
      measurement.carrierPhase = LoadLe<double>(entry + 8);
      measurement.doppler = LoadLe<float>(entry + 16);
      measurement.pseudorangeDeviation = PseudorangeDeviations[entry[27] & 15];
      measurement.carrierPhaseDeviation = static_cast<float>(0.004 * (entry[28] & 15));
      measurement.dopplerDeviation = DopplerDeviations[entry[29] & 15];
      measurement.systemId = entry[20];
      measurement.satelliteId = entry[21];
      measurement.signalId = entry[22];
      measurement.frequencySlot = entry[23];
      measurement.lockTime = LoadLe<std::uint16_t>(entry + 24);
      measurement.cn0 = entry[26];
      measurement.pseudorangeValid = BareFlags(entry[30], 0);
      measurement.carrierPhaseValid = BareFlags(entry[30], 1);
      measurement.halfCycleResolved = BareFlags(entry[30], 2);
      measurement.halfCycleSubtracted = BareFlags(entry[30], 3);
    }
    return &record;
  }

 private:
  UbxRawMeasurementsRecord record_{};
};

template <class Observations>
class BareUbx {
 public:
  template <class Take>
  void Decode(std::span<const std::uint8_t> bytes, Take&& take) {
    const std::uint8_t* at = bytes.data();
    const std::uint8_t* const end = at + bytes.size();
    while ((at = NextSync(at, end, 0xB5)), end - at >= 8) {
      const std::size_t payload = at[4] + 256U * at[5];
      if (at[1] != 0x62 || static_cast<std::size_t>(end - at) < payload + 8 ||
          !ChecksumMatches(at, payload)) {
        ++at;
        continue;
      }
      DecodeMessage(at[2] * 256U + at[3], at + 6, payload, take);
      at += payload + 8;
    }
  }

 private:
  static bool ChecksumMatches(const std::uint8_t* frame, std::size_t payload) {
    const ubx::FletcherSum sum = ubx::Fletcher::Of(frame + 2, payload + 4);
    return sum.a == frame[payload + 6] && sum.b == frame[payload + 7];
  }

  template <class Take>
  void DecodeMessage(std::uint32_t message, const std::uint8_t* p, std::size_t length, Take& take) {
    if (message == 0x0107 && length == 92) {
      DecodeNavigation(p);
      take(std::uint32_t{MsgIdUbxNavigation}, &navigation_);
    } else if (message == 0x0135 && length >= 8) {
      DecodeSatellites(p, length);
      take(std::uint32_t{MsgIdUbxSatellites}, &satellites_);
    } else if (message == 0x0105 && length == 32) {
      DecodeAttitude(p);
      take(std::uint32_t{MsgIdUbxAttitude}, &attitude_);
    } else if (message == 0x0215 && length >= 16) {
      const std::size_t count = std::min(std::size_t{p[11]}, (length - 16) / 32);
      take(Observations::KindOf(0), observations_.Fill(p, count));
    }
  }

  void DecodeNavigation(const std::uint8_t* p) {
    UbxNavigationRecord& record = navigation_;
    record.tow = LoadLe<std::uint32_t>(p);
    record.year = LoadLe<std::uint16_t>(p + 4);
    record.month = p[6];
    record.day = p[7];
    record.hour = p[8];
    record.minute = p[9];
    record.second = p[10];
    record.dateValid = BareFlags(p[11], 0);
    record.timeValid = BareFlags(p[11], 1);
    record.fullyResolved = BareFlags(p[11], 2);
    record.magValid = BareFlags(p[11], 3);
    record.timeAccuracy = LoadLe<std::uint32_t>(p + 12);
    record.nanoseconds = LoadLe<std::int32_t>(p + 16);
    record.millisecond = static_cast<std::uint32_t>(record.nanoseconds / 1'000'000);
    record.fixType = p[20];
    record.fixOk = BareFlags(p[21], 0);
    record.diffSolution = BareFlags(p[21], 1);
    record.powerSaveState = BareFlags(p[21], 2, 3);
    record.headingValid = BareFlags(p[21], 5);
    record.carrierSolution = BareFlags(p[21], 6, 2);
    record.confirmedAvailable = BareFlags(p[22], 5);
    record.confirmedDate = BareFlags(p[22], 6);
    record.confirmedTime = BareFlags(p[22], 7);
    record.satellites = p[23];
    record.longitude = LoadLe<std::int32_t>(p + 24) / 1e7;
    record.latitude = LoadLe<std::int32_t>(p + 28) / 1e7;
    record.height = static_cast<float>(LoadLe<std::int32_t>(p + 32) / 1000.0);
    record.heightMsl = static_cast<float>(LoadLe<std::int32_t>(p + 36) / 1000.0);
    record.positionDop = static_cast<float>(LoadLe<std::uint16_t>(p + 76) / 1000.0);
    if (record.fixType == 0) {
      MakeUnknown(record.longitude);
      MakeUnknown(record.latitude);
      MakeUnknown(record.height);
      MakeUnknown(record.heightMsl);
      MakeUnknown(record.positionDop);
    }
    record.horizontalAccuracy = LoadLe<std::uint32_t>(p + 40);
    record.verticalAccuracy = LoadLe<std::uint32_t>(p + 44);
    record.velocityNorth = LoadLe<std::int32_t>(p + 48);
    record.velocityEast = LoadLe<std::int32_t>(p + 52);
    record.velocityUp = static_cast<std::int32_t>(0U - LoadLe<std::uint32_t>(p + 56));
    record.groundSpeed = LoadLe<std::int32_t>(p + 60);
    record.motionHeading = LoadLe<std::int32_t>(p + 64);
    record.speedAccuracy = LoadLe<std::uint32_t>(p + 68);
    record.headingAccuracy = LoadLe<std::uint32_t>(p + 72);
    record.invalidHeight = BareFlags(p[78], 0);
    record.correctionAge = BareFlags(p[78], 1, 4);
    record.reservedWord = LoadLe<std::uint32_t>(p + 80);
    record.vehicleHeading = LoadLe<std::uint16_t>(p + 84);
  }

  void DecodeSatellites(const std::uint8_t* p, std::size_t length) {
    UbxSatellitesRecord& record = satellites_;
    record.tow = LoadLe<std::uint32_t>(p);
    record.version = p[4];
    const std::size_t count =
        std::min({std::size_t{p[5]}, (length - 8) / 12, std::size(record.satellites)});
    record.count = static_cast<std::uint8_t>(count);
    ClearRest(count, record.satellites);
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint8_t* const entry = p + 8 + 12 * i;
      UbxSatellite& satellite = record.satellites[i];
      const bool hasDirection = entry[3] <= 90;
      satellite.systemId = entry[0];
      satellite.satelliteId = entry[1];
      satellite.cn0 = entry[2] == 0 ? std::uint8_t{0xFF} : entry[2];
      satellite.elevation = hasDirection ? entry[3] : std::uint8_t{0xFF};
      satellite.azimuth = hasDirection ? LoadLe<std::uint16_t>(entry + 4) : std::uint16_t{0xFFFF};
      satellite.residual = LoadLe<std::int16_t>(entry + 6);
      const auto flags = LoadLe<std::uint32_t>(entry + 8);
      satellite.quality = BareFlags(flags, 0, 3);
      satellite.used = BareFlags(flags, 3);
      satellite.health = BareFlags(flags, 4, 2);
      satellite.corrected = BareFlags(flags, 6);
      satellite.smoothed = BareFlags(flags, 7);
      satellite.orbitSource = BareFlags(flags, 8, 3);
      satellite.ephemeris = BareFlags(flags, 11);
      satellite.almanac = BareFlags(flags, 12);
      satellite.offlinePrediction = BareFlags(flags, 13);
      satellite.autonomousPrediction = BareFlags(flags, 14);
      satellite.spareFlag = BareFlags(flags, 15);
      satellite.sbasCorrections = BareFlags(flags, 16);
      satellite.rtcmCorrections = BareFlags(flags, 17);
      satellite.slasCorrections = BareFlags(flags, 18);
      satellite.spartnCorrections = BareFlags(flags, 19);
      satellite.rangeCorrections = BareFlags(flags, 20);
      satellite.carrierCorrections = BareFlags(flags, 21);
      satellite.dopplerCorrections = BareFlags(flags, 22);
    }
  }

  void DecodeAttitude(const std::uint8_t* p) {
    UbxAttitudeRecord& record = attitude_;
    record.tow = LoadLe<std::uint32_t>(p);
    record.version = p[4];
    record.roll = LoadLe<std::int32_t>(p + 8) / 1e5;
    record.pitch = LoadLe<std::int32_t>(p + 12) / 1e5;
    record.heading = LoadLe<std::int32_t>(p + 16) / 1e5;
    record.rollAccuracy = LoadLe<std::uint32_t>(p + 20) / 1e5;
    record.pitchAccuracy = LoadLe<std::uint32_t>(p + 24) / 1e5;
    record.headingAccuracy = LoadLe<std::uint32_t>(p + 28) / 1e5;
  }

  UbxNavigationRecord navigation_{};
  UbxSatellitesRecord satellites_{};
  UbxAttitudeRecord attitude_{};
  Observations observations_;
};

}  // namespace navframe::bench
