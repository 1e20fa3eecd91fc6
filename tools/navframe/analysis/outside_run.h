// Bytes that stand in no frame, taken apart: what they were.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "analysis/finding_list.h"
#include "analysis/frame_check.h"
#include "analysis/line_ends.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Keeps the bytes of a run until the frame behind it comes, or the first ones of a long run.
class OutsideRun {
 public:
  OutsideRun(FindingList& findings, LineEnds& lineEnds)
      : findings_(findings), lineEnds_(lineEnds) {}

  // A rejected byte, or skipped ones.
  void Take(const NavframeItem& item, std::int64_t time);
  // A frame begins, or the recording ends.
  void End(bool isEndOfAll);
  // Behind that: what the next run stands behind.
  void Behind(const NavframeItem& frame) {
    isBehindSentence_ = frame.protocol == NavframeNmea || frame.protocol == NavframeAsciiLog;
    isAtBeginning_ = isReply_ = false;
    isAnchored_ = true;
  }
  // Frames that lack one byte and hold with a CR: those were LFs that had one.
  std::vector<Place> LostCrs() { return std::move(lostCrs_); }
  std::uint64_t LostCrCount() const { return lostCrCount_; }

 private:
  struct Head {
    std::uint64_t offset;
    std::uint32_t protocol;
    std::uint32_t reason;
    std::uint32_t claimed;
  };

  std::size_t Size() const { return bytes_.size(); }
  Bytes From(std::size_t at) const { return Bytes(bytes_).subspan(at); }
  const Head* HeadAt(std::size_t at) const;
  std::size_t HeadBehind(std::size_t at) const;  // an index of heads_
  static bool IsLine(const Head& head) {
    return head.protocol == NavframeNmea || head.protocol == NavframeAsciiLog;
  }
  bool IsSound(const Head& head) const;
  bool BeginsSoundly(std::size_t at) const;

  void Diagnose();
  // Each explains what stands at at_ and goes on behind it, or is not the one to.
  bool LineEnd();
  bool TextLine();
  bool SentenceEnd();
  bool Piece(const Head& head);
  bool Untranslated();
  bool Sentence(const Head& head);
  bool Binary(const Head& head);
  bool Cut(const Head& head);
  void Explain(Cause cause, Place place);
  void Junk(std::size_t length);
  void FinishJunk();
  Place Here(std::size_t length) const;
  std::vector<HeadInside> Inside(std::size_t length) const;
  void Spend(std::size_t work) { budget_ -= std::min(budget_, work); }

  FindingList& findings_;
  LineEnds& lineEnds_;
  std::vector<std::uint8_t> bytes_;
  std::vector<Head> heads_;
  std::uint64_t begin_ = 0;   // offset of the first one
  std::uint64_t lastLf_ = 0;  // offset
  std::size_t at_ = 0;        // what was taken apart so far
  std::int64_t time_ = NoTime;
  bool isFinal_ = false;
  bool isEndOfAll_ = false;
  bool isAtBeginning_ = true;
  bool isBehindSentence_ = false;
  bool isReply_ = false;    // in the header of one
  bool isAnchored_ = true;  // whether something known ends at at_
  std::uint64_t junkBegin_ = 0;
  std::uint64_t junkLength_ = 0;
  std::optional<std::uint8_t> junkFill_;  // when all of it is that
  HeadCounts junkHeads_{};
  // Work on trials that is left, so that all of it stays in proportion to the bytes.
  std::size_t budget_ = std::size_t{1} << 22;
  std::vector<std::uint8_t> scratch_;
  std::vector<Place> lostCrs_;
  std::uint64_t lostCrCount_ = 0;
};

}  // namespace navframe::analysis
