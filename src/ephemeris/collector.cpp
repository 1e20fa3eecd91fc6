#include "ephemeris/collector.h"

#include <type_traits>

#include "ephemeris/delivery.h"

namespace navframe::ephemeris {
namespace {

// Signals that carry the messages, as receivers number them.
enum : std::uint8_t { GpsL1 = 0, GalileoE5a = 3, LastBeiDouB1B2 = 3 };

// Satellites of BeiDou with D1 are those between the others.
constexpr std::uint32_t FirstD1 = 6;
constexpr std::uint32_t LastD1 = 58;
constexpr std::uint32_t D1Satellites = LastD1 - FirstD1 + 1;

}  // namespace

template <class Use>
void SubframeCollector::WithRoom(const Subframe& subframe, Use&& use) {
  // Numbers below the first one are places beyond the room.
  const auto with = [&](auto& room, std::uint32_t place, auto take) {
    using Places = typename std::remove_reference_t<decltype(room)>::element_type;
    if (place < std::tuple_size_v<Places>) use(room, place, take);
  };
  const std::uint32_t place = subframe.satellite - 1U;
  switch (subframe.system) {
    case SubframeSystem::Gps:
      if (subframe.signal == GpsL1) with(gps_, place, TakeLnav);
      return;
    case SubframeSystem::Qzss:
      if (subframe.signal == GpsL1) with(qzss_, place, TakeLnav);
      return;
    case SubframeSystem::Glonass:
      return with(glonass_, place, TakeGlonass);
    case SubframeSystem::Galileo:
      return subframe.signal == GalileoE5a ? with(fnav_, place, TakeFnav)
                                           : with(inav_, place, TakeInav);
    case SubframeSystem::BeiDou:
      if (subframe.signal > LastBeiDouB1B2) return;
      if (BeiDouMessage(subframe.satellite) == Message::D1) {
        return with(d1_, subframe.satellite - FirstD1, TakeD1);
      }
      return with(d2_, subframe.satellite > LastD1 ? place - D1Satellites : place, TakeD2);
  }
}

void SubframeCollector::MakeRoom(const Subframe& subframe) {
  WithRoom(subframe, [](auto& room, std::uint32_t, auto) {
    using Places = typename std::remove_reference_t<decltype(room)>::element_type;
    if (room == nullptr) room = std::make_unique<Places>();
  });
}

void SubframeCollector::Take(const Subframe& subframe) {
  WithRoom(subframe, [&](auto& room, std::uint32_t place, auto take) {
    if (auto record = take(subframe, (*room)[place])) {
      Deliver(*record, NavframeTimeFromUbx, sink_, time_);
    }
  });
}

}  // namespace navframe::ephemeris
