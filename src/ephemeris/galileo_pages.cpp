#include "ephemeris/galileo_pages.h"

#include <array>

#include "base/crc24q.h"
#include "catalogue/unknown_records.h"
#include "ephemeris/delivery.h"
#include "ephemeris/page_rows.h"

namespace navframe::ephemeris {
namespace {

using enum Wire;

constexpr std::uint32_t Words = 8;
constexpr std::uint32_t SentBits = 32 * Words;
constexpr std::uint32_t CrcBits = 24;

Page<SentBits> AsSent(const Subframe& subframe) {
  Page<SentBits> sent;
  PageWriter writer(sent.bytes.data());
  for (std::uint32_t i = 0; i < Words; ++i) writer.Put(subframe.words[i], 32);
  return sent;
}

[[gnu::always_inline]] inline void Copy(const Page<SentBits>& from, std::uint32_t bit,
                                        std::uint32_t bits, PageWriter& to) {
  for (; bits > 32; bit += 32, bits -= 32) to.Put(PageBits(from.bytes.data(), bit, 32), 32);
  to.Put(PageBits(from.bytes.data(), bit, bits), bits);
}

// Whether a CRC holds: zero bits in front of a message fill its first byte up and change nothing.
template <std::uint32_t Bits>
bool CrcHolds(const Page<Bits>& message, std::uint64_t crc) {
  return Crc24q::Of(message.bytes.data(), Bits / 8) == crc;
}

// A field by word or page, from 1 on, first bit and length.
template <std::uint32_t Bits>
constexpr Piece At(std::uint32_t page, std::uint32_t bit, std::uint32_t bits) {
  return {static_cast<std::uint16_t>((page - 1) * Bits + bit), static_cast<std::uint8_t>(bits)};
}
constexpr auto W = At<128>;
constexpr auto P = At<216>;

#define K(...) NAVFRAME_PAGE_FIELD(KeplerEphemerisRecord, __VA_ARGS__)
constexpr auto Inav = std::to_array<PageRow>({
    K(issueOfData, W(1, 6, 10)),
    K(toe, W(1, 16, 14), Unsigned, 60),
    K(m0, W(1, 30, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(eccentricity, W(1, 62, 32), Unsigned, 0x1p-33),
    K(sqrtSemiMajorAxis, W(1, 94, 32), Unsigned, 0x1p-19),
    K(omega0, W(2, 16, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(i0, W(2, 48, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omega, W(2, 80, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(idot, W(2, 112, 14), TwosComplement, 0x1p-43 * Semicircle),
    K(omegaDot, W(3, 16, 24), TwosComplement, 0x1p-43 * Semicircle),
    K(deltaN, W(3, 40, 16), TwosComplement, 0x1p-43 * Semicircle),
    K(cuc, W(3, 56, 16), TwosComplement, 0x1p-29),
    K(cus, W(3, 72, 16), TwosComplement, 0x1p-29),
    K(crc, W(3, 88, 16), TwosComplement, 0x1p-5),
    K(crs, W(3, 104, 16), TwosComplement, 0x1p-5),
    K(accuracyIndex, W(3, 120, 8)),
    K(satellite, W(4, 16, 6)),
    K(cic, W(4, 22, 16), TwosComplement, 0x1p-29),
    K(cis, W(4, 38, 16), TwosComplement, 0x1p-29),
    K(toc, W(4, 54, 14), Unsigned, 60),
    K(af0, W(4, 68, 31), TwosComplement, 0x1p-34),
    K(af1, W(4, 99, 21), TwosComplement, 0x1p-46),
    K(af2, W(4, 120, 6), TwosComplement, 0x1p-59),
    K(groupDelay[0], W(5, 47, 10), TwosComplement, 0x1p-32),
    K(groupDelay[1], W(5, 57, 10), TwosComplement, 0x1p-32),
    K(signalHealth[2], W(5, 67, 2)),
    K(signalHealth[0], W(5, 69, 2)),
    K(dataInvalid[2], W(5, 71, 1)),
    K(dataInvalid[0], W(5, 72, 1)),
    K(broadcastWeek, W(5, 73, 12)),
});
constexpr Piece InavTime = W(1, 85, 20);  // of word 5
constexpr Piece InavIssues[] = {W(1, 6, 10), W(2, 6, 10), W(3, 6, 10), W(4, 6, 10)};

constexpr auto Fnav = std::to_array<PageRow>({
    K(satellite, P(1, 6, 6)),
    K(issueOfData, P(1, 12, 10)),
    K(toc, P(1, 22, 14), Unsigned, 60),
    K(af0, P(1, 36, 31), TwosComplement, 0x1p-34),
    K(af1, P(1, 67, 21), TwosComplement, 0x1p-46),
    K(af2, P(1, 88, 6), TwosComplement, 0x1p-59),
    K(accuracyIndex, P(1, 94, 8)),
    K(groupDelay[0], P(1, 143, 10), TwosComplement, 0x1p-32),
    K(signalHealth[1], P(1, 153, 2)),
    K(broadcastWeek, P(1, 155, 12)),
    K(dataInvalid[1], P(1, 187, 1)),
    K(m0, P(2, 16, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omegaDot, P(2, 48, 24), TwosComplement, 0x1p-43 * Semicircle),
    K(eccentricity, P(2, 72, 32), Unsigned, 0x1p-33),
    K(sqrtSemiMajorAxis, P(2, 104, 32), Unsigned, 0x1p-19),
    K(omega0, P(2, 136, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(idot, P(2, 168, 14), TwosComplement, 0x1p-43 * Semicircle),
    K(i0, P(3, 16, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(omega, P(3, 48, 32), TwosComplement, 0x1p-31 * Semicircle),
    K(deltaN, P(3, 80, 16), TwosComplement, 0x1p-43 * Semicircle),
    K(cuc, P(3, 96, 16), TwosComplement, 0x1p-29),
    K(cus, P(3, 112, 16), TwosComplement, 0x1p-29),
    K(crc, P(3, 128, 16), TwosComplement, 0x1p-5),
    K(crs, P(3, 144, 16), TwosComplement, 0x1p-5),
    K(toe, P(3, 160, 14), Unsigned, 60),
    K(cic, P(4, 16, 16), TwosComplement, 0x1p-29),
    K(cis, P(4, 32, 16), TwosComplement, 0x1p-29),
});
#undef K
constexpr Piece FnavTimes[] = {P(1, 167, 20), P(1, 194, 20), P(1, 186, 20), P(1, 189, 20)};
constexpr Piece FnavIssues[] = {P(1, 12, 10), P(2, 6, 10), P(3, 6, 10), P(4, 6, 10)};

// The record of a set whose parts have the same issue.
template <const auto& Rows, const auto& Issues, class Set>
std::optional<KeplerEphemerisRecord> Completed(Message message, std::uint32_t pageOfTime,
                                               const Subframe& subframe, Set& assembly) {
  if (!assembly.Waits()) return std::nullopt;
  for (const Piece& issue : Issues) {
    if (assembly.Read(issue) != assembly.Read(Issues[0])) return std::nullopt;
  }
  assembly.SetOut();
  KeplerEphemerisRecord record;
  catalogue::MakeUnknown(record);
  ReadPages<Rows>(assembly.Bytes(), record);
  if (record.satellite != subframe.satellite) return std::nullopt;  // an orbit of another one
  record.system = static_cast<std::uint8_t>(System::Galileo);
  record.rtcmMessage = 0;
  record.navigationMessage = static_cast<std::uint8_t>(message);
  record.transmissionTime = static_cast<double>(assembly.TimeOf(pageOfTime));
  return record;
}

}  // namespace

std::optional<KeplerEphemerisRecord> TakeInav(const Subframe& subframe, InavAssembly& assembly) {
  if (subframe.count != Words) return std::nullopt;
  const Page<SentBits> sent = AsSent(subframe);
  // An even part in the first half, an odd one in the second, none of an alert.
  constexpr std::uint32_t Half = SentBits / 2;
  constexpr std::uint64_t Even = 0b00;
  constexpr std::uint64_t Odd = 0b10;
  if (sent.Read({0, 2}) != Even || sent.Read({Half, 2}) != Odd) return std::nullopt;
  const std::uint64_t type = sent.Read({2, 6});
  if (type < 1 || type > 5) return std::nullopt;
  // The CRC is of 114 bits of the one and 82 of the other.
  constexpr std::uint32_t EvenBits = 114;
  constexpr std::uint32_t OddBits = 82;
  constexpr std::uint32_t Filling = 4;
  Page<Filling + EvenBits + OddBits> checked;
  PageWriter all(checked.bytes.data());
  all.Put(0, Filling);
  Copy(sent, 0, EvenBits, all);
  Copy(sent, Half, OddBits, all);
  all.End();
  if (!CrcHolds(checked, sent.Read({Half + OddBits, CrcBits}))) return std::nullopt;
  Page<128> word;
  PageWriter data(word.bytes.data());
  Copy(sent, 2, EvenBits - 2, data);
  Copy(sent, Half + 2, 16, data);
  data.End();
  const auto time = static_cast<std::uint32_t>(type == 5 ? word.TakeOut(InavTime) : 0);
  assembly.Put(static_cast<std::uint32_t>(type - 1), word, time);
  return Completed<Inav, InavIssues>(Message::Inav, 4, subframe, assembly);
}

std::optional<KeplerEphemerisRecord> TakeFnav(const Subframe& subframe, FnavAssembly& assembly) {
  if (subframe.count != Words) return std::nullopt;
  const Page<SentBits> sent = AsSent(subframe);
  const std::uint64_t type = sent.Read({0, 6});
  if (type < 1 || type > 4) return std::nullopt;
  constexpr std::uint32_t PageBits = 214;
  constexpr std::uint32_t Filling = 2;
  Page<Filling + PageBits> checked;
  PageWriter all(checked.bytes.data());
  all.Put(0, Filling);
  Copy(sent, 0, PageBits, all);
  all.End();
  if (!CrcHolds(checked, sent.Read({PageBits, CrcBits}))) return std::nullopt;
  Page<216> page;
  PageWriter data(page.bytes.data());
  Copy(sent, 0, PageBits, data);
  data.End();
  const auto time = static_cast<std::uint32_t>(page.TakeOut(FnavTimes[type - 1]));
  assembly.Put(static_cast<std::uint32_t>(type - 1), page, time);
  return Completed<Fnav, FnavIssues>(Message::Fnav, 0, subframe, assembly);
}

}  // namespace navframe::ephemeris
