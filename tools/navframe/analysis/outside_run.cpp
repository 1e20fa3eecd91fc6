#include "analysis/outside_run.h"

#include <algorithm>
#include <string_view>

namespace navframe::analysis {
namespace {

constexpr std::size_t LongestFrame = 65543;
// When so much of a run is there, frames in the first half are whole, even with CRs in them.
constexpr std::size_t MostKept = 4 * LongestFrame;
constexpr std::size_t WorkPerByte = 16;

bool IsPrintable(std::uint8_t byte) { return byte >= 0x20 && byte < 0x7F; }
bool IsUpper(std::uint8_t byte) { return byte >= 'A' && byte <= 'Z'; }

// A sentence of NMEA, or an ASCII log, the name of which is followed by a comma.
bool BeginsSentence(Bytes bytes) {
  if (bytes.size() < 3 || !IsUpper(bytes[1]) || !IsUpper(bytes[2])) return false;
  if (bytes[0] != '#') return bytes[0] == '$' || bytes[0] == '!';
  constexpr std::size_t LongestName = 32;
  const Bytes name = bytes.subspan(1, std::min(bytes.size() - 1, LongestName));
  const auto end = std::ranges::find_if_not(
      name, [](std::uint8_t byte) { return IsUpper(byte) || (byte >= '0' && byte <= '9'); });
  return end == name.end() || *end == ',';
}

bool IsHex(std::uint8_t byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'F') ||
         (byte >= 'a' && byte <= 'f');
}

// "*" and two digits at the end, of an ASCII log eight.
bool HasChecksum(Bytes line) {
  const std::size_t digits = !line.empty() && line[0] == '#' ? 8 : 2;
  return line.size() > digits && line[line.size() - digits - 1] == '*' &&
         std::ranges::all_of(line.last(digits), IsHex);
}

bool Begins(Bytes bytes, std::string_view text) {
  return bytes.size() >= text.size() && std::equal(text.begin(), text.end(), bytes.begin());
}

}  // namespace

const OutsideRun::Head* OutsideRun::HeadAt(std::size_t at) const {
  const std::size_t i = HeadBehind(at);
  return i < heads_.size() && heads_[i].offset == begin_ + at ? &heads_[i] : nullptr;
}

std::size_t OutsideRun::HeadBehind(std::size_t at) const {
  const auto head = std::ranges::lower_bound(heads_, begin_ + at, {}, &Head::offset);
  return static_cast<std::size_t>(head - heads_.begin());
}

// Whether the bytes behind the head could be those of a frame.
bool OutsideRun::IsSound(const Head& head) const {
  const std::size_t at = static_cast<std::size_t>(head.offset - begin_);
  if (IsLine(head)) return BeginsSentence(From(at));
  return head.protocol != NavframeNmeaTagBlock && head.claimed != 0;
}

bool OutsideRun::BeginsSoundly(std::size_t at) const {
  if (at == Size()) return isFinal_;
  const Head* const head = HeadAt(at);
  return head != nullptr && IsSound(*head);
}

Place OutsideRun::Here(std::size_t length) const {
  Place place;
  place.offset = begin_ + at_;
  place.length = length;
  place.time = time_;
  return place;
}

// Of the heads in the next bytes those that are more than one byte of chance, and what stands right
// in front of the next frame.
std::vector<HeadInside> OutsideRun::Inside(std::size_t length) const {
  constexpr std::size_t Most = 4;
  std::vector<HeadInside> inside;
  const std::uint64_t end = begin_ + at_ + length;
  for (std::size_t i = HeadBehind(at_ + 1); i < heads_.size() && inside.size() < Most; ++i) {
    const Head& head = heads_[i];
    if (head.offset >= end) break;
    if (head.reason == NavframeBadHeader && head.offset + 1 != end) continue;
    inside.push_back({head.protocol, findings_.Map(head.offset)});
  }
  return inside;
}

