#include "rtcm/rtcm_decoder.h"

#include "rtcm/ephemeris.h"
#include "rtcm/station_messages.h"
#include "rtcm/subtype_table.h"
#include "time/true_clock.h"

namespace navframe::rtcm {
namespace {

// Message number, the filter value that stands for it, decoder.
template <class Ephemeris, Ephemeris (*Decode)(const Frame&)>
void DecodeAndDrop(const Frame& frame) {
  [[maybe_unused]] const Ephemeris scratch = Decode(frame);
}
struct EphemerisRow {
  std::uint32_t number;
  std::uint32_t filterValue;
  void (*decode)(const Frame& frame);
};
constexpr EphemerisRow EphemerisRows[] = {
    {1019, 55, DecodeAndDrop<KeplerEphemeris, DecodeGpsEphemeris>},
    {1042, 58, DecodeAndDrop<KeplerEphemeris, DecodeBeiDouEphemeris>},
    {1044, 59, DecodeAndDrop<KeplerEphemeris, DecodeQzssEphemeris>},
    {1046, 57, DecodeAndDrop<KeplerEphemeris, DecodeGalileoEphemeris>},
    {1020, 56, DecodeAndDrop<GlonassEphemeris, DecodeGlonassEphemeris>},
};

// Where an ephemeris has its week, and what is known of it. Weeks of Galileo and BeiDou count on
// for more than a hundred years; ten bits of GPS roll over every twenty.
struct WeekRow {
  std::uint32_t number;
  std::uint32_t bit;  // behind the message number
  std::uint32_t bits;
  std::int64_t firstWeek;  // GPS week of week 0
};
constexpr WeekRow WeekRows[] = {
    {1019, 6, 10, 0},    {1044, 434, 10, 0},   // GPS, QZSS
    {1045, 6, 12, 1024}, {1046, 6, 12, 1024},  // Galileo
    {1042, 6, 13, 1356},                       // BeiDou
};

// The week of an ephemeris, where nothing better tells one.
void KeepWeek(std::uint32_t number, const Frame& frame, DecoderClock& clock) {
  constexpr std::uint32_t GlonassNumber = 1020;
  constexpr std::int64_t AllWeeks = 65536;
  if (number == GlonassNumber) {
    const GlonassEphemeris ephemeris = DecodeGlonassEphemeris(frame);
    if (ephemeris.n4 == 0 || ephemeris.nt == 0) return;  // of the first satellites
    const std::int64_t week = true_clock::WeekOfGlonass(static_cast<std::int64_t>(ephemeris.n4),
                                                        static_cast<std::int64_t>(ephemeris.nt),
                                                        static_cast<std::int64_t>(ephemeris.tb));
    return true_clock::SetEphemerisWeek(week, AllWeeks, NavframeTimeFromRtcm, clock);
  }
  for (const WeekRow& row : WeekRows) {
    const std::uint32_t bit = FirstFieldBit + row.bit;
    if (row.number != number || !frame.Has(bit, row.bits)) continue;
    const auto week = static_cast<std::int64_t>(UnsignedBits(frame.bytes, bit, row.bits));
    true_clock::SetEphemerisWeek(row.firstWeek + week, std::int64_t{1} << row.bits,
                                 NavframeTimeFromRtcm, clock);
  }
}

// The reverse of every other filter test, on purpose: an ephemeris is decoded only while the
// filter asks for something else, and what was decoded is dropped. None ever becomes a record.
DecodeResult DecodeEphemeris(const EphemerisRow& row, const Frame& frame, const RecordSink& sink) {
  if (!sink.Passes(row.filterValue)) row.decode(frame);
  return {NavframeNoKind};
}

}  // namespace

std::optional<DecodeResult> RtcmDecoder::DecodeObservations(std::uint32_t number,
                                                            const Frame& frame) {
  // Nothing is half done where there is no memory.
  if (observed_ == nullptr) observed_ = std::make_unique<ObservationHistory>();
  if (auto result = DecodeMsmObservations(number, frame, *observed_, services_)) return result;
  KeepChannel(number, frame, *observed_);
  return DecodeRtkObservations(number, frame, *observed_, services_);
}

DecodeResult RtcmDecoder::Decode(const Frame& frame) {
  // With a payload of less than two bytes the number reaches into the checksum, and is taken from
  // there all the same.
  const auto number =
      static_cast<std::uint32_t>(UnsignedBits(frame.bytes, MessageNumberBit, MessageNumberBits));
  if (services_.dialect.standardRecords) {
    if (const auto result = DecodeObservations(number, frame)) return *result;
  }
  if (number >= FirstMsmNumber && number <= LastMsmNumber) {
    return msm_.Decode(number, frame, services_);
  }
  if (DecodeStation(number, frame, services_)) return {};
  if (services_.time.isTrue) KeepWeek(number, frame, services_.time);
  for (const EphemerisRow& row : EphemerisRows) {
    if (row.number == number) return DecodeEphemeris(row, frame, services_.sink);
  }
  return DecodeProprietary(number, frame, services_);
}

}  // namespace navframe::rtcm
