#include "rinex/ephemeris_spool.h"

#include <algorithm>
#include <optional>
#include <queue>
#include <tuple>
#include <type_traits>

namespace navframe::tool {
namespace {

static_assert(std::is_trivially_copyable_v<Ephemeris>);

bool IsBefore(const Ephemeris& one, const Ephemeris& other) {
  return std::tie(one.key, one.isFromCaster, one.number) <
         std::tie(other.key, other.isFromCaster, other.number);
}
bool IsSame(const Ephemeris& one, const Ephemeris& other) { return one.key == other.key; }

}  // namespace

// One run, a few ephemerides at a time.
class EphemerisSpool::Reader {
 public:
  Reader(const TemporaryFile& file, const Run& run) : file_(file), run_(run) { Fill(); }

  const Ephemeris* First() const { return at_ < chunk_.size() ? &chunk_[at_] : nullptr; }
  void Next() {
    if (++at_ == chunk_.size()) Fill();
  }

 private:
  void Fill() {
    constexpr std::uint64_t AtOnce = 16;
    at_ = 0;
    chunk_.resize(std::min(AtOnce, run_.end - run_.next));
    if (chunk_.empty()) return;
    file_.Read(run_.next * sizeof(Ephemeris), chunk_.data(), chunk_.size() * sizeof(Ephemeris));
    run_.next += chunk_.size();
  }

  const TemporaryFile& file_;
  Run run_;
  std::vector<Ephemeris> chunk_;
  std::size_t at_ = 0;
};

void EphemerisSpool::Add(const Ephemeris& ephemeris) {
  const EphemerisKey& key = ephemeris.key;
  const auto [last, isNew] =
      last_.try_emplace({key.system, static_cast<std::uint16_t>(key.satellite << 8 | key.message)},
                        key, ephemeris.isFromCaster);
  if (!isNew && last->second.first == key && last->second.second <= ephemeris.isFromCaster) return;
  last->second = {key, ephemeris.isFromCaster};
  if (memory_.size() >= mostInMemory_) Spill();
  memory_.push_back(ephemeris);
}

void EphemerisSpool::SortMemory() {
  std::ranges::sort(memory_, IsBefore);
  memory_.erase(std::unique(memory_.begin(), memory_.end(), IsSame), memory_.end());
}

void EphemerisSpool::Spill() {
  SortMemory();
  const std::uint64_t first = file_.Size() / sizeof(Ephemeris);
  file_.Append(memory_.data(), memory_.size() * sizeof(Ephemeris));
  runs_.push_back({first, first + memory_.size()});
  memory_.clear();
}

void EphemerisSpool::Drain(const std::function<void(const Ephemeris&)>& take) {
  if (!runs_.empty()) Spill();
  SortMemory();
  for (const Ephemeris& ephemeris : memory_) take(ephemeris);

  std::vector<Reader> readers;
  for (const Run& run : runs_) readers.emplace_back(file_, run);
  const auto isBehind = [](const Reader* one, const Reader* other) {
    return IsBefore(*other->First(), *one->First());
  };
  std::priority_queue<Reader*, std::vector<Reader*>, decltype(isBehind)> queue(isBehind);
  for (Reader& reader : readers) {
    if (reader.First() != nullptr) queue.push(&reader);
  }
  std::optional<EphemerisKey> last;
  while (!queue.empty()) {
    Reader* const reader = queue.top();
    queue.pop();
    if (last != reader->First()->key) take(*reader->First());
    last = reader->First()->key;
    reader->Next();
    if (reader->First() != nullptr) queue.push(reader);
  }
  memory_.clear();
  runs_.clear();
  file_ = {};
  last_.clear();
}

}  // namespace navframe::tool
