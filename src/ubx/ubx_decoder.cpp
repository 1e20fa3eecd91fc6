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

template <class Row>
DecodeResult UbxDecoder::DecodeBy(const Row& row, std::uint32_t kind, const Payload& payload) {
  if (!sink_.Passes(kind)) return {};
  sink_.NoteDecoded(kind);
  const RecurringRoom room = row.recurs ? sink_.AllocateRecurring(kind, row.recordSize)
                                        : RecurringRoom{sink_.Allocate(row.recordSize), nullptr};
  if (time_.isTrue) row.keepTime(payload, time_);
  row.decode(payload, time_, room);
  sink_.PushMessage(kind, room.payload, row.recordSize);
  return {};
}

DecodeResult UbxDecoder::Decode(const std::uint8_t* frame, std::uint32_t length) {
  const Payload payload = {frame + HeaderLength, length - HeaderLength - ChecksumLength};
  if (dialect_.standardRecords) {
    const StandardAnswer answer = FindStandard(frame[ClassOffset], frame[IdOffset], payload);
    if (answer.row != nullptr) return DecodeBy(*answer.row, answer.row->kind, payload);
    if (answer.isListed) return {answer.reason};
  }
  const MessageRow* const row = FindMessage(frame[ClassOffset], frame[IdOffset]);
  if (row == nullptr) return {NavframeNoKind};
  if (!row->frameLength.Takes(length)) return {NavframeBadContent};
  return DecodeBy(*row, row->msgId, payload);
}

void UbxDecoder::ReportCheckError() {
  DiagnosticRecord record;
  record.tow = time_.gpsTime.tow;
  record.code = CheckErrorCode;
  CopyText(record.text, "UBX check error");
  sink_.PushCopy(MsgIdDiagnostic, record);
}

}  // namespace navframe::ubx