void OutsideRun::Take(const NavframeItem& item, std::int64_t time) {
  if (bytes_.empty()) {
    begin_ = item.offset;
    time_ = time;
  }
  if (item.type == NavframeItemRejected) {
    heads_.push_back({item.offset, item.protocol, item.reason, item.claimedLength});
  }
  bytes_.insert(bytes_.end(), item.bytes, item.bytes + item.length);
  budget_ += WorkPerByte * item.length;
  const std::size_t lf =
      std::string_view(reinterpret_cast<const char*>(item.bytes), item.length).rfind('\n');
  if (lf != std::string_view::npos) lastLf_ = item.offset + lf;
  if (Size() >= MostKept) Diagnose();
}

void OutsideRun::End(bool isEndOfAll) {
  if (bytes_.empty()) return;
  isFinal_ = true;
  isEndOfAll_ = isEndOfAll;
  Diagnose();
  FinishJunk();
  isFinal_ = false;
  bytes_.clear();
  heads_.clear();
  at_ = 0;
  isBehindSentence_ = false;
}

// Takes the run apart from its beginning; of one that goes on, the first half.
void OutsideRun::Diagnose() {
  const std::size_t end = isFinal_ ? Size() : Size() / 2;
  while (at_ < end) {
    if (LineEnd() || TextLine() || SentenceEnd()) continue;
    const std::size_t next = HeadBehind(at_);
    const std::uint64_t begin = next < heads_.size() ? heads_[next].offset : begin_ + Size();
    const std::size_t length = static_cast<std::size_t>(begin - begin_) - at_;
    if (length != 0) {
      // Up to the end of the line, behind which a comment may stand.
      const auto lineEnd = std::ranges::find(From(at_).first(length), std::uint8_t{'\n'});
      const auto ofLine = static_cast<std::size_t>(lineEnd - From(at_).begin());
      Junk(std::min(length, ofLine + 1));
      continue;
    }
    const Head head = heads_[next];
    if (!Piece(head)) {
      Count(head.protocol, head.reason, junkHeads_);
      Junk(1);
    }
  }
  const auto gone = static_cast<std::ptrdiff_t>(std::min(at_, Size()));
  bytes_.erase(bytes_.begin(), bytes_.begin() + gone);
  begin_ += static_cast<std::uint64_t>(gone);
  at_ -= static_cast<std::size_t>(gone);
  std::erase_if(heads_, [this](const Head& head) { return head.offset < begin_; });
}

// Of the sentence in front of the run.
bool OutsideRun::LineEnd() {
  const bool isBehind = isBehindSentence_ && at_ == 0;
  isBehindSentence_ = false;
  const Bytes bytes = From(at_);
  if (!isBehind || bytes.size() < 3 || bytes[0] != '\r' || bytes[1] != '\r' || bytes[2] != '\n') {
    return false;
  }
  lineEnds_.Added(begin_ + at_, begin_ + at_ + 3);
  Place place = Here(3);
  place.protocol = NavframeNmea;
  place.count = 1;
  Explain(Cause::CrAdded, std::move(place));
  return true;
}

// A comment, nothing but a line end, or the reply of a server that the recording begins with.
bool OutsideRun::TextLine() {
  constexpr std::size_t LongestLine = 1024;
  const Bytes bytes = From(at_).first(std::min(From(at_).size(), LongestLine));
  const bool isBlank =
      bytes[0] == '\n' || (bytes.size() > 1 && bytes[0] == '\r' && bytes[1] == '\n');
  if (isAtBeginning_ && begin_ + at_ == 0) {
    isReply_ = Begins(bytes, "HTTP/1.") || Begins(bytes, "ICY ");
  }
  const bool isComment = isReply_ || bytes[0] == '#' || bytes[0] == '%' || bytes[0] == ';' ||
                         (bytes.size() > 1 && bytes[0] == '/' && bytes[1] == '/');
  if (!isAnchored_ || (!isBlank && !isComment) || BeginsSentence(bytes)) return false;
  std::size_t length = 0;
  while (length < bytes.size() && (IsPrintable(bytes[length]) || bytes[length] == '\t')) ++length;
  const Bytes text = bytes.first(length);
  if (length < bytes.size() && bytes[length] == '\r') ++length;
  const bool isLine = length < bytes.size() && bytes[length] == '\n';
  if (!isLine || HasChecksum(text)) return false;
  lineEnds_.Unknown(bytes.first(length + 1));
  isReply_ &= !isBlank;
  Place place = Here(length + 1);
  place.count = 1;
  Explain(Cause::Text, std::move(place));
  return true;
}

