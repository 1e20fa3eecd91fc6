// One caller at a time.
#pragma once

#include <pybind11/pybind11.h>

#include <atomic>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace navframe::python {

// Guards what Python threads may reach at once. Its holder may give the GIL away and take it again;
// who waits for it holds no GIL, so that neither waits for the other.
class TurnKeeper {
 public:
  std::mutex mutex;
  std::atomic<std::thread::id> holder;
};

// Holds the turn. Needs the GIL. Throws std::runtime_error when this thread has it already: a file
// object, an iterable or a signal handler calls back.
class Turn {
 public:
  explicit Turn(TurnKeeper& keeper) : keeper_(keeper) {
    if (keeper.holder.load(std::memory_order_relaxed) == std::this_thread::get_id()) {
      throw std::runtime_error("already executing: called by what it calls itself");
    }
    if (!keeper.mutex.try_lock()) {
      const pybind11::gil_scoped_release withoutPython;
      keeper.mutex.lock();
    }
    keeper.holder.store(std::this_thread::get_id(), std::memory_order_relaxed);
  }
  ~Turn() {
    keeper_.holder.store(std::thread::id(), std::memory_order_relaxed);
    keeper_.mutex.unlock();
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  TurnKeeper& keeper_;
};

}  // namespace navframe::python
