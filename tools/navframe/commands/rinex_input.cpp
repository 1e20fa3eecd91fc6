#include "commands/rinex_input.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <span>
#include <thread>
#include <utility>

#include "fault.h"
#include "interrupt.h"
#include "navframe/records.h"
#include "navframe/stream.hpp"
#include "rinex/navigation_file.h"
#include "rinex/station_notes.h"
#include "sources/address.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

constexpr std::size_t ChunkLength = 1 << 16;

std::vector<const NavframeKind*> KindsOfFiles() {
  auto kinds = kindsOf<ObservationsRecord, UbxClockRecord>();
  for (const NavframeKind* const kind : StationNotes::Kinds()) kinds.push_back(kind);
  for (const NavframeKind* const kind : NavigationFile::Kinds()) kinds.push_back(kind);
  return kinds;
}

Stream OpenStream(std::uint32_t week, const std::vector<const NavframeKind*>& kinds) {
  StreamOptions options;
  options.startWeek = week;
  options.kinds = kinds.data();
  options.kindCount = static_cast<std::uint32_t>(kinds.size());
  return Stream(options);
}

constexpr char FromStream[] = "told by the stream";
constexpr char FromDate[] = "from --date";

// Of a source, and not of what is done with its bytes.
class SourceFault : public Fault {
 public:
  using Fault::Fault;
};

// A read that fails ends the source; what was read before is good.
Reading ReadFrom(Source& source, std::vector<std::uint8_t>& chunk,
                 std::optional<SourceFault>& fault) {
  try {
    return source.Read(chunk.data(), chunk.size());
  } catch (const Fault& why) {
    fault.emplace(why.what());
    return {};
  }
}

// Whether the clock of a stream finds its way from one recording to the next: then they may be
// parted inside of a frame.
bool GoesOn(const Recording& before, const Recording& next) {
  constexpr double Days = 86'400;
  constexpr double MostDays = 3;  // less than half a week
  if (!next.tow || next.week == 0) return true;
  if (!before.tow || before.week == 0) return false;
  const double behind =
      (static_cast<double>(next.week) - before.week) * 7 * Days + *next.tow - *before.tow;
  return behind <= MostDays * Days;
}

// Recordings that tell no week are beside those that do.
void DateTheOthers(std::vector<Recording>& recordings) {
  const auto isDated = [](const Recording& recording) {
    return recording.tow && recording.week != 0;
  };
  const auto dated = std::ranges::find_if(recordings, isDated);
  if (dated == recordings.end()) return;
  const Recording like = *dated;
  for (Recording& recording : recordings) {
    if (isDated(recording) || !recording.tow) continue;
    recording.week = WeekBeside(*recording.tow, like.week, *like.tow);
    recording.dateFrom = like.dateFrom;
  }
}

std::uint64_t FramesOf(const Stream& stream) {
  const NavframeStatistics all = stream.statistics();
  return all.nmea.frames + all.rtcm3.frames + all.ubx.frames + all.binary55Aa.frames +
         all.asciiLog.frames + all.tagBlock.frames;
}

}  // namespace

RinexInput::RinexInput(const RinexOptions& options, Messages& messages, Progress& progress)
    : options_(options), messages_(messages), progress_(progress) {}

bool RinexInput::Read(const std::vector<std::string>& sources, const InputUse& use) {
  std::vector<std::string> files;
  std::vector<std::string> live;
  for (const std::string& name : sources) (IsFile(name) ? files : live).push_back(name);
  const bool areFilesGood = ReadRecordings(files, use);
  const bool areLiveGood = live.empty() || ReadLive(live, use);
  return areFilesGood && areLiveGood;
}

// Reads until the week of the first observation is known, at worst all of it. What cannot be read
// is told when it is read as a whole.
Recording RinexInput::LookAt(const std::string& name) {
  Recording recording = {name, {}, 0, {}};
  FirstEpoch first;
  try {
    const std::unique_ptr<Source> source = OpenSource(name);
    Stream stream = OpenStream(0, kindsOf<ObservationsRecord>());
    std::vector<std::uint8_t> chunk(ChunkLength);
    while (!first.Week() && !IsInterrupted()) {
      const Reading reading = source->Read(chunk.data(), chunk.size());
      if (reading.state == Reading::State::End) break;
      stream.feed(std::span(chunk.data(), reading.length), [&](const Item& item) {
        if (const auto* record = item.as<ObservationsRecord>()) first.Add(*record);
      });
    }
  } catch (const Fault&) {
  }
  recording.tow = first.Tow();
  const auto inName = DateInName(name);
  if (first.Week()) {
    recording.week = *first.Week();
    recording.dateFrom = FromStream;
  } else if (options_.date) {
    recording.week = WeekNear(*options_.date, first.Tow().value_or(0));
    recording.dateFrom = FromDate;
  } else if (inName) {
    recording.week = WeekNear(*inName, first.Tow().value_or(0));
    recording.dateFrom = "from the name of " + name.substr(name.rfind('/') + 1);
  }
  return recording;
}

