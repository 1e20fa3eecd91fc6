#include "rtcm/ephemeris.h"

#include <array>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "ephemeris/delivery.h"
#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

using enum Wire;
using ephemeris::Message;
using ephemeris::Semicircle;
using ephemeris::System;

constexpr std::uint32_t GlonassNumber = 1020;

#define K(...) NAVFRAME_FIELD(KeplerEphemerisRecord, __VA_ARGS__)
#define G(...) NAVFRAME_FIELD(GlonassMessage, __VA_ARGS__)

constexpr auto Gps = std::to_array<FieldRow>({
    K(satellite, 6),
    K(broadcastWeek, 10),
    K(accuracyIndex, 4),
    K(codesOnL2, 2),
    K(idot, 14, TwosComplement, 0x1p-43 * Semicircle),
    K(issueOfData, 8),
    K(toc, 16, Unsigned, 16),
    K(af2, 8, TwosComplement, 0x1p-55),
    K(af1, 16, TwosComplement, 0x1p-43),
    K(af0, 22, TwosComplement, 0x1p-31),
    K(issueOfClock, 10),
    K(crs, 16, TwosComplement, 0x1p-5),
    K(deltaN, 16, TwosComplement, 0x1p-43 * Semicircle),
    K(m0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 16, Unsigned, 16),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, 24, TwosComplement, 0x1p-43 * Semicircle),
    K(groupDelay[0], 8, TwosComplement, 0x1p-31),
    K(health, 6),
    K(l2pDataFlag, 1),
    K(fitInterval, 1),
});
static_assert(BitLength(Gps) == 476);

constexpr auto BeiDou = std::to_array<FieldRow>({
    K(satellite, 6),
    K(broadcastWeek, 13),
    K(accuracyIndex, 4),
    K(idot, 14, TwosComplement, 0x1p-43 * Semicircle),
    K(issueOfData, 5),
    K(toc, 17, Unsigned, 8),
    K(af2, 11, TwosComplement, 0x1p-66),
    K(af1, 22, TwosComplement, 0x1p-50),
    K(af0, 24, TwosComplement, 0x1p-33),
    K(issueOfClock, 5),
    K(crs, 18, TwosComplement, 0x1p-6),
    K(deltaN, 16, TwosComplement, 0x1p-43 * Semicircle),
    K(m0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cuc, 18, TwosComplement, 0x1p-31),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 18, TwosComplement, 0x1p-31),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 17, Unsigned, 8),
    K(cic, 18, TwosComplement, 0x1p-31),
    K(omega0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cis, 18, TwosComplement, 0x1p-31),
    K(i0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(crc, 18, TwosComplement, 0x1p-6),
    K(omega, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, 24, TwosComplement, 0x1p-43 * Semicircle),
    K(groupDelay[0], 10, TwosComplement, 1e-10),
    K(groupDelay[1], 10, TwosComplement, 1e-10),
    K(health, 1),
});
static_assert(BitLength(BeiDou) == 499);

constexpr auto Qzss = std::to_array<FieldRow>({
    K(satellite, 4),
    K(toc, 16, Unsigned, 16),
    K(af2, 8, TwosComplement, 0x1p-55),
    K(af1, 16, TwosComplement, 0x1p-43),
    K(af0, 22, TwosComplement, 0x1p-31),
    K(issueOfData, 8),
    K(crs, 16, TwosComplement, 0x1p-5),
    K(deltaN, 16, TwosComplement, 0x1p-43 * Semicircle),
    K(m0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 16, Unsigned, 16),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, 24, TwosComplement, 0x1p-43 * Semicircle),
    K(idot, 14, TwosComplement, 0x1p-43 * Semicircle),
    K(codesOnL2, 2),
    K(broadcastWeek, 10),
    K(accuracyIndex, 4),
    K(health, 6),
    K(groupDelay[0], 8, TwosComplement, 0x1p-31),
    K(issueOfClock, 10),
    K(fitInterval, 1),
});
static_assert(BitLength(Qzss) == 473);

