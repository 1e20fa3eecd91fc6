// Looks for frames behind the head of a stream, without touching what is there.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/byte_finder.h"
#include "stream/frame_decoders.h"

namespace navframe {

// The protocols that a search is for.
class SearchedProtocols {
 public:
  static constexpr std::size_t Most = 6;

  explicit SearchedProtocols(std::span<const ProtocolRow* const> rows);

  const ProtocolRow* RowOf(std::uint8_t syncByte) const { return rows_[syncByte]; }
  std::size_t Find(const std::uint8_t* data, std::size_t length) const {
    return finder_.Find(data, length);
  }

 private:
  std::array<const ProtocolRow*, 256> rows_{};
  ByteFinder<Most> finder_;
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
