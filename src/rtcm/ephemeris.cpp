#include "rtcm/ephemeris.h"

#include <array>

#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

using enum Wire;

#define K(...) NAVFRAME_FIELD(KeplerEphemeris, __VA_ARGS__)
#define G(...) NAVFRAME_FIELD(GlonassEphemeris, __VA_ARGS__)

constexpr auto Gps = std::to_array<FieldRow>({
    K(satellite, 6),
    K(week, 10),
    K(accuracy, 4),
    K(codesOnL2, 2),
    K(idot, 14, TwosComplement, 0x1p-43),
    K(issueOfData, 8),
    K(toc, 16, Unsigned, 16),
    K(af2, 8, TwosComplement, 0x1p-55),
    K(af1, 16, TwosComplement, 0x1p-43),
    K(af0, 22, TwosComplement, 0x1p-31),
    K(issueOfClock, 10),
    K(crs, 16, TwosComplement, 0x1p-5),
    K(deltaN, 16, TwosComplement, 0x1p-43),
    K(m0, 32, TwosComplement, 0x1p-31),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 16, Unsigned, 16),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31),
    K(omegaDot, 24, TwosComplement, 0x1p-43),
    K(groupDelay[0], 8, TwosComplement, 0x1p-31),
    K(health[0], 6),
    K(l2pDataFlag, 1),
    K(fitInterval, 1),
});
static_assert(BitLength(Gps) == 476);

constexpr auto BeiDou = std::to_array<FieldRow>({
    K(satellite, 6),
    K(week, 13),
    K(accuracy, 4),
    K(idot, 14, TwosComplement, 0x1p-43),
    K(issueOfData, 5),
    K(toc, 17, Unsigned, 8),
    K(af2, 11, TwosComplement, 0x1p-66),
    K(af1, 22, TwosComplement, 0x1p-50),
    K(af0, 24, TwosComplement, 0x1p-33),
    K(issueOfClock, 5),
    K(crs, 18, TwosComplement, 0x1p-6),
    K(deltaN, 16, TwosComplement, 0x1p-43),
    K(m0, 32, TwosComplement, 0x1p-31),
    K(cuc, 18, TwosComplement, 0x1p-31),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 18, TwosComplement, 0x1p-31),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 17, Unsigned, 8),
    K(cic, 18, TwosComplement, 0x1p-31),
    K(omega0, 32, TwosComplement, 0x1p-31),
    K(cis, 18, TwosComplement, 0x1p-31),
    K(i0, 32, TwosComplement, 0x1p-31),
    K(crc, 18, TwosComplement, 0x1p-6),
    K(omega, 32, TwosComplement, 0x1p-31),
    K(omegaDot, 24, TwosComplement, 0x1p-43),
    K(groupDelay[0], 10, TwosComplement, 1e-10),
    K(groupDelay[1], 10, TwosComplement, 1e-10),
    K(health[0], 1),
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
    K(deltaN, 16, TwosComplement, 0x1p-43),
    K(m0, 32, TwosComplement, 0x1p-31),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 16, Unsigned, 16),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31),
    K(omegaDot, 24, TwosComplement, 0x1p-43),
    K(idot, 14, TwosComplement, 0x1p-43),
    K(codesOnL2, 2),
    K(week, 10),
    K(accuracy, 4),
    K(health[0], 6),
    K(groupDelay[0], 8, TwosComplement, 0x1p-31),
    K(issueOfClock, 10),
    K(fitInterval, 1),
});
static_assert(BitLength(Qzss) == 473);