bool RinexInput::ReadRecordings(const std::vector<std::string>& names, const InputUse& use) {
  constexpr double WeekSeconds = 604'800;
  std::vector<Recording> recordings;
  recordings.reserve(names.size());
  for (const std::string& name : names) recordings.push_back(LookAt(name));
  DateTheOthers(recordings);
  std::ranges::stable_sort(recordings, {}, [](const Recording& recording) {
    return recording.tow ? recording.week * WeekSeconds + *recording.tow : 0;
  });
  const TakeItem take = [&](const Item& item) { use.item(item.raw()); };
  bool isGood = true;
  std::optional<Stream> stream;
  const Recording* before = nullptr;
  for (const Recording& recording : recordings) {
    use.begin(recording);
    if (stream && !GoesOn(*before, recording)) EndStream(*stream, take);
    if (!stream || !GoesOn(*before, recording)) {
      stream.emplace(OpenStream(recording.week, KindsOfFiles()));
    }
    if (recording.tow || before == nullptr) before = &recording;
    try {
      ReadRecording(recording, *stream, take);
    } catch (const SourceFault& fault) {
      messages_.Add(fault.what());
      isGood = false;
    }
  }
  if (stream) EndStream(*stream, take);
  return isGood;
}

void RinexInput::ReadRecording(const Recording& recording, Stream& stream, const TakeItem& take) {
  std::vector<std::uint8_t> chunk(ChunkLength);
  std::unique_ptr<Source> source;
  std::optional<SourceFault> fault;
  try {
    source = OpenSource(recording.name);
  } catch (const Fault& why) {
    throw SourceFault(why.what());
  }
  std::uint64_t shown = 0;
  while (!IsInterrupted()) {
    const auto reading = ReadFrom(*source, chunk, fault);
    if (reading.state == Reading::State::End) break;
    stream.feed(std::span(chunk.data(), reading.length), take);
    progress_.Add(source->Taken() - std::exchange(shown, source->Taken()));
  }
  if (fault) throw SourceFault(*fault);
}

void RinexInput::EndStream(Stream& stream, const TakeItem& take) {
  stream.finish(take);
  frames_ += FramesOf(stream);
}

bool RinexInput::ReadLive(const std::vector<std::string>& names, const InputUse& use) {
  use.begin({});
  bool isGood = true;
  std::vector<std::unique_ptr<Source>> sources;
  for (const std::string& name : names) {
    try {
      sources.push_back(OpenSource(name));
      if (options_.position) sources.back()->Tell(*options_.position);
    } catch (const Fault& fault) {
      messages_.Add(fault.what());
      isGood = false;
    }
  }
  std::exception_ptr failure;
  std::vector<std::thread> threads;
  threads.reserve(sources.size());
  for (const auto& source : sources) {
    threads.emplace_back([&, this] {
      try {
        ReadLiveOne(*source, use);
      } catch (const SourceFault& fault) {
        const std::lock_guard lock(turn_);
        messages_.Add(fault.what());
        isGood = false;
      } catch (...) {
        const std::lock_guard lock(turn_);
        if (failure == nullptr) failure = std::current_exception();
        isStopped_ = true;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  if (failure != nullptr) std::rethrow_exception(failure);
  return isGood;
}

void RinexInput::ReadLiveOne(Source& source, const InputUse& use) {
  const TakeItem take = [&](const Item& item) {
    if (!isStopped_) use.item(item.raw());
  };
  std::vector<std::uint8_t> chunk(ChunkLength);
  Stream stream = OpenStream(options_.date ? WeekOf(*options_.date) : 0, KindsOfFiles());
  // What the stream tells without the user's date.
  Stream untold = OpenStream(0, kindsOf<ObservationsRecord>());
  std::optional<SourceFault> fault;
  while (!IsInterrupted() && !isStopped_) {
    const auto reading = ReadFrom(source, chunk, fault);
    if (reading.state == Reading::State::End) break;
    const std::span bytes(chunk.data(), reading.length);
    const std::lock_guard lock(turn_);
    if (reading.state == Reading::State::Quiet) stream.idle();
    stream.feed(bytes, take);
    if (options_.date && !live_.Week()) {
      untold.feed(bytes, [this](const Item& item) {
        if (const auto* record = item.as<ObservationsRecord>()) live_.Add(*record);
      });
    }
  }
  const std::lock_guard lock(turn_);
  EndStream(stream, take);
  if (fault) throw SourceFault(*fault);
}

std::string RinexInput::LiveDateFrom() const {
  return options_.date && !live_.Week() ? FromDate : FromStream;
}

}  // namespace navframe::tool
