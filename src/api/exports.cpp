// The exported functions. Only this file knows that there is one decoder.
#include <cstddef>
#include <new>
#include <utility>

#include "api/decoder.h"
#include "navframe/navframe.h"
#include "render/names.h"
#include "render/render.h"

namespace {

using navframe::Decoder;

// The one decoder and its place. Both are constant-initialised, ready before any constructor runs.
// A decoder that is built anew has the same place, so that it knows the payloads that lie there.
alignas(Decoder) constinit std::byte place[sizeof(Decoder)] = {};
constinit Decoder* decoder = nullptr;

// Builds the decoder for a host whose static constructors come before the library's, and anew for
// one that calls after it was destroyed.
Decoder& TheDecoder() {
  if (decoder == nullptr) [[unlikely]]
    decoder = new (place) Decoder;
  return *decoder;
}

// Built at load, destroyed at unload. Payloads still queued then are not freed.
[[maybe_unused]] const Decoder& builtAtLoad = TheDecoder();

#if defined(__ELF__)
// When a process ends this comes behind what hosts do in atexit handlers and static destructors.
[[gnu::destructor(101)]]
#endif
void Destroy() {
  if (decoder != nullptr) std::exchange(decoder, nullptr)->~Decoder();
}

#if !defined(__ELF__)
const struct AtUnload {
  ~AtUnload() { Destroy(); }
} atUnload;
#endif

}  // namespace

extern "C" {

void GNSSInit(void) {}
void GNSSSetMsgTypes(uint32_t mask) { TheDecoder().SetMsgTypes(mask); }
void GNSSSetBoardType(uint32_t type) { TheDecoder().SetBoardType(type); }
void GNSSSetOutMsgID(uint32_t id) { TheDecoder().sink.SetFilter(id); }
uint32_t GNSSPutData(const uint8_t* data, uint32_t length) {
  return TheDecoder().PutData(data, length);
}
uint32_t GNSSGetMsg(GnssMessage* out, uint32_t wantedId) {
  return TheDecoder().sink.Pop(*out, wantedId);
}
uint32_t GNSSGetMsgs(uint32_t* ids) { return TheDecoder().sink.DrainDecodedIds(ids); }
void GNSSFreeMem(GnssMessage* rec) { TheDecoder().sink.Release(*rec); }
uint32_t structDataToStr(const GnssMessage* record, char* out, int64_t flag) {
  return navframe::RenderRecord(*record, out, (flag & 0xFF) != 0) ? 0 : NAVFRAME_NOTHING;
}
int32_t GNSSSysIdToName(int32_t systemId, char* out) {
  return navframe::CopyName(navframe::SystemName(systemId), out);
}
int32_t GNSSSigIdToName(int32_t systemId, uint32_t signalId, char* out) {
  return navframe::CopyName(navframe::SignalName(systemId, signalId), out);
}

}  // extern "C"