// E5b comes before E1 in the pairs of health and validity; E5a/E1 before E5b/E1 in the delays.
constexpr auto Galileo = std::to_array<FieldRow>({
    K(satellite, 6),
    K(week, 12),
    K(issueOfData, 10),
    K(accuracy, 8),
    K(idot, 14, TwosComplement, 0x1p-43),
    K(toc, 14, Unsigned, 60),
    K(af2, 6, TwosComplement, 0x1p-59),
    K(af1, 21, TwosComplement, 0x1p-46),
    K(af0, 31, TwosComplement, 0x1p-34),
    K(crs, 16, TwosComplement, 0x1p-5),
    K(deltaN, 16, TwosComplement, 0x1p-43),
    K(m0, 32, TwosComplement, 0x1p-31),
    K(cuc, 16, TwosComplement, 0x1p-29),
    K(eccentricity, 32, Unsigned, 0x1p-33),
    K(cus, 16, TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, 32, Unsigned, 0x1p-19),
    K(toe, 14, Unsigned, 60),
    K(cic, 16, TwosComplement, 0x1p-29),
    K(omega0, 32, TwosComplement, 0x1p-31),
    K(cis, 16, TwosComplement, 0x1p-29),
    K(i0, 32, TwosComplement, 0x1p-31),
    K(crc, 16, TwosComplement, 0x1p-5),
    K(omega, 32, TwosComplement, 0x1p-31),
    K(omegaDot, 24, TwosComplement, 0x1p-43),
    K(groupDelay[0], 10, TwosComplement, 0x1p-32),
    K(groupDelay[1], 10, TwosComplement, 0x1p-32),
    K(health[0], 2),
    K(dataInvalid[0], 1),
    K(health[1], 2),
    K(dataInvalid[1], 1),
    Skipped(2),
});
static_assert(BitLength(Galileo) == 492);

constexpr auto Glonass = std::to_array<FieldRow>({
    G(satellite, 6),
    G(channel, 5, Unsigned, 1, -7),
    G(almanacHealth, 1),
    G(almanacHealthAvailable, 1),
    G(p1, 2),
    G(frameHour, 5),
    G(frameMinute, 6),
    G(frameSecond, 1, Unsigned, 30),
    G(unhealthy, 1),
    G(p2, 1),
    G(tb, 7, Unsigned, 900),
    G(velocity[0], 24, SignMagnitude, 0x1p-20),
    G(position[0], 27, SignMagnitude, 0x1p-11),
    G(acceleration[0], 5, SignMagnitude, 0x1p-30),
    G(velocity[1], 24, SignMagnitude, 0x1p-20),
    G(position[1], 27, SignMagnitude, 0x1p-11),
    G(acceleration[1], 5, SignMagnitude, 0x1p-30),
    G(velocity[2], 24, SignMagnitude, 0x1p-20),
    G(position[2], 27, SignMagnitude, 0x1p-11),
    G(acceleration[2], 5, SignMagnitude, 0x1p-30),
    G(p3, 1),
    G(gammaN, 11, SignMagnitude, 0x1p-40),
    G(p, 2),
    G(lnThird, 1),
    G(tauN, 22, SignMagnitude, 0x1p-30),
    G(deltaTauN, 5, SignMagnitude, 0x1p-30),
    G(age, 5),
    G(p4, 1),
    G(ft, 4),
    G(nt, 11),
    G(m, 2),
    G(additionalData, 1),
    G(na, 11),
    G(tauC, 32, SignMagnitude, 0x1p-31),
    G(n4, 5),
    G(tauGps, 22, SignMagnitude, 0x1p-30),
    G(lnFifth, 1),
    Skipped(7),
});
static_assert(BitLength(Glonass) == 348);

#undef K
#undef G

template <class Ephemeris, std::size_t Count>
Ephemeris Decode(const std::array<FieldRow, Count>& rows, const Frame& frame) {
  Ephemeris ephemeris{};
  ReadFields(frame, FirstFieldBit, rows, &ephemeris);
  return ephemeris;
}

}  // namespace

KeplerEphemeris DecodeGpsEphemeris(const Frame& frame) {
  return Decode<KeplerEphemeris>(Gps, frame);
}
KeplerEphemeris DecodeBeiDouEphemeris(const Frame& frame) {
  return Decode<KeplerEphemeris>(BeiDou, frame);
}
KeplerEphemeris DecodeQzssEphemeris(const Frame& frame) {
  return Decode<KeplerEphemeris>(Qzss, frame);
}
KeplerEphemeris DecodeGalileoEphemeris(const Frame& frame) {
  return Decode<KeplerEphemeris>(Galileo, frame);
}
GlonassEphemeris DecodeGlonassEphemeris(const Frame& frame) {
  return Decode<GlonassEphemeris>(Glonass, frame);
}

}  // namespace navframe::rtcm
