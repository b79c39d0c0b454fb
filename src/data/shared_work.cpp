#include "data/shared_work.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <future>
#include <thread>
#include <vector>

namespace ostrane {

namespace {

using shared_function = std::function<void(shared_indices& indices)>;

void work_or_stop(const shared_function& work, shared_indices& indices) {
  try {
    work(indices);
  } catch (...) {
    indices.stop();
    throw;
  }
}

std::vector<std::future<void>> start_threads(std::size_t count, const shared_function& work,
                                             shared_indices& indices) {
  constexpr std::size_t max_threads = 8;
  const auto wanted = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, max_threads);
  std::vector<std::future<void>> threads;
  threads.reserve(wanted);
  try {
    while (threads.size() < std::min(wanted, count)) {
      threads.push_back(std::async(std::launch::async, [&] { work_or_stop(work, indices); }));
    }
  } catch (const std::exception&) {
    // The system allows no more threads, or memory is short.
  }
  return threads;
}

}  // namespace

void share_work(std::size_t count, const shared_function& work,
                const std::function<void(std::size_t taken)>& on_wait) {
  constexpr auto poll_interval = std::chrono::milliseconds(20);
  shared_indices indices(count);
  std::vector<std::future<void>> threads = start_threads(count, work, indices);
  if (threads.empty()) work(indices);
  const struct stopping {  // destroyed before the futures, whose destructors block
    shared_indices& indices;
    ~stopping() { indices.stop(); }
  } at_end{indices};
  for (std::future<void>& thread : threads) {
    while (on_wait && thread.wait_for(poll_interval) != std::future_status::ready) {
      on_wait(indices.taken());
    }
    thread.get();
  }
}

}  // namespace ostrane
