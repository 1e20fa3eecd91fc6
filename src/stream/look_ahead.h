// Looks for frames behind the head of a stream, without touching what is there.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "stream/frame_decoders.h"
#include "stream/strong_heads.h"

namespace navframe {

// The protocols that a search is for. Head::Slack bytes behind what is searched may be loaded.
class SearchedProtocols {
 public:
  explicit SearchedProtocols(std::span<const ProtocolRow* const> rows);

  // Null when the byte starts nothing.
  const ProtocolRow* RowOf(std::uint8_t syncByte) const { return rows_[syncByte]; }

  // Whether a frame may begin with these bytes, of which the first is a sync byte. Every framer has
  // rejected a head of which this is false, for its header, when ShortestJudged bytes are there.
  bool MayStart(std::uint8_t first, std::uint8_t second) const {
    return (ofFirst_[first] & ofSecond_[second]) != 0;
  }
  static constexpr std::uint32_t ShortestJudged = nmea::LongestSentence;

  // The offset of the first sync byte; `length` without one.
  std::size_t Find(const std::uint8_t* data, std::size_t length) const;

  // The first place of a head from `at` to `end` at which a frame may begin by its first two bytes,
  // as far as they are there; `end` without one.
  std::uint32_t FindStart(const Head& head, std::uint32_t at, std::uint32_t end) const;

 private:
  static constexpr std::size_t Most = std::size(Protocols) + std::size(StreamProtocols);

  // The first of `length` bytes that is a sync byte and that `accept` takes at its offset.
  template <class Accept>
  std::size_t FindSyncByte(const std::uint8_t* data, std::size_t length, Accept&& accept) const;

  std::size_t count_;
  std::array<std::uint8_t, Most> bytes_{};  // filled up with the first when they are fewer
  std::array<const ProtocolRow*, 256> rows_{};
  std::array<std::uint8_t, 256> ofFirst_{};   // a bit for the row of a sync byte
  std::array<std::uint8_t, 256> ofSecond_{};  // bits for the rows whose second byte it may be
};

// Looks inside frames for those with a stronger check than one rank has. The bytes are searched
// once from the first to the last, whichever frames they belong to.
class StrongerFrames {
 public:
  // `protocols` must outlive this.
  StrongerFrames(Rank than, const Dialect& dialect, const SearchedProtocols& protocols)
      : than_(than), dialect_(dialect), protocols_(protocols) {}

  enum class Answer : std::uint8_t { None, Frame, Open };

  // Whether a whole stronger frame begins among the bytes 1 to `length` - 1 of the head, or in
  // front of it a head that needs more bytes; with `ended` no such head is waited for.
  Answer Look(const Head& head, std::uint32_t length, bool ended) {
    if (next_ >= head.position + length) [[likely]]
      return Answer::None;
    return Search(head, length, ended);
  }

 private:
  void FindNext(const Head& head, std::uint32_t length);
  Answer Search(const Head& head, std::uint32_t length, bool ended);

  Rank than_;
  Dialect dialect_;
  const SearchedProtocols& protocols_;
  FramingState state_;
  std::uint64_t next_ = 0;  // no head of a stronger frame begins in front of this position
  bool isHead_ = false;     // one may begin there; else the search goes on there
};

// Looks behind heads that wait on a quiet line.
class FramesBehind {
 public:
  FramesBehind(const Dialect& dialect, const SearchedProtocols& protocols)
      : dialect_(dialect), protocols_(protocols) {}

  // Where the first whole frame behind the head begins, whatever waits in front of it; 0 for none.
  // False heads could make every search dear: what it costs is paid by the bytes that came, and
  // without that nothing is found.
  std::uint32_t Find(const Head& head);

 private:
  Dialect dialect_;
  const SearchedProtocols& protocols_;
  FramingState state_;
  std::uint64_t base_ = 0;                  // places go up from search to search, as framers want
  std::uint64_t seen_ = 0;                  // position behind the last byte that was there
  std::uint64_t head_ = ~std::uint64_t{0};  // position of the last head
  std::int64_t credit_ = 0;
};

}  // namespace navframe
