// A bar on standard error for inputs that take a while.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>

namespace navframe::tool {

// Of all inputs together; from any thread.
class Progress {
 public:
  explicit Progress(std::uint64_t total);  // bytes, 0 when that is not known
  ~Progress() { Hide(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // So many bytes more are done.
  void Add(std::uint64_t bytes);
  // Takes the bar away until there is more to show: something else is printed.
  void Hide();

 private:
  using Clock = std::chrono::steady_clock;

  void Show(std::uint64_t done) const;

  const std::uint64_t total_;
  const bool isWanted_;
  const Clock::time_point start_ = Clock::now();
  std::atomic<std::uint64_t> done_ = 0;
  std::mutex mutex_;  // for those that follow
  Clock::time_point next_ = start_;
  bool isShown_ = false;
};

}  // namespace navframe::tool
