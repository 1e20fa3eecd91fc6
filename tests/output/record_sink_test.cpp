#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "output/queue_sink.h"

namespace navframe::test {
namespace {

void PushNumber(QueueSink& sink, std::uint32_t id, std::uint32_t number) {
  sink.PushCopy(id, number);
}

std::uint32_t NumberOf(const GnssMessage& message) {
  return *static_cast<const std::uint32_t*>(message.data);
}

TEST(OutputQueue, KeepsTheNewestRecordsInOrder) {
  const auto sink = std::make_unique<QueueSink>();
  GnssMessage out = {77, 78, sink.get()};
  EXPECT_EQ(sink->Pop(out, 0), NAVFRAME_NOTHING);
  EXPECT_EQ(out.id, 77U) << "an empty queue leaves it untouched";
  EXPECT_EQ(out.data, sink.get());

  std::set<void*> payloads;
  for (std::uint32_t i = 0; i < MaxQueuedMessages + 1500; ++i) {
    if (i == 7) {
      sink->PushMessage(5, nullptr, 0);
    } else {
      auto* const payload = static_cast<std::uint32_t*>(sink->Allocate(sizeof i));
      *payload = i;
      payloads.insert(payload);
      sink->PushMessage(5, payload, sizeof i);
    }
    ASSERT_EQ(sink->Waiting(), std::min(i + 1, MaxQueuedMessages));
  }
  EXPECT_EQ(payloads.size(), MaxQueuedMessages + 1) << "what the full queue dropped serves again";
  for (std::uint32_t i = 0; i < MaxQueuedMessages; ++i) {
    ASSERT_EQ(sink->Pop(out, i % 2 == 0 ? 0 : 5), 0U);
    ASSERT_EQ(NumberOf(out), i + 1500);
    sink->Release(out);
    EXPECT_EQ(out.data, nullptr);
    EXPECT_EQ(out.id, 5U);
    sink->Release(out);  // harmless
  }
  EXPECT_EQ(sink->Pop(out, 0), NAVFRAME_NOTHING);
}

TEST(OutputQueue, MismatchIsDiscardedExceptWithoutPayload) {
  const auto sink = std::make_unique<QueueSink>();
  PushNumber(*sink, 7, 1);
  sink->PushMessage(8, nullptr, 0);
  PushNumber(*sink, 5, 2);
  GnssMessage out = {};
  EXPECT_EQ(sink->Pop(out, 5), NAVFRAME_NOTHING);
  EXPECT_EQ(out.id, 7U);
  EXPECT_EQ(out.data, nullptr);
  EXPECT_EQ(sink->Pop(out, 5), 0U);
  EXPECT_EQ(out.id, 8U);
  EXPECT_EQ(out.data, nullptr);
  EXPECT_EQ(sink->Pop(out, 5), 0U);
  EXPECT_EQ(NumberOf(out), 2U);
  sink->Release(out);
  EXPECT_EQ(sink->Waiting(), 0U);
}

}  // namespace
}  // namespace navframe::test
