#include "forms_layer/events.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "files/failure.h"
#include "forms_layer/application.h"
#include "forms_layer/message_box.h"

namespace forms_layer {

namespace {

struct queued_event {
  std::function<void()> handler;
  const void* key;
};

std::deque<queued_event> queue;
bool running = false;
std::chrono::steady_clock::time_point began;

// Resets `running` even if an exception other than std::exception leaves a handler.
struct running_guard {
  running_guard() { running = true; }
  running_guard(const running_guard&) = delete;
  running_guard& operator=(const running_guard&) = delete;
  ~running_guard() { running = false; }
};

// Freed when memory runs out, so that the windows can be restored and the message shown.
constexpr std::size_t reserve_size = 1U << 20U;  // bytes
std::unique_ptr<char[]> reserve;

void handle_out_of_memory() {
  reserve.reset();
  if (application.OutOfMemory) application.OutOfMemory();
  message_box(files::out_of_memory_text);
}

void run_one(const std::function<void()>& handler) {
  began = std::chrono::steady_clock::now();
  if (!reserve) reserve.reset(new (std::nothrow) char[reserve_size]);
  try {
    try {
      handler();
    } catch (const std::bad_alloc&) {
      handle_out_of_memory();
    } catch (const files::error& failed) {
      message_box(files::sentence_of(failed.told));
    } catch (const std::exception& failed) {
      message_box(failed.what());
    }
  } catch (const std::bad_alloc&) {
    // Not even the message can be shown. The windows stay as they are.
  }
}

// If memory runs out, the event is lost, like an input that the system drops.
void queue_event(const std::function<void()>& handler, const void* key) {
  const auto same_key = [key](const queued_event& e) { return e.key == key; };
  if (key != nullptr && std::any_of(queue.begin(), queue.end(), same_key)) return;
  try {
    queue.push_back({handler, key});
  } catch (const std::bad_alloc&) {
  }
}

}  // namespace

void run_event(const std::function<void()>& handler, const void* key) {
  if (process_ended()) return;
  if (running) return queue_event(handler, key);
  const running_guard guard;
  run_one(handler);
  while (!queue.empty() && !process_ended()) {
    const queued_event next = std::move(queue.front());
    queue.pop_front();
    run_one(next.handler);
  }
}

bool handler_running() { return running; }

std::chrono::steady_clock::time_point handler_began() { return began; }

void clear_events() { queue.clear(); }

}  // namespace forms_layer
