#include "rtcm/stations.h"

#include <array>
#include <initializer_list>

#include "catalogue/unknown_records.h"
#include "navframe/records_stations.h"
#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

using enum Wire;

#define P(...) NAVFRAME_FIELD(StationAntennaPointRecord, __VA_ARGS__)
constexpr double CoordinatesInMeter = 1e4;
constexpr auto AntennaPoint = std::to_array<FieldRow>({
    P(stationId, 12),
    P(itrfYear, 6),
    P(gps, 1),
    P(glonass, 1),
    P(galileo, 1),
    P(referenceStation, 1),
    P(x, 38, TwosComplement),
    P(oneOscillator, 1),
    Skipped(1),
    P(y, 38, TwosComplement),
    P(quarterCycle, 2),
    P(z, 38, TwosComplement),
});
constexpr auto AntennaHeight = std::to_array<FieldRow>({P(antennaHeight, 16)});
#undef P
static_assert(BitLength(AntennaPoint) == 140);

#define E(...) NAVFRAME_FIELD(StationEquipmentRecord, __VA_ARGS__)
constexpr auto EquipmentStation = std::to_array<FieldRow>({E(stationId, 12)});
constexpr auto Setup = std::to_array<FieldRow>({E(setupId, 8)});
#undef E

#define B(...) NAVFRAME_FIELD(StationGlonassBiasesRecord, __VA_ARGS__)
constexpr auto Biases = std::to_array<FieldRow>({B(stationId, 12), B(aligned, 1), Skipped(3)});
// As many of these as the mask behind the others names, from its highest bit on.
constexpr FieldRow BiasOf(FieldRow row) {
  row.absent = ~std::uint64_t{0x7FFF};
  return row;
}
constexpr double BiasesInMeter = 50;
constexpr auto SignalBiases = std::to_array<FieldRow>({
    BiasOf(B(l1Ca, 16, TwosComplement)),
    BiasOf(B(l1P, 16, TwosComplement)),
    BiasOf(B(l2Ca, 16, TwosComplement)),
    BiasOf(B(l2P, 16, TwosComplement)),
});
#undef B

#define T(...) NAVFRAME_FIELD(StationTextRecord, __VA_ARGS__)
constexpr auto Text = std::to_array<FieldRow>({
    T(stationId, 12),
    T(modifiedJulianDay, 16),
    T(secondsOfDay, 17),
    T(characters, 7),
});
#undef T

// Reads one field behind the other. Once one reaches beyond the message none is read any more.
class Reader {
 public:
  explicit Reader(const Frame& frame) : frame_(frame) {}

  void Fields(std::span<const FieldRow> rows, void* record) {
    const std::uint32_t from = bit_;
    if (Takes(BitLength(rows))) ReadFields(frame_, from, rows, record);
  }
  std::uint32_t Unsigned(std::uint32_t width) {
    const std::uint32_t from = bit_;
    if (!Takes(width)) return 0;
    return static_cast<std::uint32_t>(UnsignedBits(frame_.bytes, from, width));
  }
  // A text behind its length in bytes; one that has no room is none.
  template <std::size_t Width>
  std::uint8_t Text(char (&member)[Width]) {
    const std::uint32_t length = Unsigned(8);
    const std::uint32_t from = bit_;
    if (length >= Width) ok_ = false;
    if (!Takes(8 * length)) return 0;
    for (std::uint32_t i = 0; i < length; ++i) {
      member[i] = static_cast<char>(UnsignedBits(frame_.bytes, from + 8 * i, 8));
    }
    return static_cast<std::uint8_t>(length);
  }
  bool Ok() const { return ok_; }

 private:
  bool Takes(std::uint32_t bits) {
    ok_ = ok_ && frame_.Has(bit_, bits);
    if (ok_) bit_ += bits;
    return ok_;
  }

  const Frame& frame_;
  std::uint32_t bit_ = FirstFieldBit;
  bool ok_ = true;
};

// The quotient is the nearest number to what was sent, as a product with a fraction need not be.
void Divide(std::initializer_list<double*> members, double unitsInMeter) {
  for (double* const member : members) *member /= unitsInMeter;
}

void Read(std::uint32_t number, Reader& reader, StationAntennaPointRecord& record) {
  constexpr std::uint32_t WithHeight = 1006;
  reader.Fields(AntennaPoint, &record);
  if (number == WithHeight) reader.Fields(AntennaHeight, &record);
  Divide({&record.x, &record.y, &record.z, &record.antennaHeight}, CoordinatesInMeter);
  record.rtcmMessage = static_cast<std::uint16_t>(number);
}

void Read(std::uint32_t number, Reader& reader, StationEquipmentRecord& record) {
  constexpr std::uint32_t WithoutSerial = 1007;
  constexpr std::uint32_t WithReceiver = 1033;
  reader.Fields(EquipmentStation, &record);
  reader.Text(record.antenna);
  reader.Fields(Setup, &record);
  if (number != WithoutSerial) reader.Text(record.antennaSerial);
  if (number == WithReceiver) {
    reader.Text(record.receiver);
    reader.Text(record.firmware);
    reader.Text(record.receiverSerial);
  }
  record.rtcmMessage = static_cast<std::uint16_t>(number);
}

void Read(std::uint32_t, Reader& reader, StationGlonassBiasesRecord& record) {
  reader.Fields(Biases, &record);
  std::uint32_t mask = reader.Unsigned(4);
  for (const FieldRow& row : SignalBiases) {
    if ((mask & 8U) != 0) reader.Fields({&row, 1}, &record);
    mask <<= 1U;
  }
  Divide({&record.l1Ca, &record.l1P, &record.l2Ca, &record.l2P}, BiasesInMeter);
}

void Read(std::uint32_t, Reader& reader, StationTextRecord& record) {
  reader.Fields(Text, &record);
  record.length = reader.Text(record.text);
}

struct StationRow {
  std::uint32_t number;
  DecodeResult (*decode)(std::uint32_t number, const Frame& frame, Services& services);
};
template <class Record, std::uint32_t Kind>
constexpr StationRow Row(std::uint32_t number) {
  return {number, [](std::uint32_t message, const Frame& frame, Services& services) {
            Record record;
            catalogue::MakeUnknown(record);
            Reader reader(frame);
            Read(message, reader, record);
            if (!reader.Ok()) return DecodeResult{NavframeBadContent};
            record.tow = services.time.gpsTime.tow;
            record.week = services.time.gpsTime.week;
            services.sink.NoteDecoded(Kind);
            services.sink.PushCopy(Kind, record);
            return DecodeResult{};
          }};
}
constexpr StationRow Rows[] = {
    Row<StationAntennaPointRecord, StationIdAntennaPoint>(1005),
    Row<StationAntennaPointRecord, StationIdAntennaPoint>(1006),
    Row<StationEquipmentRecord, StationIdAntenna>(1007),
    Row<StationEquipmentRecord, StationIdAntenna>(1008),
    Row<StationTextRecord, StationIdText>(1029),
    Row<StationEquipmentRecord, StationIdReceiver>(1033),
    Row<StationGlonassBiasesRecord, StationIdGlonassBiases>(1230),
};

}  // namespace

std::optional<DecodeResult> DecodeWholeStation(std::uint32_t number, const Frame& frame,
                                               Services& services) {
  if (!services.dialect.standardRecords) return std::nullopt;
  for (const StationRow& row : Rows) {
    if (row.number == number) return row.decode(number, frame, services);
  }
  return std::nullopt;
}

}  // namespace navframe::rtcm
