#include "ephemeris/collector.h"

#include <array>

#include "ephemeris/beidou_subframes.h"
#include "ephemeris/delivery.h"
#include "ephemeris/galileo_pages.h"
#include "ephemeris/glonass_strings.h"
#include "ephemeris/lnav.h"

namespace navframe::ephemeris {

// By satellite, from number 1 on.
struct SubframeCollector::Rooms {
  std::array<LnavAssembly, 32> gps;
  std::array<LnavAssembly, 10> qzss;
  std::array<GlonassAssembly, 32> glonass;
  std::array<InavAssembly, 36> inav;
  std::array<FnavAssembly, 36> fnav;
  std::array<D1Assembly, 63> d1;
  std::array<D2Assembly, 63> d2;
};

namespace {

// Signals that carry the messages, as receivers number them.
enum : std::uint8_t { GpsL1 = 0, GalileoE5a = 3, LastBeiDouB1B2 = 3 };

template <class Assemblies>
auto* RoomOf(const Subframe& subframe, Assemblies& assemblies) {
  const bool isOne = subframe.satellite >= 1 && subframe.satellite <= assemblies.size();
  return isOne ? &assemblies[subframe.satellite - 1U] : nullptr;
}

}  // namespace

SubframeCollector::SubframeCollector(RecordSink& sink, DecoderClock& time)
    : sink_(sink), time_(time) {}
SubframeCollector::~SubframeCollector() = default;

void SubframeCollector::MakeRoom() {
  if (rooms_ == nullptr) rooms_ = std::make_unique<Rooms>();
}

void SubframeCollector::Take(const Subframe& subframe) {
  const auto take = [&](auto& assemblies, auto decode) {
    auto* const assembly = RoomOf(subframe, assemblies);
    if (assembly == nullptr) return;
    if (auto record = decode(subframe, *assembly)) {
      Deliver(*record, NavframeTimeFromUbx, sink_, time_);
    }
  };
  const std::uint8_t signal = subframe.signal;
  switch (subframe.system) {
    case SubframeSystem::Gps:
      if (signal == GpsL1) take(rooms_->gps, TakeLnav);
      return;
    case SubframeSystem::Qzss:
      if (signal == GpsL1) take(rooms_->qzss, TakeLnav);
      return;
    case SubframeSystem::Glonass:
      return take(rooms_->glonass, TakeGlonass);
    case SubframeSystem::Galileo:
      return signal == GalileoE5a ? take(rooms_->fnav, TakeFnav) : take(rooms_->inav, TakeInav);
    case SubframeSystem::BeiDou:
      if (signal > LastBeiDouB1B2) return;
      return BeiDouMessage(subframe.satellite) == Message::D1 ? take(rooms_->d1, TakeD1)
                                                              : take(rooms_->d2, TakeD2);
  }
}

}  // namespace navframe::ephemeris
