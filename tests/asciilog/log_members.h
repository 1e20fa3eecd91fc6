// The members of log records by name, in the order of the fields in the line.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "navframe/records.h"

namespace navframe::test {

using Numbers = std::vector<double>;

// Takes members by value: packed ones have no alignment that a reference could rely on.
struct Row : Numbers {
  template <class... Members>
  explicit Row(Members... members) {
    (Add(members), ...);
  }

 private:
  void Add(double member) { push_back(member); }
  void Add(const char* fourCharacters) {
    std::uint32_t number = 0;
    std::memcpy(&number, fourCharacters, sizeof(number));
    push_back(number);
  }
  void Add(const Row& row) { insert(end(), row.begin(), row.end()); }
  void Add(const SolutionSatellites& s) {
    Add(Row(s.tracked, s.used, s.usedL1, s.usedMultiFreq, s.reserved, s.extendedStatus,
            s.galileoBdsSignals, s.gpsGlonassSignals));
  }
  void Add(const RangeObservation& o) {
    Add(Row(o.satellite, o.glonassFrequency, o.pseudorange, o.pseudorangeDeviation, o.carrierPhase,
            o.carrierPhaseDeviation, o.doppler, o.carrierToNoise, o.lockTime, o.trackingStatus));
  }
  void Add(const SatelliteVisibility& s) {
    Add(Row(s.satellite, s.glonassFrequency, s.health, s.elevation, s.azimuth, s.trueDoppler,
            s.apparentDoppler));
  }
  void Add(const ListedSatellite& s) {
    Add(Row(s.system, s.satellite, s.glonassFrequency, s.status, s.signals));
  }
};

// Of lists, the first two entries.
inline Row MembersOf(const PositionLogRecord& r) {
  return Row(r.solutionStatus, r.positionType, r.latitude, r.longitude, r.height, r.undulation,
             r.datum, r.latitudeDeviation, r.longitudeDeviation, r.heightDeviation, r.stationId,
             r.differentialAge, r.solutionAge, r.satellites);
}
inline Row MembersOf(const NavigationSolutionLogRecord& r) {
  return Row(r.positionStatus, r.positionType, r.latitude, r.longitude, r.height, r.undulation,
             r.datum, r.latitudeDeviation, r.longitudeDeviation, r.heightDeviation, r.stationId,
             r.differentialAge, r.solutionAge, r.satellites);
}
inline Row MembersOf(const VelocityLogRecord& r) {
  return Row(r.solutionStatus, r.velocityType, r.latency, r.differentialAge, r.horizontalSpeed,
             r.track, r.verticalSpeed, r.reserved);
}
inline Row MembersOf(const DopLogRecord& r) {
  return Row(r.gdop, r.pdop, r.hdop, r.htdop, r.tdop, r.elevationCutoff, r.count, r.satellites[0],
             r.satellites[1]);
}
inline Row MembersOf(const TimeLogRecord& r) {
  return Row(r.clockStatus, r.offset, r.offsetDeviation, r.utcOffset, r.utcYear, r.utcMonth,
             r.utcDay, r.utcHour, r.utcMinute, r.utcMilliseconds, r.utcStatus);
}
inline Row MembersOf(const CartesianLogRecord& r) {
  return Row(r.positionStatus, r.positionType, r.position[0], r.position[1], r.position[2],
             r.positionDeviation[0], r.positionDeviation[1], r.positionDeviation[2],
             r.velocityStatus, r.velocityType, r.velocity[0], r.velocity[1], r.velocity[2],
             r.velocityDeviation[0], r.velocityDeviation[1], r.velocityDeviation[2], r.stationId,
             r.velocityLatency, r.differentialAge, r.solutionAge, r.satellites);
}
inline Row MembersOf(const HeadingLogRecord& r) {
  return Row(r.solutionStatus, r.positionType, r.length, r.heading, r.pitch, r.reserved,
             r.headingDeviation, r.pitchDeviation, r.stationId, r.satellites);
}
inline Row MembersOf(const InertialLogRecord& r) {
  return Row(r.week, r.seconds, r.latitude, r.longitude, r.height, r.northVelocity, r.eastVelocity,
             r.upVelocity, r.roll, r.pitch, r.azimuth, r.status);
}
inline Row MembersOf(const RangeLogRecord& r) {
  return Row(r.count, r.observations[0], r.observations[1]);
}
inline Row MembersOf(const GpsEphemerisLogRecord& r) {
  return Row(r.satellite, r.timeOfWeek, r.health, r.iode1, r.iode2, r.week, r.zWeek, r.toe,
             r.semiMajorAxis, r.deltaN, r.m0, r.eccentricity, r.omega, r.cuc, r.cus, r.crc, r.crs,
             r.cic, r.cis, r.i0, r.iDot, r.omega0, r.omegaDot, r.iodc, r.toc, r.tgd, r.af0, r.af1,
             r.af2, r.antiSpoofing, r.n, r.ura);
}
inline Row MembersOf(const GlonassEphemerisLogRecord& r) {
  return Row(r.slot, r.frequency, r.satelliteType, r.reserved0, r.week, r.milliseconds,
             r.timeOffset, r.dayNumber, r.reserved1, r.reserved2, r.issue, r.health, r.position[0],
             r.position[1], r.position[2], r.velocity[0], r.velocity[1], r.velocity[2],
             r.acceleration[0], r.acceleration[1], r.acceleration[2], r.tau, r.deltaTau, r.gamma,
             r.frameTime, r.p, r.accuracy, r.age, r.flags);
}
inline Row MembersOf(const GalileoEphemerisLogRecord& r) {
  return Row(r.satellite, r.fnavReceived, r.inavReceived, r.e1bHealth, r.e5aHealth, r.e5bHealth,
             r.e1bDataValidity, r.e5aDataValidity, r.e5bDataValidity, r.sisa, r.reserved, r.iodNav,
             r.toe, r.rootA, r.deltaN, r.m0, r.eccentricity, r.omega, r.cuc, r.cus, r.crc, r.crs,
             r.cic, r.cis, r.i0, r.iDot, r.omega0, r.omegaDot, r.fnavToc, r.fnavAf[0], r.fnavAf[1],
             r.fnavAf[2], r.inavToc, r.inavAf[0], r.inavAf[1], r.inavAf[2], r.e1E5aBgd, r.e1E5bBgd);
}
inline Row MembersOf(const VisibilityLogRecord& r) {
  return Row(r.valid, r.completeAlmanac, r.count, r.satellites[0], r.satellites[1]);
}
inline Row MembersOf(const SystemVisibilityLogRecord& r) {
  return Row(r.system, r.valid, r.completeAlmanac, r.count, r.satellites[0], r.satellites[1]);
}
inline Row MembersOf(const SatelliteListLogRecord& r) {
  return Row(r.count, r.satellites[0], r.satellites[1]);
}
inline Row MembersOf(const AgriculturalLogRecord& r) {
  return Row(r.format, r.commandLength, r.utcYear, r.utcMonth, r.utcDay, r.utcHour, r.utcMinute,
             r.utcSecond);
}
inline Row MembersOf(const BdsEphemerisLogRecord& r) { return Row(r.satellite); }
inline Row MembersOf(const IonosphereLogRecord& r) {
  return Row(r.alpha[0], r.alpha[1], r.alpha[2], r.alpha[3], r.beta[0], r.beta[1], r.beta[2],
             r.beta[3]);
}
inline Row MembersOf(const GalileoIonosphereLogRecord& r) {
  return Row(r.effectiveIonisation[0], r.effectiveIonisation[1], r.effectiveIonisation[2]);
}
inline Row MembersOf(const UtcLogRecord& r) {
  return Row(r.week, r.tot, r.a0, r.a1, r.leapWeek, r.leapDay, r.leapBefore, r.leapAfter);
}
inline Row MembersOf(const HeaderLogRecord&) { return Row(); }

template <class Record>
Numbers MembersIn(const std::uint8_t* record) {
  return MembersOf(*reinterpret_cast<const Record*>(record));
}

}  // namespace navframe::test
