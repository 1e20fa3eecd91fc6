#include "analysis/fixes.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "analysis/geodesy.h"
#include "navframe/records.h"

namespace navframe::analysis {
namespace {

constexpr std::uint32_t UnknownTow = 0xFFFFFFFF;

double Count(std::uint8_t count) { return count == 0xFF ? Fix::None : count; }

FixQuality ByNumber(std::uint8_t number) {
  return number <= static_cast<std::uint8_t>(FixQuality::Simulated)
             ? static_cast<FixQuality>(number)
             : FixQuality::Unknown;
}

// What is no place on Earth is no position, and what has none is no fix.
void Place(double latitude, double longitude, Fix& fix) {
  if (!(std::fabs(latitude) <= 90) || !(std::fabs(longitude) <= 180)) return;
  fix.latitude = latitude;
  fix.longitude = longitude;
}

void PlaceEcef(double x, double y, double z, Fix& fix) {
  constexpr double Least = 1e6;  // m from the centre: no receiver is there, an unset one says 0
  constexpr double Most = 1e9;
  const double distance = std::hypot(x, y, z);
  if (!(distance > Least) || !(distance < Most)) return;
  const Geodetic position = ToGeodetic({x, y, z});
  Place(position.latitude, position.longitude, fix);
  fix.height = position.height;
}

FixQuality OfUbx(std::uint8_t fixType, std::uint8_t fixOk, std::uint8_t differential,
                 std::uint8_t carrier) {
  constexpr std::uint8_t DeadReckoning = 1;
  constexpr std::uint8_t TimeOnly = 5;
  if (fixType == DeadReckoning) return FixQuality::Estimated;
  if (fixType == 0 || fixType >= TimeOnly || fixOk == 0) return FixQuality::NoFix;
  if (carrier == 2) return FixQuality::RtkFixed;
  if (carrier == 1) return FixQuality::RtkFloat;
  return differential == 1 ? FixQuality::Differential : FixQuality::Autonomous;
}

// Types of solutions of logs.
FixQuality OfLog(std::int32_t status, std::int32_t type) {
  struct Range {
    std::int32_t first;
    std::int32_t last;
    FixQuality quality;
  };
  constexpr Range Ranges[] = {
      {1, 2, FixQuality::Manual},         {16, 16, FixQuality::Autonomous},
      {17, 18, FixQuality::Differential}, {19, 19, FixQuality::Estimated},
      {20, 20, FixQuality::Differential}, {32, 34, FixQuality::RtkFloat},
      {48, 51, FixQuality::RtkFixed},     {52, 52, FixQuality::Estimated},
      {53, 53, FixQuality::Autonomous},   {54, 54, FixQuality::Differential},
      {55, 55, FixQuality::RtkFloat},     {56, 56, FixQuality::RtkFixed},
      {64, 66, FixQuality::Differential}, {68, 78, FixQuality::Precise}};
  if (status != 0) return FixQuality::NoFix;
  for (const Range& range : Ranges) {
    if (type >= range.first && type <= range.last) return range.quality;
  }
  return type == 0 ? FixQuality::NoFix : FixQuality::Unknown;
}

void Read(const GgaRecord& record, Fix& fix) {
  Place(record.latitude, record.longitude, fix);
  fix.quality = ByNumber(record.fixQuality);
  fix.heightSea = static_cast<double>(record.altitude);
  fix.height = fix.heightSea + static_cast<double>(record.geoidSeparation);
  fix.hdop = static_cast<double>(record.hdop);
  fix.satellites = Count(record.satellites);
}

// The mode of the best of its systems.
void Read(const GnsRecord& record, Fix& fix) {
  constexpr FixQuality BestFirst[] = {
      FixQuality::RtkFixed,     FixQuality::RtkFloat,   FixQuality::Precise,
      FixQuality::Differential, FixQuality::Autonomous, FixQuality::Estimated,
      FixQuality::Manual,       FixQuality::Simulated,  FixQuality::NoFix};
  Place(record.latitude, record.longitude, fix);
  const auto* const end = record.modes + std::min<std::size_t>(record.modeCount, 8);
  for (const FixQuality quality : BestFirst) {
    if (std::find(record.modes, end, static_cast<std::uint8_t>(quality)) == end) continue;
    fix.quality = quality;
    break;
  }
  fix.heightSea = record.altitude;
  fix.height = record.altitude + record.geoidSeparation;
  fix.hdop = static_cast<double>(record.hdop);
  fix.satellites = Count(record.satellites);
}

template <class Record>
void ReadPlain(const Record& record, Fix& fix) {
  constexpr std::uint8_t NotValid = 0;
  Place(record.latitude, record.longitude, fix);
  fix.quality = ByNumber(record.mode);
  if (record.status == NotValid) fix.quality = FixQuality::NoFix;
  // Older sentences have no mode.
  if (record.status == 1 && fix.quality == FixQuality::Unknown) {
    fix.quality = FixQuality::Autonomous;
  }
}
void Read(const RmcRecord& record, Fix& fix) { ReadPlain(record, fix); }
void Read(const WideRmcRecord& record, Fix& fix) { ReadPlain(record, fix); }
void Read(const GllRecord& record, Fix& fix) { ReadPlain(record, fix); }

void Read(const GstRecord& record, Fix& fix) {
  fix.horizontalAccuracy = std::hypot(static_cast<double>(record.latitudeDeviation),
                                      static_cast<double>(record.longitudeDeviation));
  fix.verticalAccuracy = static_cast<double>(record.altitudeDeviation);
}

template <class Record>
void ReadGeodetic(const Record& record, Fix& fix) {
  Place(record.latitude, record.longitude, fix);
  fix.height = record.height;
  fix.heightSea = record.heightMsl;
  fix.horizontalAccuracy = record.horizontalAccuracy;
  fix.verticalAccuracy = record.verticalAccuracy;
}
void Read(const UbxHighPrecisionPositionRecord& record, Fix& fix) { ReadGeodetic(record, fix); }
void Read(const UbxPositionRecord& record, Fix& fix) { ReadGeodetic(record, fix); }

template <class Record>
void ReadPvt(const Record& record, Fix& fix) {
  ReadGeodetic(record, fix);
  fix.quality = OfUbx(record.fixType, record.fixOk, record.diffSolution, record.carrierSolution);
  fix.satellites = Count(record.satellites);
}
void Read(const UbxFullNavigationRecord& record, Fix& fix) { ReadPvt(record, fix); }
void Read(const UbxVehicleNavigationRecord& record, Fix& fix) { ReadPvt(record, fix); }

void Read(const UbxNavigationRecord& record, Fix& fix) {
  constexpr double Millimetre = 1e-3;
  constexpr std::uint32_t UnknownAccuracy = 0xFFFFFFFF;
  const auto metres = [](std::uint32_t accuracy) {
    return accuracy == UnknownAccuracy ? Fix::None : accuracy * Millimetre;
  };
  Place(record.latitude, record.longitude, fix);
  fix.height = static_cast<double>(record.height);
  fix.heightSea = static_cast<double>(record.heightMsl);
  fix.horizontalAccuracy = metres(record.horizontalAccuracy);
  fix.verticalAccuracy = metres(record.verticalAccuracy);
  fix.quality = OfUbx(record.fixType, record.fixOk, record.diffSolution, record.carrierSolution);
  fix.satellites = Count(record.satellites);
}

// Their accuracy is that of all three axes, which neither of the two is.
void Read(const UbxHighPrecisionEcefRecord& record, Fix& fix) {
  PlaceEcef(record.x, record.y, record.z, fix);
}
void Read(const UbxEcefRecord& record, Fix& fix) { PlaceEcef(record.x, record.y, record.z, fix); }
void Read(const UbxSolutionRecord& record, Fix& fix) {
  PlaceEcef(record.x, record.y, record.z, fix);
  fix.quality = OfUbx(record.fixType, record.fixOk, record.diffSolution, 0);
  fix.satellites = Count(record.satellites);
}
void Read(const UbxStatusRecord& record, Fix& fix) {
  fix.quality = OfUbx(record.fixType, record.fixOk, record.diffSolution, record.carrierSolution);
}
void Read(const UbxDopRecord& record, Fix& fix) { fix.hdop = record.horizontalDop; }

void Read(const PositionLogRecord& record, Fix& fix) {
  fix.quality = OfLog(record.solutionStatus, record.positionType);
  if (fix.quality == FixQuality::NoFix) return;
  Place(record.latitude, record.longitude, fix);
  fix.heightSea = record.height;
  fix.height = record.height + static_cast<double>(record.undulation);
  fix.horizontalAccuracy = std::hypot(static_cast<double>(record.latitudeDeviation),
                                      static_cast<double>(record.longitudeDeviation));
  fix.verticalAccuracy = static_cast<double>(record.heightDeviation);
  fix.satellites = record.satellites.used;
}

// Kinds by id and source.
struct Row {
  std::uint32_t id;
  std::uint32_t source;
  FixSource fix;
  void (*read)(const void* record, Fix& fix);
};
template <class Record>
constexpr Row RowOf(std::uint32_t id, FixSource fix, std::uint32_t source = SourceStream) {
  return {id, source, fix,
          [](const void* record, Fix& out) { Read(*static_cast<const Record*>(record), out); }};
}
constexpr Row Rows[] = {
    RowOf<UbxHighPrecisionPositionRecord>(MsgIdUbxHighPrecisionPosition, FixSource::HighPrecision),
    RowOf<UbxHighPrecisionEcefRecord>(MsgIdUbxHighPrecisionEcef, FixSource::HighPrecisionEcef),
    RowOf<UbxFullNavigationRecord>(MsgIdUbxFullNavigation, FixSource::Pvt),
    RowOf<UbxNavigationRecord>(MsgIdUbxNavigation, FixSource::Pvt),
    RowOf<UbxVehicleNavigationRecord>(MsgIdUbxVehicleNavigation, FixSource::Pvat),
    RowOf<PositionLogRecord>(LogIdBestPosition, FixSource::BestPosition, SourceAsciiLog),
    RowOf<UbxPositionRecord>(MsgIdUbxPosition, FixSource::PosLlh),
    RowOf<UbxEcefRecord>(MsgIdUbxEcef, FixSource::PosEcef),
    RowOf<UbxSolutionRecord>(MsgIdUbxSolution, FixSource::Solution),
    RowOf<GgaRecord>(MsgIdGga, FixSource::Gga),
    RowOf<GnsRecord>(MsgIdGns, FixSource::Gns),
    RowOf<RmcRecord>(MsgIdRmc, FixSource::Rmc),
    RowOf<WideRmcRecord>(MsgIdWideRmc, FixSource::Rmc),
    RowOf<GllRecord>(MsgIdGll, FixSource::Gll),
    RowOf<GstRecord>(MsgIdGst, FixSource::Nothing),
    RowOf<UbxStatusRecord>(MsgIdUbxStatus, FixSource::Nothing),
    RowOf<UbxDopRecord>(MsgIdUbxDop, FixSource::Nothing),
};

const Row* RowOfKind(const NavframeKind& kind) {
  const auto* const row = std::ranges::find_if(Rows, [&](const Row& candidate) {
    return candidate.id == kind.id && candidate.source == kind.source;
  });
  return row == std::end(Rows) ? nullptr : row;
}

// Records of UBX begin with their own time of week.
std::int64_t TimeOf(const NavframeItem& item, std::int64_t time, const Timeline& timeline) {
  if (item.protocol != NavframeUbx) return time;
  const std::uint32_t tow = *static_cast<const std::uint32_t*>(item.record);
  const bool isOther = tow != UnknownTow && tow != item.time.tow && tow < WeekMs;
  return isOther ? timeline.Nearest(tow, time) : time;
}

// What `fix` does not tell. Heights of one message belong together.
void Fill(const Fix& from, Fix& fix) {
  const auto fill = [](double value, double& member) {
    if (std::isnan(member)) member = value;
  };
  if (fix.quality == FixQuality::Unknown) fix.quality = from.quality;
  if (std::isnan(fix.height) && std::isnan(fix.heightSea)) {
    fix.height = from.height;
    fix.heightSea = from.heightSea;
  } else if (!std::isnan(fix.height)) {
    fill(fix.height - (from.height - from.heightSea), fix.heightSea);
  }
  fill(from.horizontalAccuracy, fix.horizontalAccuracy);
  fill(from.verticalAccuracy, fix.verticalAccuracy);
  fill(from.hdop, fix.hdop);
  fill(from.satellites, fix.satellites);
}

}  // namespace

const char* NameOf(FixSource source) {
  constexpr const char* Names[] = {
      "NAV-HPPOSLLH", "NAV-HPPOSECEF", "NAV-PVT", "NAV-PVAT", "BESTPOS",
      "NAV-POSLLH",   "NAV-POSECEF",   "NAV-SOL", "GGA",      "GNS",
      "RMC",          "GLL",           ""};
  static_assert(std::size(Names) == FixSources);
  return Names[static_cast<std::size_t>(source)];
}

const char* NameOf(FixQuality quality) {
  constexpr const char* Names[] = {"no fix",    "autonomous", "differential", "precise",
                                   "RTK fixed", "RTK float",  "estimated",    "manual",
                                   "simulated", "not told"};
  static_assert(std::size(Names) == FixQualities);
  return Names[static_cast<std::size_t>(quality)];
}

bool Epochs::IsOf(const NavframeKind& kind) { return RowOfKind(kind) != nullptr; }

const Fix* Epochs::Take(const NavframeItem& item, std::int64_t time, const Timeline& timeline) {
  const Row* const row = RowOfKind(*item.kind);
  if (row == nullptr) return nullptr;
  Fix fix;
  fix.source = row->fix;
  fix.time = TimeOf(item, time, timeline);
  row->read(item.record, fix);
  const bool isSame = isOpen_ && fix.time == open_.time;
  // Without a time there is no telling what belongs together, but for the same message again.
  const bool isAgain = fix.time == NoTime && fix.source <= open_.source;
  if (isSame && !isAgain) {
    const bool isBetter = fix.source < open_.source && (fix.HasPosition() || !open_.HasPosition());
    if (isBetter) std::swap(fix, open_);
    Fill(fix, open_);
    return nullptr;
  }
  const bool hasEnded = isOpen_;
  ended_ = open_;
  open_ = fix;
  isOpen_ = true;
  return hasEnded && ended_.source != FixSource::Nothing ? &ended_ : nullptr;
}

const Fix* Epochs::End() {
  const bool hasEnded = isOpen_ && open_.source != FixSource::Nothing;
  ended_ = open_;
  isOpen_ = false;
  return hasEnded ? &ended_ : nullptr;
}

}  // namespace navframe::analysis
