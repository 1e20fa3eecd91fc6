#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace navframe::tool {

namespace {

constexpr std::uint64_t WorthABar = 4'000'000;
constexpr auto Interval = std::chrono::milliseconds(100);
constexpr double Million = 1e6;
constexpr int Width = 40;

}  // namespace

Progress::Progress(std::uint64_t total)
    : total_(total),
      isWanted_(total > WorthABar && isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0) {}

void Progress::Add(std::uint64_t bytes) {
  const std::uint64_t done = done_ += bytes;
  if (!isWanted_) return;
  const std::unique_lock lock(mutex_, std::try_to_lock);
  const Clock::time_point now = Clock::now();
  if (!lock.owns_lock() || now < next_) return;
  next_ = now + Interval;
  isShown_ = true;
  Show(std::min(done, total_));
}

void Progress::Show(std::uint64_t done) const {
  const double seconds = std::chrono::duration<double>(Clock::now() - start_).count();
  const double rate = static_cast<double>(done) / (seconds > 0 ? seconds : 1);
  const double left = rate > 0 ? static_cast<double>(total_ - done) / rate : 0;
  const std::string bar(static_cast<std::size_t>(Width * done / total_), '#');
  std::fprintf(stderr, "\r[%-*s] %3d%% %6.1f MB/s %5.0f s left", Width, bar.c_str(),
               static_cast<int>(100 * done / total_), rate / Million, left);
}

void Progress::Hide() {
  constexpr int Longest = Width + 35;
  const std::lock_guard lock(mutex_);
  if (isShown_) std::fprintf(stderr, "\r%*s\r", Longest, "");
  isShown_ = false;
}

}  // namespace navframe::tool
