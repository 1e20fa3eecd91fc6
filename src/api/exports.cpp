// The exported functions. Only this file knows that there is one decoder.
#include "api/decoder.h"
#include "navframe/navframe.h"
#include "render/names.h"
#include "render/render.h"

namespace {

// Built at load, destroyed at unload. Payloads still queued then are not freed.
navframe::Decoder decoder;

}  // namespace

extern "C" {

void GNSSInit(void) {}
void GNSSSetMsgTypes(uint32_t mask) { decoder.SetMsgTypes(mask); }
void GNSSSetBoardType(uint32_t type) { decoder.SetBoardType(type); }
void GNSSSetOutMsgID(uint32_t id) { decoder.sink.SetFilter(id); }
uint32_t GNSSPutData(const uint8_t* data, uint32_t length) { return decoder.PutData(data, length); }
uint32_t GNSSGetMsg(GnssMessage* out, uint32_t wantedId) {
  return decoder.sink.Pop(*out, wantedId);
}
uint32_t GNSSGetMsgs(uint32_t* ids) { return decoder.sink.DrainDecodedIds(ids); }
void GNSSFreeMem(GnssMessage* rec) { decoder.sink.Release(*rec); }
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
