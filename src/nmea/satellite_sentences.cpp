#include "nmea/satellite_sentences.h"

#include <array>
#include <optional>

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

constexpr std::size_t GsaFields = 18;
constexpr std::size_t GsaFieldsWithSystem = 19;

int GsaSystem(const Fields& fields) {
  if (fields.Count() == GsaFieldsWithSystem) {
    return fields[18].empty() ? -1 : ToInt(fields[18]);
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

// A whole number or a decimal one, of which the integer part counts.
std::uint8_t CarrierToNoise(std::string_view field) {
  if (field.size() == 2 && IsDigit(field[0]) && IsDigit(field[1])) {
    return static_cast<std::uint8_t>((field[0] - '0') * 10 + (field[1] - '0'));
  }
  return static_cast<std::uint8_t>(Truncated(ToDouble(field)));
}

std::optional<int> GsvSystem(std::string_view address) {
  for (const AddressRow& row : GsvAddresses) {
    if (address == row.address) return row.systemId;
  }
  return std::nullopt;
}

GsvBlock ReadBlock(const Fields& fields, std::size_t index) {
  GsvBlock block{};
  const std::string_view number = fields[index];
  const std::string_view elevation = fields[index + 1];
  const std::string_view azimuth = fields[index + 2];
  const std::string_view cn0 = fields[index + 3];
  block.numbered = !number.empty();
  block.hasElevation = !elevation.empty();
  block.hasAzimuth = !azimuth.empty();
  ReadInt(number, block.number);
  ReadInt(elevation, block.elevation);
  ReadInt(azimuth, block.azimuth);
  block.cn0 = cn0.empty() ? Unknown<std::uint8_t>() : CarrierToNoise(cn0);
  return block;
}

}  // namespace

bool IsGsa(const Fields& fields) {
  return fields.Count() == GsaFields || fields.Count() == GsaFieldsWithSystem;
}

bool IsGsv(const Fields& fields) { return fields.Count() >= 5 && fields.Count() % 4 <= 1; }

// $GNGSA,A,3,80,71,73,79,69,,,,,,,,1.83,1.09,1.47,2*hh
void ParseGsa(NmeaContext& context, const Fields& fields, GsaRecord& record) {
  constexpr std::size_t FirstUsed = 3;
  int systemId = GsaSystem(fields);
  if (fields[1] == "A") record.selectionMode = 1;
  ReadInt(fields[2], record.fixType);
  std::array<int, std::size(GsaRecord{}.usedSatellites)> numbers;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (fields[FirstUsed + i].empty()) continue;
    const int number = FieldToInt(fields[FirstUsed + i]);
    if (systemId == MixedSystems && record.usedCount == 0) systemId = SystemOfNumber(number);
    numbers[record.usedCount] = number;
    record.usedSatellites[record.usedCount++] = static_cast<std::uint8_t>(number);
  }
  record.systemId = static_cast<std::uint32_t>(systemId);
  ReadDoubleAsFloat(fields[15], record.pdop);
  ReadDoubleAsFloat(fields[16], record.hdop);
  ReadDoubleAsFloat(fields[17], record.vdop);

  if (context.satellites.Full()) context.satellites.Reset();
  for (std::size_t i = 0; i < record.usedCount; ++i) {
    context.satellites.MarkUsed(systemId, numbers[i]);
  }
}

// $GPGSV,3,1,11,03,03,111,00,04,15,270,00,06,01,010,00,13,06,292,00,1*hh
void AccumulateGsv(NmeaContext& context, const Fields& fields, const TimeManager& time) {
  constexpr std::size_t FirstBlock = 4;
  constexpr std::size_t BlockFields = 4;
  const std::size_t count = fields.Count();

  // Everything is converted before anything is stored, so that a bad field leaves no half.
  const auto systemId = GsvSystem(fields[0]);
  const bool hasSignalId = count % BlockFields == 1;
  const int signalId = hasSignalId && systemId ? ToIntOrMinimum(fields[count - 1]) : 0;
  std::array<GsvBlock, LongestStarOffset / BlockFields> blocks;
  std::size_t blockCount = 0;
  // Without a signal id this leaves out the last block of the sentence; hosts rely on it.
  for (std::size_t i = FirstBlock; systemId && i < count - BlockFields; i += BlockFields) {
    if (fields[i].empty() && *systemId != Glonass) continue;
    blocks[blockCount++] = ReadBlock(fields, i);
  }

  if (context.satellites.Full()) context.satellites.Reset();
  context.satellites.StampHeader(time);
  for (std::size_t i = 0; i < blockCount; ++i) {
    context.satellites.AddSignal(*systemId, static_cast<std::uint8_t>(signalId), blocks[i]);
  }
}

}  // namespace navframe::nmea