// What both messages of Galileo begin with, and how each goes on.
constexpr auto GalileoOrbit = std::to_array<FieldRow>({
    K(satellite, 6),
    K(broadcastWeek, 12),
    K(issueOfData, 10),
    K(accuracyIndex, 8),
    K(idot, 14, TwosComplement, 0x1p-43 * Semicircle),
    K(toc, 14, Unsigned, 60),
    K(af2, 6, TwosComplement, 0x1p-59),
    K(af1, 21, TwosComplement, 0x1p-46),
    K(af0, 31, TwosComplement, 0x1p-34),
    K(crs, 16, TwosComplement, 0x1p-5),
    K(deltaN, 16, TwosComplement, 0x1p-43 * Semicircle),
    K(m0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 14, Unsigned, 60),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, 24, TwosComplement, 0x1p-43 * Semicircle),
});
constexpr auto GalileoFnavEnd = std::to_array<FieldRow>({
    K(groupDelay[0], 10, TwosComplement, 0x1p-32),
    K(signalHealth[1], 2),
    K(dataInvalid[1], 1),
    Skipped(7),
});
constexpr auto GalileoInavEnd = std::to_array<FieldRow>({
    K(groupDelay[0], 10, TwosComplement, 0x1p-32),
    K(groupDelay[1], 10, TwosComplement, 0x1p-32),
    K(signalHealth[2], 2),
    K(dataInvalid[2], 1),
    K(signalHealth[0], 2),
    K(dataInvalid[0], 1),
    Skipped(2),
});
static_assert(BitLength(GalileoOrbit) + BitLength(GalileoFnavEnd) == 484);
static_assert(BitLength(GalileoOrbit) + BitLength(GalileoInavEnd) == 492);

