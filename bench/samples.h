// Times of turns, and their ratios.
#pragma once

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace navframe::bench {

inline double ThreadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Run>
double Seconds(Run&& run) {
  const double start = ThreadSeconds();
  run();
  return ThreadSeconds() - start;
}

// What was measured once a round.
class Samples {
 public:
  void Add(double sample) { samples_.push_back(sample); }
  double Best() const { return std::ranges::min(samples_); }
  // Of all turns of a round: what else the machine does concerns them alike.
  Samples Over(const Samples& other) const {
    Samples ratios;
    for (std::size_t i = 0; i < samples_.size(); ++i) ratios.Add(samples_[i] / other.samples_[i]);
    return ratios;
  }
  // Median and range.
  std::string Text() const {
    std::vector<double> sorted = samples_;
    std::ranges::sort(sorted);
    char text[48];
    std::snprintf(text, sizeof text, "%.2f (%.2f-%.2f)", sorted[sorted.size() / 2], sorted.front(),
                  sorted.back());
    return text;
  }

 private:
  std::vector<double> samples_;
};

// How fast something is beside a reference, in every round.
inline std::string SpeedRatio(const Samples& time, const Samples& reference) {
  return reference.Over(time).Text();
}

}  // namespace navframe::bench
