#include "analysis/examination.h"

#include "analysis/protocols.h"

namespace navframe::analysis {

void Examination::Take(const NavframeItem& item) {
  if (item.type == NavframeItemRecord) return;
  const std::int64_t time = timeline_.At(item.time);
  chunks_.Take({item.bytes, item.length});
  if (item.type == NavframeItemFrame) {
    outside_.End(false);
    Frame(item, time);
  } else {
    outside_.Take(item, time);
    clock_.Damage(findings_.Map(item.offset));
  }
}

void Examination::Frame(const NavframeItem& item, std::int64_t time) {
  ++frames_;
  outside_.Behind(item);
  const Bytes bytes(item.bytes, item.length);
  lineEnds_.AsSent(bytes);
  const std::uint64_t offset = findings_.Map(item.offset);
  const bool setsTime = clock_.Take(item, offset, time);
  const auto block = repetition_.Take(item, offset, time, setsTime);
  if (block) findings_.AddMapped(Cause::Repeated, *block);
  if (repetition_.IsRepeating()) clock_.Repeated();
}

// A recording without any CR LF in which frames are whole with one: it had some.
void Examination::LostCrs() {
  if (chunks_.CrLfs() != 0) return;
  findings_.Recast(Cause::BytesLost, Cause::CrLost, outside_.LostCrs(), outside_.LostCrCount());
}

Examination::Result Examination::End(const NavframeStatistics& statistics) {
  outside_.End(true);
  if (const auto block = repetition_.End()) findings_.AddMapped(Cause::Repeated, *block);
  clock_.End();
  LostCrs();
  Result result;
  result.undo.chunks = chunks_.End();
  for (const Trail& trail : result.undo.chunks) {
    Place place;
    place.offset = trail.original;
    place.length = trail.end - trail.begin;
    place.count = trail.heads;
    findings_.AddMapped(Cause::ChunkHeads, std::move(place));
  }
  if (result.undo.chunks.empty()) result.undo.lineEnds = lineEnds_.End(statistics.bytes);
  Diagnosis& diagnosis = result.diagnosis;
  diagnosis.bytes = statistics.bytes;
  diagnosis.frames = frames_;
  diagnosis.isRecognised = IsRecognised(SharesOf(statistics), statistics.bytes);
  diagnosis.known = timeline_.Known();
  diagnosis.leapSeconds = timeline_.LeapSeconds();
  const std::int64_t origin = timeline_.Origin();
  if (clock_.First() != NoTime) {
    diagnosis.first = clock_.First() + origin;
    diagnosis.last = clock_.Last() + origin;
  }
  diagnosis.findings = findings_.End(origin);
  return result;
}

}  // namespace navframe::analysis
