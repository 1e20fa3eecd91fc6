#include "rinex/navigation_files.h"

#include <algorithm>

#include "navframe/records.h"
#include "rinex/named_file.h"
#include "rinex/observation_header.h"

namespace navframe::tool {
namespace {

constexpr std::uint16_t NoWeek = 65535;
constexpr std::uint32_t NoTow = 0xFFFFFFFF;
constexpr Ticks TicksPerMillisecond = TicksPerSecond / 1000;

bool IsEphemeris(const NavframeItem& item) {
  return item.kind->id >= EphemerisIdGps && item.kind->id <= EphemerisIdNavIc;
}

// GPS time of an item.
std::optional<Ticks> TimeOf(const NavframeTime& time) {
  if (time.week == NoWeek || time.tow == NoTow) return std::nullopt;
  return time.week * TicksPerWeek + time.tow * TicksPerMillisecond;
}

}  // namespace

void NavigationFiles::Widen(std::optional<Span>& span, Ticks time) {
  if (!span) span = Span{time, time};
  span = Span{std::min(span->first, time), std::max(span->last, time)};
}

// The first ones may come before the stream tells its week.
void NavigationFiles::NoteObserved(const NavframeTime& time) {
  if (time.tow != NoTow && !firstTow_) firstTow_ = time.tow;
  const std::optional<Ticks> now = TimeOf(time);
  if (!now) return;
  if (!observed_) {
    const Ticks first = *now - (time.tow - Ticks{*firstTow_}) * TicksPerMillisecond;
    Widen(observed_, first > *now ? first - TicksPerWeek : first);
  }
  Widen(observed_, *now);
}

void NavigationFiles::Take(const NavframeItem& item) {
  const std::optional<Ticks> time = TimeOf(item.time);
  if (item.kind->id == MsgIdObservations) NoteObserved(item.time);
  if (time && IsEphemeris(item)) {
    const Ticks split = options_.naming.split;
    const Ticks period = split != 0 ? *time / split : 0;
    if (period > period_) {  // what comes late stays with what comes now
      if (period_ != 0) End();
      period_ = period;
    }
    Widen(came_, *time);
  }
  if (file_ == nullptr) {
    file_ = std::make_unique<NavigationFile>(options_.version, options_.satellites);
  }
  file_->Take(item);
}

void NavigationFiles::End() {
  if (file_ == nullptr) return;
  const std::unique_ptr<NavigationFile> file = std::move(file_);
  undated_ += file->Undated();
  damaged_ += file->Damaged();
  const std::optional<Span> came = std::exchange(came_, std::nullopt);
  if (file->IsEmpty()) return;
  const Ticks split = options_.naming.split;
  Span span = {file->FirstEpoch() * TicksPerSecond, file->LastEpoch() * TicksPerSecond};
  if (came) span = *came;
  if (split != 0 && period_ != 0) span.first = std::max(span.first, period_ * split);
  if (split == 0 && observed_) span = *observed_;
  FileContent content;
  content.isNavigation = true;
  content.system = file->System();
  content.isMixed = content.system == 'M';
  content.isStream = file->IsFromCaster();
  content.first = span.first;
  content.last = span.last;
  const NavigationFacts facts = facts_();
  const NavigationHeader header = {
      options_.runBy, DateOfFile(span.first), {"weeks: " + facts.dateFrom}, facts.leapSeconds};
  WriteNamed(NameOf(options_.naming, content), options_.naming.gzip,
             [&](Output& output) { ephemerides_ += file->Write(header, output); });
}

}  // namespace navframe::tool
