// The sink of the exports: a queue of records in memory of their own.
#pragma once

#include <cstdint>
#include <optional>

#include "output/output_queue.h"
#include "output/payload_blocks.h"
#include "output/record_sink.h"

namespace navframe {

class QueueSink final : public RecordSink {
 public:
  void* Allocate(std::uint32_t size) override { return blocks_.Allocate(size); }
  RecurringRoom AllocateRecurring(std::uint32_t, std::uint32_t size) override {
    toWrite_ = size;
    return {blocks_.Allocate(size), &toWrite_};
  }
  void PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                   std::uint32_t source = SourceStream) override;
  void Abandon(void* payload, std::uint32_t size) override { blocks_.Abandon(payload, size); }
  // See PayloadBlocks.
  void DeclareFixed(const void* payload) override { blocks_.DeclareFixed(payload); }

  std::uint32_t Waiting() const { return queue_.Size(); }

  // The oldest record with the size of its payload, which is the caller's to free.
  std::optional<QueuedMessage> PopOldest() { return queue_.Pop(); }

  // Pops the oldest record into `out`. See GNSSGetMsg.
  std::uint32_t Pop(GnssMessage& out, std::uint32_t wantedId);

  // Frees a popped payload, unless it is a fixed one, and clears the pointer.
  void Release(GnssMessage& message);

 private:
  OutputQueue queue_;
  PayloadBlocks blocks_;
  std::uint32_t toWrite_ = 0;  // of the last recurring room, which holds nothing known
};

}  // namespace navframe
