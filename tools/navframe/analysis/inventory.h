// Takes the items of a stream one by one, and tells in the end what it held.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "analysis/contents.h"
#include "analysis/fixes.h"
#include "analysis/message_table.h"
#include "analysis/pace.h"
#include "analysis/satellite_tally.h"
#include "analysis/timeline.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// What an Inventory wants of a stream of the Standard dialect: NavframeOptions::items.
inline constexpr std::uint32_t InventoryItems = NavframeAllItems;

// Its memory does not grow with what it takes, beyond a bound.
class Inventory {
 public:
  void Take(const NavframeItem& item) {
    const std::int64_t time = timeline_.At(item.time);
    if (item.type == NavframeItemRecord) {
      Record(item, time);
    } else if (item.type == NavframeItemFrame) {
      messages_.Frame(item, time);
      if (time != time_) Go(time);
    } else {
      NotInFrame(item);
    }
  }

  // Behind a flush, with the statistics of the stream.
  Contents End(const NavframeStatistics& statistics);

 private:
  // What records of a kind are good for.
  struct Role {
    SeenIn seen = SeenIn::Nothing;
    bool isFix = false;
    bool announces = false;
    bool isNone = false;  // nothing of that
  };
  static constexpr std::size_t Reasons = 9;
  static constexpr std::size_t Protocols = 8;  // bits of NavframeProtocol

  void Record(const NavframeItem& item, std::int64_t time) {
    const std::size_t kind = messages_.Record(item, time);
    if (kind == roles_.size()) AddRole(*item.kind);
    const Role& role = roles_[kind];
    if (!role.isNone) Use(role, item, time);
  }
  void AddRole(const NavframeKind& kind);
  void Use(const Role& role, const NavframeItem& item, std::int64_t time);
  void Go(std::int64_t time);
  void NotInFrame(const NavframeItem& item);
  void Note(const Fix* fix);

  Timeline timeline_;
  MessageTable messages_;
  SatelliteTally satellites_;
  Announced announced_;
  Epochs epochs_;
  PositionFound position_;
  std::vector<Role> roles_;  // by the numbers that kinds have in messages_
  std::int64_t time_ = NoTime;
  std::int64_t earliest_ = NoTime;
  std::int64_t latest_ = NoTime;
  std::uint64_t jumps_ = 0;
  Outside outside_;
  std::uint64_t outsideEnd_ = 0;     // where the last run of bytes in no frame ends
  std::uint64_t outsideLength_ = 0;  // and its length
  std::array<std::array<std::uint64_t, Reasons>, Protocols> rejected_{};
};

}  // namespace navframe::analysis
