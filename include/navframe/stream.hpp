// Streams as C++ classes: stream.h says what streams and items are, and holds here too. Header
// only, C++20.
//
//   navframe::Stream stream;
//   stream.feed(bytes, [](const navframe::Item& item) {
//     if (const auto* gga = item.as<GgaRecord>()) use(*gga);
//   });
//
// or, where the host wants the items in its own loop:
//
//   while (!bytes.empty()) {
//     bytes = bytes.subspan(stream.put(bytes));
//     for (const navframe::Item& item : stream.items()) use(item);
//   }
//
// The constructor of Stream throws; of everything else only what makes a std::string or a
// std::vector does, std::bad_alloc. Where stream.h has an error, functions here return it.
#ifndef NAVFRAME_STREAM_HPP
#define NAVFRAME_STREAM_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "navframe/catalogue.h"
#include "navframe/kinds_of.hpp"
#include "navframe/records.h"
#include "navframe/stream.h"

namespace navframe {

// A struct that is the payload of a kind of record.
template <class T>
concept RecordType = requires {
  KindsOf<T>::Ids;
};

// The kinds whose payloads these structs are, for NavframeOptions::kinds.
template <RecordType... Records>
std::vector<const NavframeKind*> kindsOf() {
  std::vector<const NavframeKind*> kinds;
  const auto add = [&kinds](std::span<const KindId> ids) {
    for (const auto& [id, source] : ids) kinds.push_back(navframe_kind(id, source));
  };
  (add(KindsOf<Records>::Ids), ...);
  return kinds;
}

// The usual options, for a host to change some of them.
struct StreamOptions : NavframeOptions {
  StreamOptions() noexcept : NavframeOptions{} {
    size = sizeof(NavframeOptions);
    navframe_default_options(this);
  }
};

// One item. It, and everything that it returns but copies, is good until the next call on its
// stream. Members are those of NavframeItem, which says what they are for each type of item.
class Item {
 public:
  Item() noexcept { raw_.size = sizeof raw_; }

  NavframeItemType type() const noexcept { return static_cast<NavframeItemType>(raw_.type); }
  NavframeProtocol protocol() const noexcept {
    return static_cast<NavframeProtocol>(raw_.protocol);
  }
  // Of the span, or of the frame that the record was decoded from.
  std::uint64_t offset() const noexcept { return raw_.offset; }
  std::span<const std::uint8_t> bytes() const noexcept { return {raw_.bytes, raw_.length}; }

  NavframeReason reason() const noexcept { return static_cast<NavframeReason>(raw_.reason); }
  std::string_view reasonText() const noexcept { return navframe_reason_text(raw_.reason); }
  std::uint32_t claimedLength() const noexcept { return raw_.claimedLength; }
  std::uint32_t badField() const noexcept { return raw_.badField; }

  std::uint32_t message() const noexcept { return raw_.message; }
  std::uint32_t subType() const noexcept { return raw_.subType; }
  std::string_view address() const noexcept { return raw_.address; }
  std::uint32_t recordCount() const noexcept { return raw_.recordCount; }
  // Empty without one.
  std::string_view tagBlock() const noexcept {
    return raw_.tagBlock == nullptr ? std::string_view() : std::string_view(raw_.tagBlock);
  }
  const NavframeTime& time() const noexcept { return raw_.time; }

  // Null unless the item is a record.
  const NavframeKind* kind() const noexcept { return raw_.kind; }
  // The payload of a record as what it is; null when the item is none, or one of another struct.
  // Several kinds may share a struct: kind() tells them apart.
  template <RecordType Record>
  const Record* as() const noexcept {
    if (raw_.kind == nullptr || raw_.kind->size < sizeof(Record)) return nullptr;
    for (const auto& [id, source] : KindsOf<Record>::Ids) {
      if (raw_.kind->id == id && raw_.kind->source == source) {
        return static_cast<const Record*>(raw_.record);
      }
    }
    return nullptr;
  }
  // The payload of a record as navframe_json writes it; empty for other items.
  std::string json() const {
    std::string text(1024, '\0');
    std::size_t length = navframe_json(raw_.kind, raw_.record, text.data(), text.size());
    if (length >= text.size()) {
      text.resize(length + 1);
      length = navframe_json(raw_.kind, raw_.record, text.data(), text.size());
    }
    text.resize(length);
    return text;
  }

  const NavframeItem& raw() const noexcept { return raw_; }

