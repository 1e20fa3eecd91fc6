#include "rinex/epoch_spool.h"

#include <algorithm>
#include <cstring>

namespace navframe::tool {
namespace {

constexpr std::size_t MostInMemory = 4 << 20;
constexpr std::size_t AtOnce = 1 << 18;  // to the file and from it: what stays in the caches

struct Head {
  Ticks time;
  double clockOffset;
  std::uint64_t count;
};
static_assert(sizeof(Observed) == 32);

}  // namespace

void EpochSpool::Put(const Epoch& epoch, Ticks time) {
  const Head head = {time, epoch.clockOffset, epoch.observations.size()};
  memory_.append(reinterpret_cast<const char*>(&head), sizeof head);
  memory_.append(reinterpret_cast<const char*>(epoch.observations.data()),
                 epoch.observations.size() * sizeof(Observed));
  if (memory_.size() < (file_.Size() == 0 ? MostInMemory : AtOnce)) return;
  file_.Append(memory_.data(), memory_.size());
  memory_.clear();
}

void EpochSpool::Rewind() {
  if (file_.Size() != 0) {
    file_.Append(memory_.data(), memory_.size());
    memory_.clear();
  }
  read_ = 0;
  at_ = 0;
}

bool EpochSpool::Read(Epoch& epoch) {
  if (at_ == memory_.size() && read_ == file_.Size()) return false;
  Head head;
  Take(&head, sizeof head);
  epoch.time = head.time;
  epoch.clockOffset = head.clockOffset;
  epoch.observations.resize(head.count);
  Take(epoch.observations.data(), head.count * sizeof(Observed));
  return true;
}

void EpochSpool::Take(void* to, std::size_t length) {
  auto* place = static_cast<char*>(to);
  while (length != 0) {
    if (at_ == memory_.size()) {
      memory_.resize(std::min<std::uint64_t>(AtOnce, file_.Size() - read_));
      file_.Read(read_, memory_.data(), memory_.size());
      read_ += memory_.size();
      at_ = 0;
    }
    const std::size_t part = std::min(length, memory_.size() - at_);
    std::memcpy(place, memory_.data() + at_, part);
    place += part;
    at_ += part;
    length -= part;
  }
}

}  // namespace navframe::tool
