// A host of one stream that holds every item against the bytes that it put.
#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "fuzz.h"
#include "navframe/stream.h"
#include "support/streams.h"

namespace navframe::fuzz {

// What is kept of an item: everything but where its bytes lay.
struct Taken {
  NavframeItem item;
  std::string address;
  std::string tagBlock;
  std::vector<test::Record> record;  // one or none

  bool IsSpan() const { return item.type != NavframeItemRecord; }
  bool operator==(const Taken& other) const;
};

// With all protocols and items, in a dialect.
NavframeOptions OptionsOf(NavframeDialect dialect);

// Whether a frame gave no record of its own.
bool IsUndecoded(const NavframeItem& item, const NavframeOptions& options);

class StreamHost {
 public:
  explicit StreamHost(const NavframeOptions& options);
  StreamHost(const StreamHost&) = delete;
  StreamHost& operator=(const StreamHost&) = delete;
  ~StreamHost() { navframe_close(stream_); }

  // Puts the bytes in chunks of `nextLength()`, and takes the items of each.
  template <class NextLength>
  void Put(std::span<const std::uint8_t> bytes, NextLength&& nextLength) {
    for (Input chunks(bytes); !chunks.Empty();) Put(chunks.Next(nextLength()));
  }
  void Put(std::span<const std::uint8_t> chunk);
  // Puts as many of the bytes as the stream takes, and asks for no item.
  void PutOnly(std::span<const std::uint8_t> bytes);
  // Takes one item, if there is one.
  bool TakeItem();
  void TakeItems();
  void Flush();
  void Idle();
  void Reset();

  const std::vector<Taken>& Items() const { return items_; }

 private:
  std::size_t Append(std::span<const std::uint8_t> bytes);
  void Check(const NavframeItem& item);
  void CheckSpan(const NavframeItem& item);
  void CheckTagBlock(const NavframeItem& item);
  void CheckRecord(const NavframeItem& item);
  void CheckStatistics();
  NavframeProtocolStatistics& CountsOf(std::uint32_t protocol);
  bool AreAsked(std::uint32_t items) const { return (options_.items & items) == items; }

  NavframeOptions options_;
  NavframeStream* stream_ = nullptr;
  std::vector<Taken> items_;
  Bytes put_;                  // since the last reset
  std::size_t covered_ = 0;    // by spans
  bool inputBegins_ = true;    // at the last byte that is covered
  std::uint32_t records_ = 0;  // that the last span is to have
  NavframeItem span_{};        // the last one
  NavframeStatistics counted_{};
};

}  // namespace navframe::fuzz
