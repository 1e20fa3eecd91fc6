// A bar on standard error for inputs that take a while.
#pragma once

#include <chrono>
#include <cstdint>

namespace navframe::tool {

class Progress {
 public:
  explicit Progress(std::uint64_t total);
  ~Progress() { End(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(std::uint64_t done);
  void End();

 private:
  using Clock = std::chrono::steady_clock;

  const std::uint64_t total_;
  bool shown_;
  const Clock::time_point start_ = Clock::now();
  Clock::time_point next_ = start_;
};

}  // namespace navframe::tool