// Of a sentence whose beginning is lost.
bool OutsideRun::SentenceEnd() {
  constexpr std::size_t LongestSentence = 512;
  if (!isAnchored_ || isAtBeginning_) return false;
  const Bytes bytes = From(at_).first(std::min(From(at_).size(), LongestSentence));
  std::size_t length = 0;
  while (length < bytes.size() && IsPrintable(bytes[length]) && bytes[length] != '$') ++length;
  const bool isLine =
      length + 1 < bytes.size() && bytes[length] == '\r' && bytes[length + 1] == '\n';
  if (!isLine || BeginsSentence(bytes) || !HasChecksum(bytes.first(length))) return false;
  lineEnds_.Unknown(bytes.first(length + 2));
  Place place = Here(length + 2);
  place.protocol = NavframeNmea;
  Explain(Cause::BytesLost, std::move(place));
  return true;
}

void OutsideRun::Explain(Cause cause, Place place) {
  FinishJunk();
  at_ += static_cast<std::size_t>(place.length);
  findings_.Add(cause, std::move(place));
  isAnchored_ = true;
  isAtBeginning_ = false;
}

void OutsideRun::Junk(std::size_t length) {
  if (junkLength_ == 0) {
    junkBegin_ = begin_ + at_;
    if (isAnchored_ && Size() - at_ >= 2 && !isAtBeginning_) {
      findings_.AddBeginning(bytes_[at_], bytes_[at_ + 1]);
    }
  }
  lineEnds_.Unknown(From(at_).first(length));
  if (junkLength_ == 0) junkFill_ = bytes_[at_];
  const auto isFill = [this](std::uint8_t byte) { return byte == junkFill_; };
  if (junkFill_ && !std::ranges::all_of(From(at_).first(length), isFill)) junkFill_.reset();
  junkLength_ += length;
  at_ += length;
  isAnchored_ = false;
}

void OutsideRun::FinishJunk() {
  if (junkLength_ == 0) return;
  Place place;
  place.offset = junkBegin_;
  place.length = junkLength_;
  place.time = time_;
  if (junkLength_ > 1) place.fill = junkFill_;
  const bool isTail = junkBegin_ == 0 && junkLength_ <= LongestFrame;
  findings_.Add(isTail ? Cause::BeginsInside : Cause::Unexplained, std::move(place));
  if (!isTail) findings_.AddHeads(junkHeads_);
  junkHeads_ = {};
  junkLength_ = 0;
}

bool OutsideRun::Piece(const Head& head) {
  if (Untranslated()) return true;
  if (!IsSound(head)) return false;
  return IsLine(head) ? Sentence(head) : Binary(head);
}

bool OutsideRun::Untranslated() {
  if (budget_ == 0 || lastLf_ < begin_ + at_) return false;
  const auto found = TryWithoutCr(From(at_), scratch_);
  Spend(scratch_.size());
  if (!found) return false;
  lineEnds_.Added(begin_ + at_, begin_ + at_ + found->length);
  Place place = Here(found->length);
  place.protocol = bytes_[at_] == 0xD3 ? NavframeRtcm3 : NavframeUbx;
  place.message = MessageOf(From(at_));
  place.claimed = scratch_.size();
  place.count = found->added;
  Explain(Cause::CrAdded, std::move(place));
  return true;
}

