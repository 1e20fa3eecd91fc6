// Where decoders leave their records.
#pragma once

#include <cstdint>
#include <cstring>
#include <optional>

#include "output/decoded_id_set.h"
#include "output/output_queue.h"
#include "output/payload_blocks.h"

namespace navframe {

// The output queue with what decides about it: the output filter, the decoded-id set and the
// payload memory. Which of filter and set a decoder asks first is part of each protocol's contract.
class RecordSink {
 public:
  // The output filter: 0 lets every record pass.
  void SetFilter(std::uint32_t id) { filter_ = id; }
  bool Passes(std::uint32_t id) const { return filter_ == 0 || filter_ == id; }
  // For records that pass with either of two filter values.
  bool PassesAny(std::uint32_t a, std::uint32_t b) const { return Passes(a) || filter_ == b; }

  void NoteDecoded(std::uint32_t id) { decoded_.Insert(id); }
  std::uint32_t DrainDecodedIds(std::uint32_t* ids) { return decoded_.Drain(ids); }

  // A payload block with undefined content; every byte must be written before it is pushed.
  void* Allocate(std::uint32_t size) { return blocks_.Allocate(size); }

  // Names a payload that may be pushed though it is no memory of Allocate: whoever frees or drops
  // a record with it frees nothing. See PayloadBlocks.
  void DeclareFixed(const void* payload) { blocks_.DeclareFixed(payload); }

  // Hands a payload of Allocate, or a fixed one, over to the queue.
  void PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                   std::uint32_t source = SourceStream) {
    PushMessage(QueuedMessage{{id, source, payload}, size});
  }

  // The same for a finished record elsewhere, which is copied.
  template <class Record>
  void PushCopy(std::uint32_t id, const Record& record) {
    void* const payload = Allocate(sizeof(Record));
    std::memcpy(payload, &record, sizeof(Record));
    PushMessage(id, payload, sizeof(Record));
  }

  // Gives up a payload that will not be pushed, without freeing it.
  void Abandon(void* payload, std::uint32_t size) { blocks_.Abandon(payload, size); }

  std::uint32_t Waiting() const { return queue_.Size(); }

  // The oldest record with the size of its payload, which is the caller's to free.
  std::optional<QueuedMessage> PopOldest() { return queue_.Pop(); }

  // Pops the oldest record into `out`. See GNSSGetMsg.
  std::uint32_t Pop(GnssMessage& out, std::uint32_t wantedId);

  // Frees a popped payload, unless it is a fixed one, and clears the pointer.
  void Release(GnssMessage& message);

 private:
  void PushMessage(const QueuedMessage& message);

  OutputQueue queue_;
  DecodedIdSet decoded_;
  PayloadBlocks blocks_;
  std::uint32_t filter_ = 0;
};

}  // namespace navframe
