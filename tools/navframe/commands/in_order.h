// Work on several threads whose results are wanted in order.
#pragma once

#include <cstddef>
#include <functional>

namespace navframe::tool {

struct OrderedWork {
  std::function<void(std::size_t)> work;    // on any thread, side by side; throws nothing
  std::function<void(std::size_t)> turn;    // once that of all before is finished
  std::function<void(std::size_t)> finish;  // behind turn and work
};

// Does the work for 0 to count - 1. `turn` and `finish` are called on this thread; what they throw
// comes out when no work is going on any more.
void DoInOrder(std::size_t count, unsigned threads, const OrderedWork& what);

}  // namespace navframe::tool
