#include "analysis/signal_sums.h"

namespace navframe::analysis {

void SignalOrder::Settle(Position& position, SignalSums& sums) const {
  const std::uint32_t count = epochs_ - position.epochs;
  if (position.head != None && count != 0) {
    sums.Add(position.place, {count, count - position.without, position.values});
  }
  position.epochs = epochs_;
  position.without = position.values = 0;
}

void SignalOrder::Settle(SignalSums& sums) {
  for (Position& position : positions_) Settle(position, sums);
  for (Position& position : positions_) position.epochs = 0;
  epochs_ = 0;
}

}  // namespace navframe::analysis
