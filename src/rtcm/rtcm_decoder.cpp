#include "rtcm/rtcm_decoder.h"

#include <cstring>

#include "navframe/records.h"
#include "rtcm/ephemeris.h"
#include "rtcm/station_messages.h"
#include "rtcm/subtype_table.h"

namespace navframe::rtcm {
namespace {

// Message number, MsgId, record, decoder. The record is zero before it is decoded and begins with
// the decoder's time of week.
struct StationRow {
  std::uint32_t number;
  std::uint32_t msgId;
  std::uint32_t size;
  void (*decode)(const Frame& frame, void* record);
};
constexpr StationRow StationRows[] = {
    {1005, MsgIdStationPosition, sizeof(StationPositionRecord),
     [](const Frame& frame, void* record) {
       DecodeStationPosition(frame, *static_cast<StationPositionRecord*>(record));
     }},
    {1013, MsgIdSystemParameters, sizeof(SystemParametersRecord),
     [](const Frame& frame, void* record) {
       DecodeSystemParameters(frame, *static_cast<SystemParametersRecord*>(record));
     }},
};

// Unlike everywhere else the filter is asked before the kind counts as decoded.
void DecodeStation(const StationRow& row, const Frame& frame, Services& services) {
  if (!services.sink.Passes(row.msgId)) return;
  services.sink.NoteDecoded(row.msgId);
  void* const record = services.sink.Allocate(row.size);
  std::memset(record, 0, row.size);
  row.decode(frame, record);
  const std::uint32_t tow = services.time.getTOW();
  std::memcpy(record, &tow, sizeof tow);
  services.sink.PushMessage(row.msgId, record, row.size);
}

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
void DecodeEphemeris(const EphemerisRow& row, const Frame& frame, const RecordSink& sink) {
  if (!sink.Passes(row.filterValue)) row.decode(frame);
}

}  // namespace

void RtcmDecoder::Decode(const Frame& frame) {
  // With a payload of less than two bytes the number reaches into the checksum, and is taken from
  // there all the same.
  const auto number =
      static_cast<std::uint32_t>(UnsignedBits(frame.bytes, MessageNumberBit, MessageNumberBits));
  if (number >= FirstMsmNumber && number <= LastMsmNumber) {
    return msm_.Decode(number, frame, services_);
  }
  for (const StationRow& row : StationRows) {
    if (row.number == number) return DecodeStation(row, frame, services_);
  }
  for (const EphemerisRow& row : EphemerisRows) {
    if (row.number == number) return DecodeEphemeris(row, frame, services_.sink);
  }
  DecodeProprietary(number, frame, services_);
}

}  // namespace navframe::rtcm
