// Counts by message and by kind of record.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "analysis/pace.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Frames of a message.
struct Message {
  std::uint32_t protocol = 0;  // a NavframeProtocol
  std::string message;         // as the protocol writes it: "GNGGA", "1077", "4074-13", "01-07"
  std::string name;            // "" of one without
  std::vector<const NavframeKind*> kinds;  // of its records; none of one that is not decoded
  std::uint64_t bytes = 0;
  std::uint64_t undecoded = 0;   // frames of a message without a kind
  std::uint64_t badContent = 0;  // those that do not hold what they must
  std::uint64_t badField = 0;    // sentences with a field that cannot be converted
  Rhythm rhythm;
};

// Records of a kind.
struct KindCount {
  const NavframeKind* kind;
  Rhythm rhythm;
};

// What the message of a frame is called by the documents of its protocol, as Message::message.
std::string MessageText(const NavframeItem& frame);

// Messages by name; more of them than there is room for are counted together, as messages without
// a name. Memory is taken for messages that come.
class MessageTable {
 public:
  static constexpr std::size_t MostMessages = 1024;

  MessageTable();

  void Frame(const NavframeItem& item, std::int64_t time) {
    Row& row = RowOf(item);
    row.bytes += item.length;
    if (item.reason != NavframeNoReason) ++row.reasons[item.reason & 15];
    row.pace.Take(time);
  }

  // Behind the frame that the record is of. Kinds have numbers from 0 on, as they come; the one of
  // this record is returned.
  std::size_t Record(const NavframeItem& item, std::int64_t time) {
    Row& row = rows_[current_];
    if (row.lastKind != item.kind) Relate(row, item);
    kindRows_[row.lastKindRow].pace.Take(time);
    return row.lastKindRow;
  }

  std::vector<Message> Messages(std::int64_t origin) const;
  std::vector<KindCount> Kinds(std::int64_t origin) const;
  // Frames beyond those messages.
  std::uint64_t Unlisted() const { return unlisted_.pace.Count(); }

 private:
  struct Key {
    std::uint64_t address = 0;  // its first eight characters
    std::uint64_t addressEnd = 0;
    std::uint64_t number = 0;  // protocol, message and sub-type
    bool operator==(const Key&) const = default;
  };
  struct Row {
    Key key;
    std::size_t next = 0;  // what came behind it last time
    std::uint64_t bytes = 0;
    std::array<std::uint64_t, 16> reasons{};  // by NavframeReason
    std::vector<const NavframeKind*> kinds;
    const NavframeKind* lastKind = nullptr;  // of the record that came last behind it
    std::size_t lastKindRow = 0;
    bool isGsv = false;
    std::string message;
    std::string name;
    Pace pace;
  };
  struct KindRow {
    const NavframeKind* kind = nullptr;
    Pace pace;
  };

  static Key KeyOf(const NavframeItem& item) {
    static_assert(sizeof(item.address) == 16);
    Key key;
    if (item.address[0] != '\0') {  // it is filled up with 0
      std::memcpy(&key.address, item.address, sizeof key.address);
      std::memcpy(&key.addressEnd, item.address + sizeof key.address, sizeof key.addressEnd);
    }
    key.number = std::uint64_t{item.protocol} << 56 | std::uint64_t{item.message} << 24 |
                 (item.subType & 0xFFFFFF);
    return key;
  }
  Row& RowOf(const NavframeItem& item) {
    const Key key = KeyOf(item);
    Row& current = rows_[current_];
    if (current.key == key) return current;
    if (rows_[current.next].key == key) {
      current_ = current.next;
      return rows_[current_];
    }
    return Find(key, item);
  }
  Row& Find(const Key& key, const NavframeItem& item);
  void Relate(Row& row, const NavframeItem& item);
  std::size_t RowOf(const NavframeKind* kind);

  std::vector<Row> rows_;              // the first one is none
  std::vector<std::uint16_t> places_;  // of rows, by a hash of their keys; 0 of none
  std::size_t current_ = 0;
  Row unlisted_;
  std::vector<KindRow> kindRows_;
  std::vector<std::uint16_t> kindPlaces_;  // the same by the kinds' addresses
};

}  // namespace navframe::analysis
