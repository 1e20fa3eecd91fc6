// Where decoders leave their records.
#pragma once

#include <cstdint>
#include <cstring>

#include "base/number_text.h"
#include "navframe/records_observations.h"
#include "navframe/records_ubx_standard.h"
#include "navframe/stream.h"
#include "output/decoded_id_set.h"

namespace navframe {

// What became of a frame: the reason why it gave no record, none where it did or where its kind
// is collected over several frames. One word, as Framing is.
class [[nodiscard]] DecodeResult {
 public:
  // With NavframeBadField: the number of the field, 1 behind the address, and why it does not
  // convert.
  constexpr DecodeResult(NavframeReason reason = NavframeNoReason, std::uint32_t badField = 0,
                         NumberFault fault = NumberFault::None)
      : word_(static_cast<std::uint64_t>(reason) | static_cast<std::uint64_t>(fault) << 8 |
              std::uint64_t{badField} << 32) {}

  constexpr NavframeReason Reason() const { return static_cast<NavframeReason>(word_ & 0xFF); }
  constexpr NumberFault Fault() const { return static_cast<NumberFault>(word_ >> 8 & 0xFF); }
  constexpr std::uint32_t BadField() const { return static_cast<std::uint32_t>(word_ >> 32); }

 private:
  std::uint64_t word_;
};

// Kinds whose records end alike as a rule: in unknown entries of a list, or in zeros.
inline constexpr std::uint32_t RecurringKinds[] = {
    MsgIdBinary55Aa,      MsgIdUbxSatellites,     MsgIdUbxRawMeasurements,
    MsgIdUbxSignals,      MsgIdUbxFullSatellites, MsgIdUbxChannels,
    MsgIdUbxSubframe,     MsgIdUbxMeasurements,   MsgIdUbxSensorMeasurements,
    MsgIdUbxFusionStatus, MsgIdUbxRawSensors,     MsgIdUbxVersion,
    MsgIdUbxInformation,  MsgIdObservations};

// Room for a record of these.
struct RecurringRoom {
  void* payload;
  // Bytes at the front that must be written; those behind them hold what the last record of the
  // kind left there. The decoder says anew how far it wrote.
  std::uint32_t* written;
};

// What decides about a record, and where it goes. Which of filter and set of ids a decoder asks
// first is part of each protocol's contract.
class RecordSink {
 public:
  virtual ~RecordSink() = default;

  // The output filter: 0 lets every record pass.
  void SetFilter(std::uint32_t id) { filter_ = id; }
  bool PassesAll() const { return filter_ == 0; }
  bool Passes(std::uint32_t id) const { return PassesAll() || filter_ == id; }
  // For records that pass with either of two filter values.
  bool PassesAny(std::uint32_t a, std::uint32_t b) const { return Passes(a) || filter_ == b; }

  void NoteDecoded(std::uint32_t id) { decoded_.Insert(id); }
  std::uint32_t DrainDecodedIds(std::uint32_t* ids) { return decoded_.Drain(ids); }

  // Room for a payload, with undefined content; every byte must be written before it is pushed.
  virtual void* Allocate(std::uint32_t size) = 0;

  // The same for a kind of RecurringKinds.
  virtual RecurringRoom AllocateRecurring(std::uint32_t id, std::uint32_t size) = 0;

  // Hands over a payload of these, or a fixed one.
  virtual void PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                           std::uint32_t source = SourceStream) = 0;

  // Gives up a payload that will not be pushed.
  virtual void Abandon(void* payload, std::uint32_t size) = 0;

  // Names a payload that may be pushed though it is no memory of Allocate: whoever frees or drops
  // a record with it frees nothing.
  virtual void DeclareFixed(const void* payload) = 0;

  // PushMessage of a finished record elsewhere, which is copied.
  template <class Record>
  void PushCopy(std::uint32_t id, const Record& record) {
    void* const payload = Allocate(sizeof(Record));
    std::memcpy(payload, &record, sizeof(Record));
    PushMessage(id, payload, sizeof(Record));
  }

 protected:
  RecordSink() = default;
  RecordSink(const RecordSink&) = delete;
  RecordSink& operator=(const RecordSink&) = delete;

 private:
  DecodedIdSet decoded_;
  std::uint32_t filter_ = 0;
};

}  // namespace navframe