// A sentence ends with its line, or where it cannot go on.
bool OutsideRun::Sentence(const Head& head) {
  constexpr std::size_t LongestSentence = 4096;
  const Bytes bytes = From(at_).first(std::min(From(at_).size(), LongestSentence));
  std::size_t length = 1;
  while (length < bytes.size() && IsPrintable(bytes[length]) && bytes[length] != '$' &&
         (bytes[length] != '#' || bytes[0] != '#')) {
    ++length;
  }
  std::size_t lineEnd = length;
  while (lineEnd < bytes.size() && bytes[lineEnd] == '\r') ++lineEnd;
  const bool isLine = lineEnd < bytes.size() && bytes[lineEnd] == '\n';
  Place place = Here(isLine ? lineEnd + 1 : length);
  place.protocol = head.protocol;
  place.message = MessageOf(bytes);
  Spend(length);
  if (!isLine && isEndOfAll_ && length == From(at_).size()) {
    Explain(Cause::EndsInside, std::move(place));
  } else if (HasChecksum(bytes.first(length))) {
    lineEnds_.Unknown(bytes.first(static_cast<std::size_t>(place.length)));
    Explain(Cause::WrongChecksum, std::move(place));
  } else if (isLine) {
    lineEnds_.Unknown(bytes.first(static_cast<std::size_t>(place.length)));
    Explain(Cause::NoChecksum, std::move(place));
  } else {
    if (!isAnchored_) return false;
    Explain(Cause::BytesLost, std::move(place));
  }
  return true;
}

// A frame that tells its length.
bool OutsideRun::Binary(const Head& head) {
  const std::size_t length = head.claimed;
  const std::size_t there = Size() - at_;
  if (length <= there && BeginsSoundly(at_ + length)) {
    Place place = Here(length);
    place.protocol = head.protocol;
    place.message = MessageOf(From(at_));
    place.claimed = length;
    place.inside = Inside(length);
    Explain(Cause::WrongChecksum, std::move(place));
    return true;
  }
  return isAnchored_ ? Cut(head) : false;
}

// A frame that something begins inside of, or that the recording ends in.
bool OutsideRun::Cut(const Head& head) {
  constexpr std::size_t MostLooks = 16;
  const std::size_t length = head.claimed;
  const std::size_t there = Size() - at_;
  std::size_t present = length > there && isFinal_ ? there : 0;
  std::size_t behind = there;  // where something begins behind its end
  const std::size_t first = HeadBehind(at_) + 1;
  for (std::size_t i = first; i < std::min(heads_.size(), first + MostLooks); ++i) {
    const auto at = static_cast<std::size_t>(heads_[i].offset - begin_);
    const bool isWhole = !IsLine(heads_[i]) && IsSound(heads_[i]) &&
                         at + heads_[i].claimed <= Size() && BeginsSoundly(at + heads_[i].claimed);
    if (!isWhole) continue;
    (at - at_ < length ? present : behind) = at - at_;
    break;
  }
  // Neither whole, nor does anything begin where it should end: it and what follows lack bytes.
  const bool isOpen = present == 0 && isFinal_ && !isEndOfAll_ && behind - length <= LongestFrame;
  if (present == 0 && !isOpen) return false;
  Place place = Here(isOpen ? behind : present);
  place.protocol = head.protocol;
  place.message = MessageOf(From(at_));
  place.claimed = length;
  place.lost = isOpen ? 0 : length - present;
  if (isEndOfAll_ && present == there) {
    Explain(Cause::EndsInside, std::move(place));
    return true;
  }
  if (place.lost == 1 && budget_ > MostTries * length) {
    Spend(MostTries * length);
    if (HoldsWithCr(From(at_).first(present), scratch_)) {
      ++lostCrCount_;
      if (lostCrs_.size() < MostPlaces) {
        lostCrs_.push_back(place);
        lostCrs_.back().offset = findings_.Map(place.offset);
        lostCrs_.back().count = 1;
      }
    }
  }
  Explain(Cause::BytesLost, std::move(place));
  return true;
}

}  // namespace navframe::analysis
