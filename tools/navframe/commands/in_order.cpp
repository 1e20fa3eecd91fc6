#include "commands/in_order.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace navframe::tool {
namespace {

// Results that wait, at most: each may hold some memory.
constexpr std::size_t FurthestAhead = 64;

class Ordered {
 public:
  Ordered(std::size_t count, unsigned threads, const OrderedWork& what)
      : count_(count), what_(what), isDone_(count) {
    for (unsigned i = 0; i < threads; ++i) threads_.emplace_back([this] { Work(); });
  }
  ~Ordered() {
    {
      const std::lock_guard lock(mutex_);
      begun_ = count_;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
  }
  Ordered(const Ordered&) = delete;
  Ordered& operator=(const Ordered&) = delete;

  void Finish() {
    for (std::size_t i = 0; i < count_; ++i) {
      what_.turn(i);
      std::unique_lock lock(mutex_);
      changed_.wait(lock, [&] { return isDone_[i]; });
      lock.unlock();
      what_.finish(i);
      lock.lock();
      finished_ = i + 1;
      changed_.notify_all();
    }
  }

 private:
  void Work() {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock,
                    [this] { return begun_ >= count_ || begun_ < finished_ + FurthestAhead; });
      if (begun_ >= count_) return;
      const std::size_t i = begun_++;
      lock.unlock();
      what_.work(i);
      lock.lock();
      isDone_[i] = true;
      changed_.notify_all();
    }
  }

  const std::size_t count_;
  const OrderedWork& what_;
  std::mutex mutex_;  // for all that follow
  std::condition_variable changed_;
  std::size_t begun_ = 0;
  std::size_t finished_ = 0;
  std::vector<bool> isDone_;
  std::vector<std::thread> threads_;
};

}  // namespace

void DoInOrder(std::size_t count, unsigned threads, const OrderedWork& what) {
  Ordered(count, threads, what).Finish();
}

}  // namespace navframe::tool
