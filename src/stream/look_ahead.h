// Looks for frames behind the head of a stream, without touching what is there.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "stream/frame_decoders.h"

namespace navframe {

// The protocols that a search is for. Head::Slack bytes behind what is searched may be loaded.
class SearchedProtocols {
 public:
  explicit SearchedProtocols(std::span<const ProtocolRow* const> rows);

  // Null when the byte starts nothing.
  const ProtocolRow* RowOf(std::uint8_t syncByte) const { return rows_[syncByte]; }

  // The offset of the first sync byte; `length` without one.
  std::size_t Find(const std::uint8_t* data, std::size_t length) const;

  // The first place of a head from `at` to `end` at which a frame may begin by its first two bytes,
  // as far as they are there; `end` without one.
  std::uint32_t FindStart(const Head& head, std::uint32_t at, std::uint32_t end) const;

 private:
  static constexpr std::size_t Most = std::size(Protocols) + std::size(StreamProtocols);
  static constexpr std::size_t MostStronger = 3;  // than the weakest

  // The first of `length` bytes that is a sync byte and that `accept` takes at its offset.
  template <class Accept>
  std::size_t FindSyncByte(const std::uint8_t* data, std::size_t length, Accept&& accept) const;

  std::size_t count_;
  std::array<std::uint8_t, Most> bytes_{};  // filled up with the first when they are fewer
  std::array<const ProtocolRow*, 256> rows_{};
  std::array<std::uint8_t, 256> ofFirst_{};   // a bit for the row of a sync byte
  std::array<std::uint8_t, 256> ofSecond_{};  // bits for the rows whose second byte it may be
};

class LookAhead {
 public:
  explicit LookAhead(const Dialect& dialect) : dialect_(dialect) {}

  enum class Answer : std::uint8_t { None, Frame, Open };

  // Whether a whole frame begins among the bytes 1 to `length` - 1 of the head, or in front of it a
  // head that needs more bytes. A head that was looked at before goes on where that ended.
  Answer Look(const Head& head, std::uint32_t length, const SearchedProtocols& protocols);

  // Where the first whole frame behind the head begins, whatever waits in front of it; 0 for none.
  std::uint32_t FindFrame(const Head& head, const SearchedProtocols& protocols);

 private:
  // The places that framers are told count on from head to head, as they want it.
  void Enter(const Head& head);
  Framing FrameAt(const Head& head, std::uint32_t at, const SearchedProtocols& protocols);

  Dialect dialect_;
  FramingState state_;
  std::uint64_t head_ = ~std::uint64_t{0};  // position of the head that was looked at
  std::uint32_t looked_ = 1;                // its bytes in front of this are done
  std::uint64_t base_ = 0;
  std::uint64_t farthest_ = 0;
};

}  // namespace navframe
