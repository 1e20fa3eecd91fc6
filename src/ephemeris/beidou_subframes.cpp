#include "ephemeris/beidou_subframes.h"

#include <array>

#include "catalogue/unknown_records.h"
#include "ephemeris/delivery.h"
#include "ephemeris/page_rows.h"

namespace navframe::ephemeris {
namespace {

using enum Wire;

constexpr std::uint32_t Words = 10;
constexpr std::uint32_t SubframeBits = 224;

// The four check bits of 11 bits: the rest of a division by x^4 + x + 1.
constexpr auto CheckBits = [] {
  std::array<std::uint8_t, 1U << 11> table{};
  for (std::uint32_t data = 0; data < table.size(); ++data) {
    std::uint32_t rest = data << 4;
    for (std::uint32_t bit = 14; bit >= 4; --bit) {
      if ((rest >> bit & 1U) != 0) rest ^= 0b10011U << (bit - 4);
    }
    table[data] = static_cast<std::uint8_t>(rest);
  }
  return table;
}();

// Each word has the check bits of its two halves behind both; the first one is not coded but for
// its end.
bool CodesHold(const Subframe& subframe) {
  for (std::uint32_t i = 0; i < Words; ++i) {
    const std::uint32_t word = subframe.words[i];
    if (i == 0) {
      if (CheckBits[word >> 4 & 0x7FF] != (word & 15U)) return false;
    } else if (CheckBits[word >> 19 & 0x7FF] != (word >> 4 & 15U) ||
               CheckBits[word >> 8 & 0x7FF] != (word & 15U)) {
      return false;
    }
  }
  return true;
}

// A field by subframe, from 1 on, bit and length.
constexpr Piece At(std::uint32_t subframe, std::uint32_t bit, std::uint32_t bits) {
  return {static_cast<std::uint16_t>((subframe - 1) * SubframeBits + bit),
          static_cast<std::uint8_t>(bits)};
}

#define K(...) NAVFRAME_PAGE_FIELD(KeplerEphemerisRecord, __VA_ARGS__)
constexpr auto D1 = std::to_array<PageRow>({
    K(health, At(1, 38, 1)),
    K(issueOfClock, At(1, 39, 5)),
    K(accuracyIndex, At(1, 44, 4)),
    K(broadcastWeek, At(1, 48, 13)),
    K(toc, At(1, 61, 17), Unsigned, 8),
    K(groupDelay[0], At(1, 78, 10), TwosComplement, 1e-10),
    K(groupDelay[1], At(1, 88, 10), TwosComplement, 1e-10),
    K(af2, At(1, 162, 11), TwosComplement, 0x1p-66),
    K(af0, At(1, 173, 24), TwosComplement, 0x1p-33),
    K(af1, At(1, 197, 22), TwosComplement, 0x1p-50),
    K(issueOfData, At(1, 219, 5)),
    K(deltaN, At(2, 38, 16), TwosComplement, 0x1p-43 * Semicircle),
    K(cuc, At(2, 54, 18), TwosComplement, 0x1p-31),
    K(m0, At(2, 72, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(eccentricity, At(2, 104, 32), Unsigned, 0x1p-33),
    K(cus, At(2, 136, 18), TwosComplement, 0x1p-31),
    K(crc, At(2, 154, 18), TwosComplement, 0x1p-6),
    K(crs, At(2, 172, 18), TwosComplement, 0x1p-6),
    K(sqrtSemiMajorAxis, At(2, 190, 32), Unsigned, 0x1p-19),
    K(toe, At(2, 222, 2), Unsigned, 8, At(3, 38, 15)),
    K(i0, At(3, 53, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(cic, At(3, 85, 18), TwosComplement, 0x1p-31),
    K(omegaDot, At(3, 103, 24), TwosComplement, 0x1p-43 * Semicircle),
    K(cis, At(3, 127, 18), TwosComplement, 0x1p-31),
    K(idot, At(3, 145, 14), TwosComplement, 0x1p-43 * Semicircle),
    K(omega0, At(3, 159, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omega, At(3, 191, 32), TwosComplement, 0x1p-31 * Semicircle),
});

constexpr auto D2 = std::to_array<PageRow>({
    K(health, At(1, 42, 1)),
    K(issueOfClock, At(1, 43, 5)),
    K(accuracyIndex, At(1, 48, 4)),
    K(broadcastWeek, At(1, 52, 13)),
    K(toc, At(1, 65, 17), Unsigned, 8),
    K(groupDelay[0], At(1, 82, 10), TwosComplement, 1e-10),
    K(groupDelay[1], At(1, 92, 10), TwosComplement, 1e-10),
    K(af0, At(3, 80, 24), TwosComplement, 0x1p-33),
    K(af1, At(3, 104, 4), TwosComplement, 0x1p-50, At(4, 42, 18)),
    K(af2, At(4, 60, 11), TwosComplement, 0x1p-66),
    K(issueOfData, At(4, 71, 5)),
    K(deltaN, At(4, 76, 16), TwosComplement, 0x1p-43 * Semicircle),
    K(cuc, At(4, 92, 14), TwosComplement, 0x1p-31, At(5, 42, 4)),
    K(m0, At(5, 46, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(cus, At(5, 78, 18), TwosComplement, 0x1p-31),
    K(eccentricity, At(5, 96, 10), Unsigned, 0x1p-33, At(6, 42, 22)),
    K(sqrtSemiMajorAxis, At(6, 64, 32), Unsigned, 0x1p-19),
    K(cic, At(6, 96, 10), TwosComplement, 0x1p-31, At(7, 42, 8)),
    K(cis, At(7, 50, 18), TwosComplement, 0x1p-31),
    K(toe, At(7, 68, 17), Unsigned, 8),
    K(i0, At(7, 85, 21), TwosComplement, 0x1p-31 * Semicircle, At(8, 42, 11)),
    K(crc, At(8, 53, 18), TwosComplement, 0x1p-6),
    K(crs, At(8, 71, 18), TwosComplement, 0x1p-6),
    K(omegaDot, At(8, 89, 19), TwosComplement, 0x1p-43 * Semicircle, At(9, 42, 5)),
    K(omega0, At(9, 47, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omega, At(9, 79, 27), TwosComplement, 0x1p-31 * Semicircle, At(10, 42, 5)),
    K(idot, At(10, 47, 14), TwosComplement, 0x1p-43 * Semicircle),
});
#undef K
constexpr Piece Preamble = At(1, 0, 11);
constexpr Piece SubframeId = At(1, 15, 3);
constexpr Piece SecondOfWeek = At(1, 18, 20);
constexpr Piece PageNumber = At(1, 38, 4);  // of D2

// The data of a subframe whose codes hold.
std::optional<Page<SubframeBits>> Read(const Subframe& subframe) {
  constexpr std::uint64_t PreambleBits = 0x712;
  if (subframe.count != Words || !CodesHold(subframe)) return std::nullopt;
  Page<SubframeBits> page;
  PageWriter writer(page.bytes.data());
  writer.Put(subframe.words[0] >> 4 & 0x3FFFFFF, 26);
  for (std::uint32_t i = 1; i < Words; ++i) writer.Put(subframe.words[i] >> 8 & 0x3FFFFF, 22);
  writer.End();
  if (page.Read(Preamble) != PreambleBits) return std::nullopt;
  return page;
}

// The record of a set whose parts were sent `seconds` behind each other, one by one.
template <const auto& Rows, std::uint32_t Parts>
std::optional<KeplerEphemerisRecord> Completed(Message message, std::uint32_t seconds,
                                               const Subframe& subframe,
                                               Assembly<Parts, SubframeBits>& assembly) {
  if (!assembly.Waits()) return std::nullopt;
  for (std::uint32_t i = 1; i < Parts; ++i) {
    if (assembly.TimeOf(i) != assembly.TimeOf(i - 1) + seconds) return std::nullopt;
  }
  assembly.SetOut();
  KeplerEphemerisRecord record;
  catalogue::MakeUnknown(record);
  ReadPages<Rows>(assembly.Bytes(), record);
  record.system = static_cast<std::uint8_t>(System::BeiDou);
  record.satellite = subframe.satellite;
  record.rtcmMessage = 0;
  record.navigationMessage = static_cast<std::uint8_t>(message);
  record.transmissionTime = static_cast<double>(assembly.TimeOf(0));
  return record;
}

}  // namespace

std::optional<KeplerEphemerisRecord> TakeD1(const Subframe& subframe, D1Assembly& assembly) {
  constexpr std::uint32_t Seconds = 6;
  auto page = Read(subframe);
  if (!page) return std::nullopt;
  const std::uint64_t id = page->Read(SubframeId);
  if (id < 1 || id > 3) return std::nullopt;
  const auto second = static_cast<std::uint32_t>(page->TakeOut(SecondOfWeek));
  assembly.Put(static_cast<std::uint32_t>(id - 1), *page, second);
  return Completed<D1>(Message::D1, Seconds, subframe, assembly);
}

std::optional<KeplerEphemerisRecord> TakeD2(const Subframe& subframe, D2Assembly& assembly) {
  constexpr std::uint32_t Seconds = 3;
  auto page = Read(subframe);
  if (!page || page->Read(SubframeId) != 1) return std::nullopt;
  const std::uint64_t number = page->Read(PageNumber);
  if (number < 1 || number > 10) return std::nullopt;
  const auto second = static_cast<std::uint32_t>(page->TakeOut(SecondOfWeek));
  assembly.Put(static_cast<std::uint32_t>(number - 1), *page, second);
  return Completed<D2>(Message::D2, Seconds, subframe, assembly);
}

}  // namespace navframe::ephemeris
