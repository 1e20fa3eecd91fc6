// The sink of a stream: room for the records of one frame.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "output/record_sink.h"

namespace navframe {

struct SlotRecord {
  std::uint32_t id;
  std::uint32_t source;
  const void* payload;
};

// A frame gives two records at most: its own, and the satellites in view that it ends or the
// ephemeris that it completes. Their memory
// is there from the start, so that no decoder stops half-way for the want of it.
class SlotSink final : public RecordSink {
 public:
  SlotSink();

  void* Allocate(std::uint32_t) override { return memory_[count_ < Slots ? count_ : 1].get(); }
  RecurringRoom AllocateRecurring(std::uint32_t id, std::uint32_t size) override;
  void PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                   std::uint32_t source = SourceStream) override;
  void Abandon(void*, std::uint32_t) override {}
  void DeclareFixed(const void*) override {}

  void Clear() { count_ = 0; }
  std::uint32_t Count() const { return count_; }
  const SlotRecord& operator[](std::uint32_t index) const { return records_[index]; }

 private:
  static constexpr std::uint32_t Slots = 2;

  std::array<std::unique_ptr<std::uint64_t[]>, Slots> memory_;
  struct OwnRoom {
    std::uint32_t offset = 0;  // [B] in ownMemory_
    std::uint32_t written = 0;
  };
  // One block, so that only the rooms of kinds that come cost memory.
  std::unique_ptr<std::uint64_t[]> ownMemory_;
  std::array<OwnRoom, std::size(RecurringKinds)> ownRooms_;
  std::array<SlotRecord, Slots> records_;
  std::uint32_t count_ = 0;
};

}  // namespace navframe
