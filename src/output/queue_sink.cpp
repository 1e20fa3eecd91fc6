#include "output/queue_sink.h"

namespace navframe {

void QueueSink::PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                            std::uint32_t source) {
  if (queue_.Full()) {
    // The newest records survive. The payload of the oldest is not freed, only set aside.
    const QueuedMessage oldest = *queue_.Pop();
    if (oldest.message.data != nullptr) blocks_.Abandon(oldest.message.data, oldest.payloadSize);
  }
  queue_.Push(QueuedMessage{{id, source, payload}, size});
}

std::uint32_t QueueSink::Pop(GnssMessage& out, std::uint32_t wantedId) {
  const auto oldest = queue_.Pop();
  if (!oldest) return NAVFRAME_NOTHING;
  out = oldest->message;
  if (wantedId == 0 || wantedId == out.id) return 0;
  // A mismatch is discarded. One without a payload is handed out all the same, with its own id:
  // hosts rely on the difference.
  if (out.data == nullptr) return 0;
  Release(out);
  return NAVFRAME_NOTHING;
}

void QueueSink::Release(GnssMessage& message) {
  if (message.data == nullptr) return;
  blocks_.Free(message.data);
  message.data = nullptr;
}

}  // namespace navframe
