#include "nmea/satellite_sentences.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>
#include <span>
#include <type_traits>

#include "base/characters.h"
#include "base/unknown.h"
#include "nmea/field.h"

namespace navframe::nmea {
namespace {

struct TalkerRow {
  std::string_view talker;
  int systemId;
};
constexpr int MixedSystems = 15;
constexpr TalkerRow GsaTalkers[] = {
    {"GN", MixedSystems}, {"BD", 4}, {"GB", 4}, {"GP", 1}, {"GL", 2}};

struct AddressRow {
  std::string_view address;
  int systemId;
};
constexpr AddressRow GsvAddresses[] = {{"$GPGSV", 1}, {"$BDGSV", 4}, {"$GBGSV", 4}, {"$GLGSV", 2},
                                       {"$GAGSV", 3}, {"$GQGSV", 5}, {"$GIGSV", 6}};
constexpr int Glonass = 2;

constexpr std::size_t FirstUsed = 3;
constexpr std::size_t MostUsed = std::size(GsaRecord{}.usedSatellites);
constexpr std::size_t GsaFields = 18;
constexpr std::size_t GsaFieldsWithSystem = 19;

int GsaSystem(FieldReader& fields) {
  if (fields.Count() == GsaFieldsWithSystem) {
    int systemId = -1;
    fields.Int(18, systemId);
    return systemId;
  }
  const std::string_view talker = fields[0].substr(1, 2);
  for (const TalkerRow& row : GsaTalkers) {
    if (talker == row.talker) return row.systemId;
  }
  return -1;  // stored as the unknown value
}

// The system behind the numbers of a mixed sentence, told by its first used satellite alone.
constexpr int SystemOfNumber(int number) {
  if (number < 93) return 1;
  if (number <= 136) return 3;
  if (number <= 192 || number == 197) return 4;
  return 5;
}

struct CarrierToNoise {
  std::uint8_t whole = Unknown<std::uint8_t>();
  std::uint8_t hundredths = 0;  // kept where all is
};

// Rare, and out of the way of the loop that asks.
[[gnu::noinline]] CarrierToNoise ReadDecimals(FieldReader& fields, std::size_t index) {
  double value;
  CarrierToNoise cn0;
  if (!fields.Take(index, RoomyToDouble(fields[index]), value)) return cn0;
  cn0.whole = static_cast<std::uint8_t>(Truncated(value));
  const double fraction = value - cn0.whole;
  if (fields.HasDialect().wholeGsv && fraction > 0 && fraction < 1) {
    cn0.hundredths = static_cast<std::uint8_t>(std::min(fraction * 100 + 0.5, 99.0));
  }
  return cn0;
}

// A whole number or a decimal one, of which the integer part counts for the exports.
CarrierToNoise ReadCarrierToNoise(FieldReader& fields, std::size_t index) {
  const std::string_view field = fields[index];
  if (field.empty()) return {};
  if (field.size() == 2 && IsDigit(field[0]) && IsDigit(field[1])) {
    return {static_cast<std::uint8_t>((field[0] - '0') * 10 + (field[1] - '0'))};
  }
  return ReadDecimals(fields, index);
}

// Talkers whose system the exports do not know everywhere.
constexpr TalkerRow FurtherTalkers[] = {{"GA", 3}, {"GQ", 5}, {"QZ", 5}, {"PQ", 5}, {"GI", 6}};

int FurtherSystem(const FieldReader& fields) {
  const std::string_view talker = fields[0].substr(1, 2);
  for (const TalkerRow& row : FurtherTalkers) {
    if (talker == row.talker) return row.systemId;
  }
  return -1;  // stored as the unknown value
}

inline std::optional<int> GsvSystem(std::string_view address) {
  for (const AddressRow& row : GsvAddresses) {
    if (address == row.address) return row.systemId;
  }
  return std::nullopt;
}

// One hexadecimal digit in the standard, of which the exports know the decimal ones.
template <bool KeepsAll>
std::uint8_t SignalId(std::string_view field) {
  if (field.size() == 1 && IsDigit(field[0])) return static_cast<std::uint8_t>(field[0] - '0');
  if (KeepsAll && field.size() == 1 && field[0] >= 'A' && field[0] <= 'F') {
    return static_cast<std::uint8_t>(field[0] - 'A' + 10);
  }
  return static_cast<std::uint8_t>(ToIntOrMinimum(field));
}

// Rare, and out of the way of the loop that asks.
[[gnu::noinline]] bool IsEmptyBlock(const FieldReader& fields, std::size_t index) {
  return fields[index].empty() && fields[index + 1].empty() && fields[index + 2].empty() &&
         fields[index + 3].empty();
}

// What nearly all blocks are: two digits, two, three, and two or none, read by two loads. False for
// blocks of another shape.
inline bool ReadPaddedBlock(const Fields& fields, std::size_t index, GsvBlock& block) {
  if constexpr (std::endian::native == std::endian::big) return false;
  constexpr std::uint32_t Lengths = 0x00'03'02'02;
  constexpr std::uint64_t NoDigits = 0x3030'2C30'302C'3030;  // "00,00,00"
  constexpr std::uint32_t NoTail = 0x3030'2C30;              // "0,00"
  const std::uint32_t lengths = fields.FourLengths(index);
  if ((lengths & ~0x02'00'00'00U) != Lengths) return false;
  const bool hasCn0 = lengths != Lengths;
  const char* const text = fields.Present(index).data();
  std::uint64_t digits;
  std::uint32_t tail;
  std::memcpy(&digits, text, sizeof digits);
  std::memcpy(&tail, text + sizeof digits, sizeof tail);
  digits ^= NoDigits;
  tail ^= NoTail;
  if (!hasCn0) tail &= 0xFF;
  const std::uint64_t bad = (digits + 0x7676767676767676) | digits | ((tail + 0x76767676U) | tail);
  if ((bad & 0x8080808080808080) != 0) return false;
  const std::uint64_t pairs = digits * 10 + (digits >> 8);
  const std::uint32_t cn0 = (tail >> 16 & 0xFF) * 10 + (tail >> 24);
  block = {.numbered = true,
           .hasElevation = true,
           .hasAzimuth = true,
           .isWide = false,
           .number = static_cast<std::uint8_t>(pairs),
           .elevation = static_cast<std::uint8_t>(pairs >> 24),
           .azimuth = static_cast<std::uint16_t>((pairs >> 48 & 0xFF) * 10 + (tail & 0xFF)),
           .cn0 = hasCn0 ? static_cast<std::uint8_t>(cn0) : Unknown<std::uint8_t>(),
           .cn0Hundredths = 0};
  return true;
}

// False for one with a number that does not convert.
[[gnu::noinline]] bool ReadBlock(FieldReader& fields, std::size_t index, GsvBlock& block) {
  block = {};
  const std::string_view number = fields[index];
  block.numbered = !number.empty();
  const bool isWhole = !block.numbered || fields.Take(index, FieldToInt(number), block.number);
  block.elevation = block.azimuth = Unknown<std::uint16_t>();
  block.hasElevation = fields.Int(index + 1, block.elevation);
  block.hasAzimuth = fields.Int(index + 2, block.azimuth);
  const CarrierToNoise cn0 = ReadCarrierToNoise(fields, index + 3);
  block.cn0 = cn0.whole;
  block.cn0Hundredths = cn0.hundredths;
  block.isWide = WideView::IsWide(block);
  return isWhole;
}

// Whether nothing of a sentence is to be kept, because a field of it does not convert.
bool IsGivenUp(const FieldReader& fields) {
  return fields.HasFault() && !fields.HasDialect().keepsSentences;
}

// What satellites of an unknown system are, nobody can say.
template <class Record>
void MarkAll(int systemId, std::span<const int> used, NmeaContext& context, Record& record) {
  using Number = std::remove_reference_t<decltype(record.usedSatellites[0])>;
  for (std::size_t i = 0; i < used.size(); ++i) {
    const bool fits = used[i] >= 0 && used[i] < Unknown<Number>();
    if (!fits) record.usedSatellites[i] = Unknown<Number>();
    if (systemId >= 0) context.wide.MarkUsed(systemId, used[i], context.satellites);
  }
}

// Adds the signals of a sentence. The two ways of it are told apart here alone, so that neither
// pays for the other.
template <bool KeepsAll>
void Accumulate(NmeaContext& context, FieldReader& fields, const TimeManager& time) {
  constexpr std::size_t FirstBlock = 4;
  constexpr std::size_t BlockFields = 4;
  const std::size_t count = fields.Count();

  // Everything is converted before anything is stored, so that a bad field leaves no half.
  auto systemId = GsvSystem(fields[0]);
  if (KeepsAll && !systemId) systemId = FurtherSystem(fields);
  const bool hasSignalId = count % BlockFields == 1;
  const auto signalId =
      hasSignalId && systemId ? SignalId<KeepsAll>(fields[count - 1]) : std::uint8_t{0};
  // The exports leave out the last block of a sentence without a signal id; hosts rely on it.
  const std::size_t end = count - BlockFields + (KeepsAll && !hasSignalId ? 1 : 0);
  std::array<GsvBlock, LongestStarOffset / BlockFields> blocks;
  std::size_t blockCount = 0;
  for (std::size_t i = FirstBlock; systemId && i < end; i += BlockFields) {
    if (ReadPaddedBlock(fields.All(), i, blocks[blockCount])) [[likely]] {
      ++blockCount;
      continue;
    }
    const bool isSatellite =
        !fields[i].empty() || *systemId == Glonass || (KeepsAll && !IsEmptyBlock(fields, i));
    if (!isSatellite) continue;
    if (ReadBlock(fields, i, blocks[blockCount])) ++blockCount;
  }
  if (IsGivenUp(fields)) return;

  if (!KeepsAll && context.satellites.Full()) context.satellites.Reset();
  context.satellites.StampHeader(time);
  for (std::size_t i = 0; i < blockCount; ++i) {
    if constexpr (KeepsAll) {
      context.wide.AddSignal(*systemId, signalId, blocks[i], context.satellites);
    } else {
      context.satellites.AddSignal(*systemId, signalId, blocks[i]);
    }
  }
}

}  // namespace

bool IsGsa(const Fields& fields) {
  return fields.Count() == GsaFields || fields.Count() == GsaFieldsWithSystem;
}

bool IsGsv(const Fields& fields) { return fields.Count() >= 5 && fields.Count() % 4 <= 1; }

bool IsWideGsa(const Fields& fields) {
  if (!IsGsa(fields) || !fields.HasLongerThanTwo(FirstUsed, MostUsed)) return false;
  for (std::size_t i = FirstUsed; i < FirstUsed + MostUsed; ++i) {
    const std::string_view field = fields[i];
    if (!field.empty() && FieldToInt(field).value >= Unknown<std::uint8_t>()) return true;
  }
  return false;
}

namespace {

// $GNGSA,A,3,80,71,73,79,69,,,,,,,,1.83,1.09,1.47,2*hh
template <class Record>
void ReadGsa(NmeaContext& context, FieldReader& fields, Record& record) {
  using Number = std::remove_reference_t<decltype(record.usedSatellites[0])>;
  int systemId = GsaSystem(fields);
  if (fields[1] == "A") record.selectionMode = 1;
  if (fields[1] == "M" && fields.HasDialect().standardRecords) record.selectionMode = 0;
  fields.Int(2, record.fixType);
  std::array<int, MostUsed> numbers;
  std::size_t count = 0;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t index = FirstUsed + i;
    const std::string_view field = fields[index];
    if (field.empty() || !fields.Take(index, FieldToInt(field), numbers[count])) continue;
    record.usedSatellites[count] = static_cast<Number>(numbers[count]);
    ++count;
  }
  const std::span<const int> used(numbers.data(), count);
  record.usedCount = static_cast<std::uint8_t>(count);
  if (fields.HasDialect().gsaSystemByView) {
    const bool isMixed = systemId == MixedSystems && fields.Count() == GsaFields;
    if (isMixed) systemId = context.seen.SystemOf(used);
    if (!isMixed && systemId < 0) systemId = FurtherSystem(fields);
  } else if (systemId == MixedSystems && !used.empty()) {
    systemId = SystemOfNumber(used.front());
  }
  record.systemId = static_cast<std::uint32_t>(systemId);
  fields.DoubleAsFloat(15, record.pdop);
  fields.DoubleAsFloat(16, record.hdop);
  fields.DoubleAsFloat(17, record.vdop);

  if (fields.HasDialect().wholeGsv) return MarkAll(systemId, used, context, record);
  if (IsGivenUp(fields)) return;
  if (context.satellites.Full()) context.satellites.Reset();
  for (const int number : used) context.satellites.MarkUsed(systemId, number);
}

}  // namespace

// Flattened, as GSV: three of four sentences are one of them.
[[gnu::flatten]] void ParseGsa(NmeaContext& context, FieldReader& fields, GsaRecord& record) {
  ReadGsa(context, fields, record);
}
void ParseWideGsa(NmeaContext& context, FieldReader& fields, WideGsaRecord& record) {
  ReadGsa(context, fields, record);
}

// $GPGSV,3,1,11,03,03,111,00,04,15,270,00,06,01,010,00,13,06,292,00,1*hh
[[gnu::flatten]] void AccumulateGsv(NmeaContext& context, FieldReader& fields,
                                    const TimeManager& time) {
  if (fields.HasDialect().wholeGsv) return Accumulate<true>(context, fields, time);
  Accumulate<false>(context, fields, time);
}

}  // namespace navframe::nmea
