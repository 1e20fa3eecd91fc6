#include "rtcm/rtcm_decoder.h"

#include "rtcm/ephemeris.h"
#include "rtcm/station_messages.h"
#include "rtcm/stations.h"
#include "rtcm/subtype_table.h"

namespace navframe::rtcm {

DecodeResult RtcmDecoder::Decode(const Frame& frame) {
  // With a payload of less than two bytes the number reaches into the checksum, and is taken from
  // there all the same.
  const auto number =
      static_cast<std::uint32_t>(UnsignedBits(frame.bytes, MessageNumberBit, MessageNumberBits));
  if (services_.dialect.standardRecords) {
    // Nothing is half done where there is no memory.
    if (observed_ == nullptr) observed_ = std::make_unique<ObservationHistory>();
    if (IsObservedMsm(number)) return DecodeMsmObservations(number, frame, *observed_, services_);
    KeepChannel(number, frame, *observed_);
    if (const auto result = DecodeRtkObservations(number, frame, *observed_, services_)) {
      return *result;
    }
  }
  if (number >= FirstMsmNumber && number <= LastMsmNumber) {
    return msm_.Decode(number, frame, services_);
  }
  if (const auto result = DecodeWholeStation(number, frame, services_)) return *result;
  if (const auto result = DecodeStation(number, frame, services_)) return *result;
  if (const auto result = DecodeEphemeris(number, frame, services_)) return *result;
  return DecodeProprietary(number, frame, services_);
}

}  // namespace navframe::rtcm
