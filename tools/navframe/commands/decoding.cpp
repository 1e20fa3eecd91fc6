#include "commands/decoding.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include "fault.h"
#include "interrupt.h"
#include "sources/gga.h"
#include "sources/recorded.h"

namespace navframe::tool {
namespace {

std::string Malformed(const NavframeItem& item) {
  std::string_view bytes(reinterpret_cast<const char*>(item.bytes), item.length);
  bytes = bytes.substr(0, bytes.find_last_not_of("\r\n") + 1);
  return "malformed sentence at byte " + std::to_string(item.offset) + ": " + std::string(bytes) +
         " (field " + std::to_string(item.badField) + ": " + navframe_reason_text(item.reason) +
         ")";
}

}  // namespace

std::unique_ptr<Source> OpenInput(const DecodeOptions& options, const std::string& name) {
  std::unique_ptr<Source> source = OpenSource(name);
  if (!options.record.empty()) source = Recorded(std::move(source), options.record);
  if (options.position) source->Tell(*options.position);
  return source;
}

Decoding::Decoding(const DecodeOptions& options, const std::string& source, Outputs& outputs,
                   const Reports& reports, std::uint64_t& wanted, LiveTogether* live)
    : options_(options),
      name_(source),
      outputs_(outputs),
      sink_(options.form->make(options.sink, outputs)),
      reports_(reports),
      wanted_(wanted),
      live_(live),
      tellsPosition_(live != nullptr && !options.position),
      selection_(options.filters),
      stream_(Open()) {}

// Whether the tool itself leaves out the kinds that are not wanted: where the others matter, too.
bool Decoding::LooksAtAllKinds() const {
  return tellsPosition_ || options_.form->takesFrames || options_.filters.CountFromStart();
}

NavframeStream* Decoding::Open() const {
  NavframeOptions ours{};
  ours.size = sizeof ours;
  navframe_default_options(&ours);
  ours.protocols = options_.protocols;
  ours.startWeek = options_.startWeek;
  if (options_.sink.legacy) {
    ours.dialect = NavframeLegacy;
    ours.protocols &= ~std::uint32_t{NavframeAsciiLog};  // which that dialect does not have
    ours.startWeek = 0;
  }
  ours.items = NavframeItemRecord | NavframeItemUndecoded;
  // Sentences with a malformed field are told by their frames, also where they give a record; and
  // the stream may start with a frame that gives none.
  if (options_.form->takesFrames || options_.stats || !options_.quiet ||
      options_.filters.CountFromStart()) {
    ours.items |= NavframeItemFrame;
  }
  if (options_.sink.withParts) ours.items |= NavframeItemRejected | NavframeItemSkipped;
  if (!LooksAtAllKinds()) {
    ours.kinds = options_.kinds.data();
    ours.kindCount = static_cast<std::uint32_t>(options_.kinds.size());
  }
  NavframeStream* stream = nullptr;
  if (navframe_open(&ours, &stream) != NavframeOk) throw std::bad_alloc();
  return stream;
}

void Decoding::Run(Source& source) {
  std::vector<std::uint8_t> chunk(options_.chunk);
  try {
    std::uint64_t shown = 0;
    while (Take(source, chunk)) {
      reports_.progress.Add(source.Taken() - std::exchange(shown, source.Taken()));
    }
  } catch (const Fault&) {
    const auto turn = Turn();
    End();
    throw;
  }
  const auto turn = Turn();
  const std::uint64_t waiting = source.IsConnection() ? Waiting() : 0;
  End();
  if (waiting != 0 && !IsDone()) {
    throw Fault("cannot read " + name_ + ": closed by the other side inside a frame, " +
                std::to_string(waiting) + " bytes behind where it begins");
  }
}

// A chunk; false behind the last one.
bool Decoding::Take(Source& source, std::vector<std::uint8_t>& chunk) {
  if (IsInterrupted() || reports_.isStopped) return false;
  const Reading reading = source.Read(chunk.data(), chunk.size());
  const auto turn = Turn();
  if (reading.state == Reading::State::End || IsFull()) return false;
  if (reading.state == Reading::State::Quiet) navframe_idle(stream_.get());
  Put(chunk.data(), reading.length);
  if (source.IsLive()) outputs_.Flush();
  return !IsDone();
}

// Files have no others to wait for.
std::unique_lock<std::mutex> Decoding::Turn() const {
  return live_ == nullptr ? std::unique_lock<std::mutex>() : std::unique_lock(live_->turn);
}

bool Decoding::IsFull() const {
  return reports_.isStopped || (options_.first != 0 && wanted_ >= options_.first);
}
bool Decoding::IsDone() const { return IsInterrupted() || IsFull(); }

void Decoding::Put(const std::uint8_t* data, std::size_t length) {
  do {
    const std::size_t taken = navframe_put(stream_.get(), data, length);
    data += taken;
    length -= taken;
    Drain();
  } while (length != 0 && !IsDone());
}

std::uint64_t Decoding::Waiting() const {
  NavframeStatistics statistics{};
  statistics.size = sizeof statistics;
  navframe_statistics(stream_.get(), &statistics);
  return statistics.waitingBytes;
}

void Decoding::End() {
  if (live_ != nullptr && reports_.isStopped) return;  // the output that they share has failed
  navframe_flush(stream_.get());
  Drain();
  reports_.statistics.Stream(stream_.get());
}

void Decoding::Drain() {
  NavframeItem item;
  item.size = sizeof item;
  NavframeStatus status = NavframeNeedsBytes;
  while ((options_.first == 0 || wanted_ < options_.first) &&
         (status = navframe_next(stream_.get(), &item)) == NavframeItemReady) {
    if (item.type == NavframeItemRecord) {
      Record(item);
    } else {
      Part(item);
    }
  }
  if (status < 0) throw Fault(navframe_status_text(status));
}

void Decoding::Record(const NavframeItem& item) {
  if (tellsPosition_) TellPosition(item);
  const bool isOfKind = !LooksAtAllKinds() || options_.kinds.empty() ||
                        std::ranges::find(options_.kinds, item.kind) != options_.kinds.end();
  if (isOfKind) reports_.statistics.Record(item);
  const bool passes = selection_.PassesTime(item) && isOfKind;
  const void* const record = passes ? selection_.Pick(item) : nullptr;
  if (record == nullptr) return sink_->Leave(item);
  sink_->Take({item, record, name_});
  ++wanted_;
}

void Decoding::Part(const NavframeItem& item) {
  const bool isFrame = item.type == NavframeItemFrame;
  if (isFrame) {
    reports_.statistics.Frame(item);
    if (item.reason == NavframeBadField && !options_.quiet) {
      reports_.messages.Add(Malformed(item));
    }
  }
  const bool isUndecoded = !isFrame || item.reason == NavframeNoKind ||
                           item.reason == NavframeBadContent ||
                           (item.reason == NavframeBadField && options_.sink.legacy);
  const bool isWanted = options_.form->takesFrames || (options_.sink.withParts && isUndecoded);
  const bool isInTime = selection_.PassesTime(item);
  if (isWanted && isInTime) return sink_->Take({item, nullptr, name_});
  sink_->Leave(item);
}

void Decoding::TellPosition(const NavframeItem& item) const {
  const auto position = PositionOf(item);
  if (!position) return;
  for (Source* const source : live_->sources) source->Tell(*position);
}

}  // namespace navframe::tool
