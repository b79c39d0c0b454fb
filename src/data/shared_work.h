#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>

namespace ostrane {

// Gives each index below a count to one of the threads that share it.
class shared_indices {
 public:
  explicit shared_indices(std::size_t count) : count_(count) {}

  // Sets `index` to the next one. Returns false if there is none left or the work was stopped.
  bool take(std::size_t& index) {
    index = next_++;
    return index < count_ && !stops_;
  }
  void stop() { stops_ = true; }
  std::size_t taken() const { return std::min(next_.load(), count_); }

 private:
  std::size_t count_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<bool> stops_ = false;
};

// Calls `work` on a thread for each processor, at most 8, until it has taken all indices below
// `count`. Meanwhile calls `on_wait` every 20 milliseconds with the number of those taken; it may
// be null. If one of them throws, the work stops and the exception is passed on.
void share_work(std::size_t count, const std::function<void(shared_indices& indices)>& work,
                const std::function<void(std::size_t taken)>& on_wait = {});

}  // namespace ostrane
