#include "ubx/ubx_decoder.h"

#include "base/text.h"
#include "navframe/records.h"
#include "ubx/frame.h"
#include "ubx/message_table.h"
#include "ubx/standard_table.h"

namespace navframe::ubx {
namespace {

constexpr std::uint32_t CheckErrorCode = 1;

}  // namespace

DecodeResult UbxDecoder::Decode(const std::uint8_t* frame, std::uint32_t length) {
  const Payload payload = {frame + HeaderLength, length - HeaderLength - ChecksumLength};
  const MessageRow* row = nullptr;
  if (dialect_.standardRecords) {
    if (frame[ClassOffset] == RawClass && frame[IdOffset] == RawId) {
      return observed_.Decode(payload, time_, sink_);
    }
    const StandardAnswer answer = FindStandard(frame[ClassOffset], frame[IdOffset], payload);
    if (answer.isListed && answer.row == nullptr) return {answer.reason};
    row = answer.row;
  }
  if (row == nullptr) row = FindMessage(frame[ClassOffset], frame[IdOffset]);
  if (row == nullptr) return {NavframeNoKind};
  if (!row->frameLength.Takes(length)) return {NavframeBadContent};
  if (!sink_.Passes(row->msgId)) return {};
  sink_.NoteDecoded(row->msgId);
  const RecurringRoom room = row->recurs ? sink_.AllocateRecurring(row->msgId, row->recordSize)
                                         : RecurringRoom{sink_.Allocate(row->recordSize), nullptr};
  if (time_.isTrue) row->keepTime(payload, time_);
  row->decode(payload, time_, room);
  sink_.PushMessage(row->msgId, room.payload, row->recordSize);
  return {};
}

void UbxDecoder::ReportCheckError() {
  DiagnosticRecord record;
  record.tow = time_.gpsTime.tow;
  record.code = CheckErrorCode;
  CopyText(record.text, "UBX check error");
  sink_.PushCopy(MsgIdDiagnostic, record);
}

}  // namespace navframe::ubx
