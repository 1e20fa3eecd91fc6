#include "ephemeris/lnav.h"

#include <array>
#include <bit>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "ephemeris/delivery.h"
#include "ephemeris/page_rows.h"

namespace navframe::ephemeris {
namespace {

using enum Wire;

constexpr std::uint32_t Words = 10;
constexpr std::uint32_t DataBits = 24;
constexpr std::uint32_t ParityBits = 6;

// Which of the 30 bits of a word, and of the last two bits of the word before it in front of them,
// each bit of the parity sums up.
constexpr std::uint32_t ParityMasks[ParityBits] = {0xBB1F3480, 0x5D8F9A40, 0xAEC7CD00,
                                                   0x5763E680, 0x6BB1F340, 0x8B7A89C0};

// The parities of eight bits at a time.
constexpr auto ByteParities = [] {
  std::array<std::array<std::uint8_t, 256>, 4> parities{};
  for (std::uint32_t byte = 0; byte < parities.size(); ++byte) {
    for (std::uint32_t value = 0; value < 256; ++value) {
      std::uint32_t parity = 0;
      for (const std::uint32_t mask : ParityMasks) {
        const auto ones = static_cast<std::uint32_t>(std::popcount(value << (8 * byte) & mask));
        parity = parity << 1 | (ones & 1U);
      }
      parities[byte][value] = static_cast<std::uint8_t>(parity);
    }
  }
  return parities;
}();

// Receivers hand words on with the sign that they have behind a last bit of 0: the one before the
// last of the word in front of them is turned with it.
bool ParityHolds(const Subframe& subframe) {
  std::uint32_t before = 0;  // the last two bits of the word in front
  for (const std::uint32_t word : subframe.words) {
    const std::uint32_t last29 = (before >> 1 ^ before) & 1U;
    const std::uint32_t summed = last29 << 31 | (word & 0x3FFFFFFF);
    const std::uint32_t parity =
        ByteParities[0][summed & 0xFF] ^ ByteParities[1][summed >> 8 & 0xFF] ^
        ByteParities[2][summed >> 16 & 0xFF] ^ ByteParities[3][summed >> 24];
    if (parity != (word & 0x3F)) return false;
    before = word & 3U;
  }
  return true;
}

// A field by subframe, word, both from 1 on, first bit of the word, from 1 on, and length. Fields
// go on in the next word behind its parity.
constexpr Piece At(std::uint32_t subframe, std::uint32_t word, std::uint32_t bit,
                   std::uint32_t bits) {
  return {static_cast<std::uint16_t>((subframe - 1) * Words * DataBits + (word - 1) * DataBits +
                                     bit - 1),
          static_cast<std::uint8_t>(bits)};
}

#define K(...) NAVFRAME_PAGE_FIELD(KeplerEphemerisRecord, __VA_ARGS__)
constexpr auto Lnav = std::to_array<PageRow>({
    K(broadcastWeek, At(1, 3, 1, 10)),
    K(codesOnL2, At(1, 3, 11, 2)),
    K(accuracyIndex, At(1, 3, 13, 4)),
    K(health, At(1, 3, 17, 6)),
    K(issueOfClock, At(1, 3, 23, 2), Unsigned, 1, At(1, 8, 1, 8)),
    K(l2pDataFlag, At(1, 4, 1, 1)),
    K(groupDelay[0], At(1, 7, 17, 8), TwosComplement, 0x1p-31),
    K(toc, At(1, 8, 9, 16), Unsigned, 16),
    K(af2, At(1, 9, 1, 8), TwosComplement, 0x1p-55),
    K(af1, At(1, 9, 9, 16), TwosComplement, 0x1p-43),
    K(af0, At(1, 10, 1, 22), TwosComplement, 0x1p-31),
    K(issueOfData, At(2, 3, 1, 8)),
    K(crs, At(2, 3, 9, 16), TwosComplement, 0x1p-5),
    K(deltaN, At(2, 4, 1, 16), TwosComplement, 0x1p-43 * Semicircle),
    K(m0, At(2, 4, 17, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(cuc, At(2, 6, 1, 16), TwosComplement, 0x1p-29),
    K(eccentricity, At(2, 6, 17, 32), Unsigned, 0x1p-33),
    K(cus, At(2, 8, 1, 16), TwosComplement, 0x1p-29),
    K(sqrtSemiMajorAxis, At(2, 8, 17, 32), Unsigned, 0x1p-19),
    K(toe, At(2, 10, 1, 16), Unsigned, 16),
    K(fitInterval, At(2, 10, 17, 1)),
    K(cic, At(3, 3, 1, 16), TwosComplement, 0x1p-29),
    K(omega0, At(3, 3, 17, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(cis, At(3, 5, 1, 16), TwosComplement, 0x1p-29),
    K(i0, At(3, 5, 17, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(crc, At(3, 7, 1, 16), TwosComplement, 0x1p-5),
    K(omega, At(3, 7, 17, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, At(3, 9, 1, 24), TwosComplement, 0x1p-43 * Semicircle),
    K(idot, At(3, 10, 9, 14), TwosComplement, 0x1p-43 * Semicircle),
});
#undef K
constexpr Piece Preamble = At(1, 1, 1, 8);
constexpr Piece TimeCount = At(1, 2, 1, 17);  // of 6 s, at the end of the subframe
constexpr Piece TimeWord = At(1, 2, 1, 24);
constexpr Piece SubframeId = At(1, 2, 20, 3);
constexpr Piece Issues[] = {At(1, 8, 1, 8), At(2, 3, 1, 8), At(3, 10, 1, 8)};

}  // namespace

std::optional<KeplerEphemerisRecord> TakeLnav(const Subframe& subframe, LnavAssembly& assembly) {
  constexpr std::uint64_t PreambleBits = 0x8B;
  if (subframe.count != Words || !ParityHolds(subframe)) return std::nullopt;
  Page<240> page;
  PageWriter writer(page.bytes.data());
  for (const std::uint32_t word : subframe.words) {
    writer.Put(word >> ParityBits & 0xFFFFFF, DataBits);
  }
  writer.End();
  const std::uint64_t id = page.Read(SubframeId);
  if (page.Read(Preamble) != PreambleBits || id < 1 || id > 3) return std::nullopt;
  const auto time = static_cast<std::uint32_t>(page.Read(TimeCount));
  page.TakeOut(TimeWord);
  assembly.Put(static_cast<std::uint32_t>(id - 1), page, time);
  if (!assembly.Waits()) return std::nullopt;
  for (const Piece& issue : Issues) {
    if (assembly.Read(issue) != assembly.Read(Issues[0])) return std::nullopt;
  }
  assembly.SetOut();
  KeplerEphemerisRecord record;
  catalogue::MakeUnknown(record);
  ReadPages<Lnav>(assembly.Bytes(), record);
  constexpr std::uint32_t WeekCounts = 604'800 / 6;
  record.transmissionTime =
      static_cast<double>((assembly.TimeOf(0) + WeekCounts - 1) % WeekCounts * 6);
  const bool isQzss = subframe.system == SubframeSystem::Qzss;
  record.system = static_cast<std::uint8_t>(isQzss ? System::Qzss : System::Gps);
  if (isQzss) record.l2pDataFlag = Unknown<std::uint8_t>();  // there is no L2 P; always set
  record.satellite = subframe.satellite;
  record.rtcmMessage = 0;
  record.navigationMessage = static_cast<std::uint8_t>(Message::Lnav);
  return record;
}

}  // namespace navframe::ephemeris
