#include "rtcm/rtcm_decoder.h"

#include "rtcm/ephemeris.h"
#include "rtcm/station_messages.h"
#include "rtcm/subtype_table.h"

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

// The reverse of every other filter test, on purpose: an ephemeris is decoded only while the
// filter asks for something else, and what was decoded is dropped. None ever becomes a record.
DecodeResult DecodeEphemeris(const EphemerisRow& row, const Frame& frame, const RecordSink& sink) {
  if (!sink.Passes(row.filterValue)) row.decode(frame);
  return {NavframeNoKind};
}

}  // namespace

DecodeResult RtcmDecoder::Decode(const Frame& frame) {
  // With a payload of less than two bytes the number reaches into the checksum, and is taken from
  // there all the same.
  const auto number =
      static_cast<std::uint32_t>(UnsignedBits(frame.bytes, MessageNumberBit, MessageNumberBits));
  if (number >= FirstMsmNumber && number <= LastMsmNumber) {
    return msm_.Decode(number, frame, services_);
  }
  if (DecodeStation(number, frame, services_)) return {};
  for (const EphemerisRow& row : EphemerisRows) {
    if (row.number == number) return DecodeEphemeris(row, frame, services_.sink);
  }
  return DecodeProprietary(number, frame, services_);
}

}  // namespace navframe::rtcm