 private:
  friend class Stream;
  NavframeItem raw_{};
};

// What one receiver sends. A stream that was moved from can only be assigned to and destroyed;
// other calls on it answer NavframeBadArgument, 0 or nothing.
class Stream {
 public:
  // Throws std::invalid_argument for what navframe_open calls a bad argument or an unknown kind,
  // and std::bad_alloc.
  explicit Stream(const NavframeOptions& options = StreamOptions()) {
    NavframeStream* stream = nullptr;
    const NavframeStatus status = navframe_open(&options, &stream);
    if (status == NavframeOutOfMemory) throw std::bad_alloc();
    if (status != NavframeOk) throw std::invalid_argument(navframe_status_text(status));
    stream_.reset(stream);
  }

  // Appends bytes and returns how many of them were taken, as navframe_put does.
  std::size_t put(std::span<const std::uint8_t> bytes) noexcept {
    return navframe_put(stream_.get(), bytes.data(), bytes.size());
  }

  // Decodes until there is an item, as navframe_next does.
  NavframeStatus next(Item& item) noexcept {
    return status_ = navframe_next(stream_.get(), &item.raw_);
  }

  // What next answered last. NavframeNeedsBytes behind the end of items(), unless that was an
  // error.
  NavframeStatus status() const noexcept { return status_; }

  class Items;
  // The items that come before more bytes are needed: a range to be gone through once, by `for` or
  // an algorithm for input ranges. It ends early when next answers an error.
  Items items() noexcept;

  // Puts all of `bytes` and calls `use` with a const Item& for every item that comes, those of a
  // flush before it among them. Returns the bytes taken: all of them, unless next answered an
  // error. What `use` throws comes through; items that wait then are still there, and
  // NavframeStatistics::bytes tells how many bytes were put.
  template <class Use>
  std::size_t feed(std::span<const std::uint8_t> bytes, Use&& use) {
    std::size_t taken = 0;
    for (Item item;;) {
      // Items first: a flush, or a full buffer, takes nothing before they are out.
      while (next(item) == NavframeItemReady) use(std::as_const(item));
      if (status_ < 0 || taken == bytes.size()) return taken;
      const std::size_t more = put(bytes.subspan(taken));
      if (more == 0) return taken;
      taken += more;
    }
  }
  // Ends the input and calls `use` for every item that still comes. Errors: those of next.
  template <class Use>
  NavframeStatus finish(Use&& use) {
    Item item;
    flush();
    while (next(item) == NavframeItemReady) use(std::as_const(item));
    return status_;
  }

  // The functions of the same names; items come out of them by next, items or feed.
  NavframeStatus flush() noexcept { return navframe_flush(stream_.get()); }
  NavframeStatus idle() noexcept { return navframe_idle(stream_.get()); }
  NavframeStatus reset() noexcept { return navframe_reset(stream_.get()); }

  // All 0 of a stream that was moved from.
  NavframeStatistics statistics() const noexcept {
    NavframeStatistics statistics{};
    statistics.size = sizeof statistics;
    navframe_statistics(stream_.get(), &statistics);
    return statistics;
  }

  void* user() const noexcept { return navframe_user(stream_.get()); }
  // For the functions of stream.h; stays the Stream's.
  NavframeStream* handle() const noexcept { return stream_.get(); }

 private:
  struct Closer {
    void operator()(NavframeStream* stream) const noexcept { navframe_close(stream); }
  };
  std::unique_ptr<NavframeStream, Closer> stream_;
  NavframeStatus status_ = NavframeNeedsBytes;
};

// The stream must neither be moved nor destroyed while it is gone through.
class Stream::Items {
 public:
  class Iterator {
   public:
    using value_type = Item;
    using difference_type = std::ptrdiff_t;

    const Item& operator*() const noexcept { return items_->item_; }
    const Item* operator->() const noexcept { return &items_->item_; }
    Iterator& operator++() noexcept {
      items_->stream_->next(items_->item_);
      return *this;
    }
    void operator++(int) noexcept { ++*this; }
    bool operator==(std::default_sentinel_t) const noexcept {
      return items_->stream_->status() != NavframeItemReady;
    }

   private:
    friend class Items;
    explicit Iterator(Items* items) noexcept : items_(items) {}
    Items* items_;
  };

  Iterator begin() noexcept { return ++Iterator(this); }
  std::default_sentinel_t end() const noexcept { return {}; }

 private:
  friend class Stream;
  explicit Items(Stream* stream) noexcept : stream_(stream) {}

  Stream* stream_;
  Item item_;
};

inline Stream::Items Stream::items() noexcept { return Items(this); }

}  // namespace navframe

#endif  // NAVFRAME_STREAM_HPP