constexpr auto NavIc = std::to_array<FieldRow>({
    K(satellite, 6),
    K(broadcastWeek, 10),
    K(af0, 22, TwosComplement, 0x1p-31),
    K(af1, 16, TwosComplement, 0x1p-43),
    K(af2, 8, TwosComplement, 0x1p-55),
    K(accuracyIndex, 4),
    K(toc, 16, Unsigned, 16),
    K(groupDelay[0], 8, TwosComplement, 0x1p-31),
    K(deltaN, 22, TwosComplement, 0x1p-41 * Semicircle),
    K(issueOfData, 8),
    Skipped(10),
    K(health, 2),
    K(cuc, 15, TwosComplement, 0x1p-28),
    K(cus, 15, TwosComplement, 0x1p-28),
    K(cic, 15, TwosComplement, 0x1p-28),
    K(cis, 15, TwosComplement, 0x1p-28),
    K(crc, 15, TwosComplement, 0x1p-4),
    K(crs, 15, TwosComplement, 0x1p-4),
    K(idot, 14, TwosComplement, 0x1p-43 * Semicircle),
    K(m0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(toe, 16, Unsigned, 16),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(omega0, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omega, 32, TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, 22, TwosComplement, 0x1p-41 * Semicircle),
    K(i0, 32, TwosComplement, 0x1p-31 * Semicircle),
    Skipped(4),
});
static_assert(BitLength(NavIc) == 470);

// 1020 as it is sent: what its record has otherwise stands behind it.
struct GlonassMessage {
  GlonassEphemerisRecord record;
  std::uint16_t frameTime;  // hours, 6 bits of minutes, halves of them
  std::uint8_t channel;     // from -7 on
  std::uint8_t quarterHour;
  std::uint8_t almanacHealthAvailable;
  std::uint8_t additionalData;  // all from `na` on is set
};
constexpr double Kilo = 1000;
constexpr auto Glonass = std::to_array<FieldRow>({
    G(record.satellite, 6),
    G(channel, 5),
    G(record.almanacHealth, 1),
    G(almanacHealthAvailable, 1),
    G(record.p1, 2),
    G(frameTime, 12),
    G(record.unhealthy, 1),
    G(record.p2, 1),
    G(quarterHour, 7),
    G(record.velocity[0], 24, SignMagnitude, 0x1p-20 * Kilo),
    G(record.position[0], 27, SignMagnitude, 0x1p-11 * Kilo),
    G(record.acceleration[0], 5, SignMagnitude, 0x1p-30 * Kilo),
    G(record.velocity[1], 24, SignMagnitude, 0x1p-20 * Kilo),
    G(record.position[1], 27, SignMagnitude, 0x1p-11 * Kilo),
    G(record.acceleration[1], 5, SignMagnitude, 0x1p-30 * Kilo),
    G(record.velocity[2], 24, SignMagnitude, 0x1p-20 * Kilo),
    G(record.position[2], 27, SignMagnitude, 0x1p-11 * Kilo),
    G(record.acceleration[2], 5, SignMagnitude, 0x1p-30 * Kilo),
    G(record.p3, 1),
    G(record.gammaN, 11, SignMagnitude, 0x1p-40),
    G(record.p, 2),
    G(record.lnThird, 1),
    G(record.tauN, 22, SignMagnitude, 0x1p-30),
    G(record.deltaTauN, 5, SignMagnitude, 0x1p-30),
    G(record.age, 5),
    G(record.p4, 1),
    G(record.accuracyIndex, 4),
    G(record.nt, 11),
    G(record.satelliteType, 2),
    G(additionalData, 1),
    G(record.na, 11),
    G(record.tauC, 32, SignMagnitude, 0x1p-31),
    G(record.n4, 5),
    G(record.tauGps, 22, SignMagnitude, 0x1p-30),
    G(record.lnFifth, 1),
    Skipped(7),
});
static_assert(BitLength(Glonass) == 348);

#undef K
#undef G

// Message number, system, what the satellite sent (of BeiDou by the satellite), fields.
struct KeplerRow {
  std::uint32_t number;
  System system;
  Message message;
  std::uint32_t bits;
  void (*read)(const Frame& frame, KeplerEphemerisRecord& record);
};

constexpr std::array<FieldRow, 0> Nothing = {};
template <const auto& Fields, const auto& More = Nothing>
constexpr KeplerRow Row(std::uint32_t number, System system, Message message) {
  return {number, system, message, BitLength(Fields) + BitLength(More),
          [](const Frame& frame, KeplerEphemerisRecord& record) {
            ReadWhole<Fields>(frame, FirstFieldBit, &record);
            ReadWhole<More>(frame, FirstFieldBit + BitLength(Fields), &record);
          }};
}
constexpr KeplerRow KeplerRows[] = {
    Row<Gps>(1019, System::Gps, Message::Lnav),
    Row<NavIc>(1041, System::NavIc, Message::NavIcSps),
    Row<BeiDou>(1042, System::BeiDou, Message::D1),
    Row<Qzss>(1044, System::Qzss, Message::Lnav),
    Row<GalileoOrbit, GalileoFnavEnd>(1045, System::Galileo, Message::Fnav),
    Row<GalileoOrbit, GalileoInavEnd>(1046, System::Galileo, Message::Inav),
};

DecodeResult DecodeKepler(const KeplerRow& row, const Frame& frame, Services& services) {
  if (!frame.Has(FirstFieldBit, row.bits)) return {NavframeBadContent};
  KeplerEphemerisRecord record;
  catalogue::MakeUnknown(record);
  row.read(frame, record);
  record.rtcmMessage = static_cast<std::uint16_t>(row.number);
  record.system = static_cast<std::uint8_t>(row.system);
  const bool isBeiDou = row.system == System::BeiDou;
  record.navigationMessage = static_cast<std::uint8_t>(
      isBeiDou ? ephemeris::BeiDouMessage(record.satellite) : row.message);
  ephemeris::Deliver(record, NavframeTimeFromRtcm, services.sink, services.time);
  return {};
}

DecodeResult DecodeGlonass(const Frame& frame, Services& services) {
  if (!frame.Has(FirstFieldBit, BitLength(Glonass))) return {NavframeBadContent};
  GlonassMessage message{};
  GlonassEphemerisRecord& record = message.record;
  catalogue::MakeUnknown(record);
  ReadWhole<Glonass>(frame, FirstFieldBit, &message);
  record.rtcmMessage = GlonassNumber;
  record.channel = static_cast<std::int8_t>(message.channel - 7);
  record.tb = message.quarterHour * 900U;
  ephemeris::PutFrameTime(message.frameTime, record);
  record.health = static_cast<std::uint8_t>(record.unhealthy * 4);
  if (message.almanacHealthAvailable == 0) record.almanacHealth = Unknown<std::uint8_t>();
  if (message.additionalData == 0) {
    ephemeris::NoteWeek(record, NavframeTimeFromRtcm, services.time);
    record.na = Unknown<std::uint16_t>();
    record.tauC = Unknown<double>();
    record.n4 = 0;
    record.tauGps = Unknown<double>();
    record.lnFifth = Unknown<std::uint8_t>();
  }
  ephemeris::Deliver(record, NavframeTimeFromRtcm, services.sink, services.time);
  return {};
}

}  // namespace

std::optional<DecodeResult> DecodeEphemeris(std::uint32_t number, const Frame& frame,
                                            Services& services) {
  if (!services.dialect.standardRecords) return std::nullopt;
  if (number == GlonassNumber) return DecodeGlonass(frame, services);
  for (const KeplerRow& row : KeplerRows) {
    if (row.number == number) return DecodeKepler(row, frame, services);
  }
  return std::nullopt;
}

}  // namespace navframe::rtcm
