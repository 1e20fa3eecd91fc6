// A host side that goes on when a malformed NMEA field stops the library. C++, header only.
//
// A field that cannot be converted leaves GNSSPutData as an exception, and the sentence stays at
// the head of the library's ring: a host that only pushes on meets it for ever. Feeder pushes a
// stream through the exports alone, takes such a sentence out, reports it, and goes on behind it.
// Nothing else is lost: time, queue and satellites in view stay as they are.
#ifndef NAVFRAME_FEEDER_HPP
#define NAVFRAME_FEEDER_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "navframe/navframe.h"

namespace navframe {

// Feeds one stream to the library. While it does, nothing else may call GNSSPutData.
class Feeder {
 public:
  // A sentence that was taken out.
  struct Rejected {
    std::uint64_t offset;  // of its "$" in the stream, counted from the first byte pushed
    std::string sentence;  // from "$" through the checksum
    std::string reason;    // what() of the exception
  };

  // `onRejected` hears of every sentence that was taken out. `onHalfFull`, when given, is called
  // whenever half of the library's queue is filled in the middle of a Push: a host that pops its
  // records there loses none of them, however large its chunks.
  explicit Feeder(std::function<void(const Rejected&)> onRejected = {},
                  std::function<void()> onHalfFull = {})
      : onRejected_(std::move(onRejected)), onHalfFull_(std::move(onHalfFull)) {}

  // Pushes bytes in any split and returns the number of records waiting. Throws only what did not
  // come from a sentence of this stream, and std::bad_alloc.
  std::uint32_t Push(const std::uint8_t* data, std::size_t length) {
    std::size_t at = 0;
    while (at < length) {
      const std::size_t slice = SliceLength(data + at, length - at);
      const bool taken = PushSlice(data + at, slice);
      at += slice;
      if (!taken) PushRest(TakeOut());
    }
    return waiting_;
  }

 private:
  using Bytes = std::vector<std::uint8_t>;

  // Slices end at a line feed, so that little follows a malformed sentence in the ring.
  static constexpr std::size_t LongestSlice = 4096;
  // How far behind the last byte pushed a sentence can begin that is decoded only now: it may lie
  // inside what looked like the longest binary frame until its last byte came.
  static constexpr std::size_t Reach = 2 * LongestSlice + 256;

  static std::size_t SliceLength(const std::uint8_t* data, std::size_t length) {
    const std::size_t most = std::min(length, LongestSlice);
    const void* const lineFeed = std::memchr(data, '\n', most);
    if (lineFeed == nullptr) return most;
    return static_cast<std::size_t>(static_cast<const std::uint8_t*>(lineFeed) - data) + 1;
  }

  // False when the library stopped at a malformed sentence.
  bool PushSlice(const std::uint8_t* data, std::size_t length) {
    if (recent_.size() > 4 * Reach) {
      recent_.erase(recent_.begin(), recent_.end() - static_cast<std::ptrdiff_t>(Reach));
    }
    recent_.insert(recent_.end(), data, data + length);
    recentEnd_ += length;
    if (!Put(data, length)) return false;
    if (onHalfFull_ && waiting_ >= NAVFRAME_MAX_QUEUED_MESSAGES / 2) onHalfFull_();
    return true;
  }

  // Pushes again what followed a sentence that was taken out. There may be more of its kind.
  void PushRest(Bytes rest) {
    std::size_t at = 0;
    while (at < rest.size()) {
      const std::size_t slice = SliceLength(rest.data() + at, rest.size() - at);
      const bool taken = PushSlice(rest.data() + at, slice);
      at += slice;
      if (taken) continue;
      Bytes again = TakeOut();
      again.insert(again.end(), rest.begin() + static_cast<std::ptrdiff_t>(at), rest.end());
      rest = std::move(again);
      at = 0;
    }
  }

  // False when a field could not be converted; the reason is kept then.
  bool Put(const std::uint8_t* data, std::size_t length) {
    try {
      waiting_ = GNSSPutData(data, static_cast<std::uint32_t>(length));
      return true;
    } catch (const std::invalid_argument& error) {
      reason_ = error.what();
    } catch (const std::out_of_range& error) {
      reason_ = error.what();
    }
    return false;
  }

  // Empties the ring, whose head is a malformed sentence, and returns the bytes that followed its
  // "$". A chunk exactly as large as the free space makes the ring read as empty, and one that is
  // larger is dropped whole; so the place of the "$", which only the library knows, is found by
  // trying every "$" from the last one back: the first filler that stops the exception fitted.
  Bytes TakeOut() {
    const std::string reason = reason_;
    for (std::size_t at = recent_.size(); at-- > 0;) {
      if (recent_[at] != '$') continue;
      const std::size_t used = recent_.size() - at;
      if (!Put(Filler(), NAVFRAME_RING_CAPACITY - used)) continue;
      // The sentence framer still owns the ring: give it a head that is no sentence.
      static constexpr std::uint8_t NoSentence[] = {'*', ' ', ' '};
      Put(NoSentence, sizeof NoSentence);
      return Report(at, reason);
    }
    throw std::logic_error("navframe::Feeder: stopped by bytes that were not pushed here: " +
                           reason);
  }

  Bytes Report(std::size_t at, const std::string& reason) {
    const auto begin = recent_.begin() + static_cast<std::ptrdiff_t>(at);
    const std::uint64_t offset = recentEnd_ - (recent_.size() - at);
    const auto star = std::find(begin, recent_.end(), '*');
    const auto end = star + std::min<std::ptrdiff_t>(3, recent_.end() - star);
    Rejected rejected{offset, std::string(begin, end), reason};
    Bytes rest(begin + 1, recent_.end());
    recent_.clear();
    recentEnd_ = offset + 1;
    if (onRejected_) onRejected_(rejected);
    return rest;
  }

  // As many bytes as the ring holds. Zero pages of the system, so they cost no memory.
  const std::uint8_t* Filler() {
    if (!filler_) {
      filler_.reset(static_cast<std::uint8_t*>(std::calloc(NAVFRAME_RING_CAPACITY, 1)));
      if (!filler_) throw std::bad_alloc();
    }
    return filler_.get();
  }

  struct Freer {
    void operator()(std::uint8_t* block) const { std::free(block); }
  };

  std::function<void(const Rejected&)> onRejected_;
  std::function<void()> onHalfFull_;
  Bytes recent_;                 // the last bytes pushed: the ring's content, and before
  std::uint64_t recentEnd_ = 0;  // offset in the stream behind the last of them
  std::uint32_t waiting_ = 0;
  std::string reason_;
  std::unique_ptr<std::uint8_t, Freer> filler_;
};

}  // namespace navframe

#endif  // NAVFRAME_FEEDER_HPP
