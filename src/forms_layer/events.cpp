#include "forms_layer/events.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <new>
#include <utility>

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

void run_one(const std::function<void()>& handler) {
  began = std::chrono::steady_clock::now();
  try {
    handler();
  } catch (const std::bad_alloc&) {
    if (application.OutOfMemory) application.OutOfMemory();
    message_box("There is not enough memory for this.");
  } catch (const std::exception& error) {
    message_box(error.what());
  }
}

}  // namespace

void run_event(const std::function<void()>& handler, const void* key) {
  if (process_ended()) return;
  if (running) {
    const auto same_key = [key](const queued_event& e) { return e.key == key; };
    if (key != nullptr && std::any_of(queue.begin(), queue.end(), same_key)) return;
    queue.push_back({handler, key});
    return;
  }
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

void clear_events() {
  queue.clear();
  running = false;
}

}  // namespace forms_layer
