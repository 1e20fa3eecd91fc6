#include "ephemeris/glonass_strings.h"

#include <array>

#include "catalogue/unknown_records.h"
#include "ephemeris/delivery.h"
#include "ephemeris/page_rows.h"

namespace navframe::ephemeris {
namespace {

using enum Wire;

constexpr std::uint32_t StringBits = 85;
constexpr std::uint32_t CheckBits = 8;  // the last ones
constexpr std::uint32_t PlaceBits = 88;
constexpr std::uint32_t Strings = 5;

// The checks that each bit of a string takes part in, by its place. Data bits, from the last one
// up, have the numbers that are no powers of two, from 3 on; check bits have the powers; all are
// part of the eighth check.
constexpr auto Checks = [] {
  std::array<std::uint8_t, StringBits> checks{};
  constexpr std::uint32_t All = 0x80;
  std::uint32_t number = 3;
  for (std::uint32_t i = 0; i < StringBits; ++i) {
    const std::uint32_t place = StringBits - 1 - i;
    if (i < CheckBits) {
      checks[place] = static_cast<std::uint8_t>((i < CheckBits - 1 ? 1U << i : 0U) | All);
      continue;
    }
    if ((number & (number - 1)) == 0) ++number;
    checks[place] = static_cast<std::uint8_t>(number | All);
    ++number;
  }
  return checks;
}();

// The checks of eight bits at a time.
constexpr std::uint32_t CheckedBytes = PlaceBits / 8;
constexpr auto ByteChecks = [] {
  std::array<std::array<std::uint8_t, 256>, CheckedBytes> sums{};
  for (std::uint32_t byte = 0; byte < CheckedBytes; ++byte) {
    for (std::uint32_t value = 0; value < 256; ++value) {
      for (std::uint32_t bit = 0; bit < 8; ++bit) {
        const std::uint32_t place = 8 * byte + bit;
        if (place < StringBits && (value & 0x80U >> bit) != 0) {
          sums[byte][value] = static_cast<std::uint8_t>(sums[byte][value] ^ Checks[place]);
        }
      }
    }
  }
  return sums;
}();

bool ChecksHold(const Page<PlaceBits>& page) {
  std::uint32_t sum = 0;
  for (std::uint32_t i = 0; i < CheckedBytes; ++i) sum ^= ByteChecks[i][page.bytes[i]];
  return sum == 0;
}

// A field by string, from 1 on, place and length.
constexpr Piece At(std::uint32_t string, std::uint32_t place, std::uint32_t bits) {
  return {static_cast<std::uint16_t>((string - 1) * PlaceBits + place),
          static_cast<std::uint8_t>(bits)};
}

#define G(...) NAVFRAME_PAGE_FIELD(GlonassEphemerisRecord, __VA_ARGS__)
constexpr double Kilo = 1000;
constexpr auto Glonass = std::to_array<PageRow>({
    G(p1, At(1, 7, 2)),
    G(velocity[0], At(1, 21, 24), SignMagnitude, 0x1p-20 * Kilo),
    G(acceleration[0], At(1, 45, 5), SignMagnitude, 0x1p-30 * Kilo),
    G(position[0], At(1, 50, 27), SignMagnitude, 0x1p-11 * Kilo),
    G(health, At(2, 5, 3)),
    G(unhealthy, At(2, 5, 1)),
    G(p2, At(2, 8, 1)),
    G(tb, At(2, 9, 7)),
    G(velocity[1], At(2, 21, 24), SignMagnitude, 0x1p-20 * Kilo),
    G(acceleration[1], At(2, 45, 5), SignMagnitude, 0x1p-30 * Kilo),
    G(position[1], At(2, 50, 27), SignMagnitude, 0x1p-11 * Kilo),
    G(gammaN, At(3, 6, 11), SignMagnitude, 0x1p-40),
    G(p, At(3, 18, 2)),
    G(lnThird, At(3, 20, 1)),
    G(velocity[2], At(3, 21, 24), SignMagnitude, 0x1p-20 * Kilo),
    G(acceleration[2], At(3, 45, 5), SignMagnitude, 0x1p-30 * Kilo),
    G(position[2], At(3, 50, 27), SignMagnitude, 0x1p-11 * Kilo),
    G(tauN, At(4, 5, 22), SignMagnitude, 0x1p-30),
    G(deltaTauN, At(4, 27, 5), SignMagnitude, 0x1p-30),
    G(age, At(4, 32, 5)),
    G(p4, At(4, 51, 1)),
    G(accuracyIndex, At(4, 52, 4)),
    G(nt, At(4, 59, 11)),
    G(satelliteType, At(4, 75, 2)),
    G(na, At(5, 5, 11)),
    G(tauC, At(5, 16, 32), SignMagnitude, 0x1p-31),
    G(n4, At(5, 49, 5)),
    G(tauGps, At(5, 54, 22), SignMagnitude, 0x1p-30),
    G(lnFifth, At(5, 76, 1)),
});
#undef G
constexpr Piece StringNumber = At(1, 1, 4);
constexpr Piece StringChecks = At(1, 77, CheckBits);

// What is another one in each frame, by string: the time, P3, bits that are reserved. Behind the
// number of the frame it is what an assembly keeps as the time of a string.
constexpr Piece OwnOfFrame[Strings] = {At(1, 9, 12), {}, At(1, 5, 1), At(1, 37, 14), {}};
constexpr std::uint32_t OwnBits = 14;

bool IsOneFrame(const GlonassAssembly& assembly) {
  for (std::uint32_t i = 1; i < Strings; ++i) {
    if (assembly.TimeOf(i) >> OwnBits != assembly.TimeOf(0) >> OwnBits) return false;
  }
  return true;
}

}  // namespace

std::optional<GlonassEphemerisRecord> TakeGlonass(const Subframe& subframe,
                                                  GlonassAssembly& assembly) {
  constexpr std::uint32_t Words = 4;  // the last one numbers the frame
  if (subframe.count != Words) return std::nullopt;
  Page<PlaceBits> page;
  PageWriter writer(page.bytes.data());
  for (std::uint32_t i = 0; i < Words - 1; ++i) {
    const std::uint32_t bits = i < 2 ? 32 : StringBits - 64;
    writer.Put(subframe.words[i] >> (32 - bits), bits);
  }
  writer.End();
  const std::uint64_t number = page.Read(StringNumber);
  if (number < 1 || number > Strings || !ChecksHold(page)) return std::nullopt;
  const std::uint64_t frame = std::uint64_t{subframe.words[Words - 1]} << OwnBits;
  page.TakeOut(StringChecks);
  const Piece own = OwnOfFrame[number - 1];
  const std::uint64_t time = own.bits == 0 ? 0 : page.TakeOut(own);
  assembly.Put(static_cast<std::uint32_t>(number - 1), page, frame | time);
  if (!assembly.Waits() || !IsOneFrame(assembly)) return std::nullopt;
  assembly.SetOut();
  GlonassEphemerisRecord record;
  catalogue::MakeUnknown(record);
  ReadPages<Glonass>(assembly.Bytes(), record);
  record.satellite = subframe.satellite;
  record.channel = subframe.channel;
  record.rtcmMessage = 0;
  record.tb *= 900;
  record.p3 = static_cast<std::uint8_t>(assembly.TimeOf(2) & 1U);
  PutFrameTime(static_cast<std::uint32_t>(assembly.TimeOf(0) & 0xFFF), record);
  return record;
}

}  // namespace navframe::ephemeris
