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

struct waiting_event {
  std::function<void()> handler;
  const void* key;
};

std::deque<waiting_event> waiting;
bool running = false;
std::chrono::steady_clock::time_point began;

// Events run while it lives, also if an error of another kind than file_error ends it.
struct running_mark {
  running_mark() { running = true; }
  running_mark(const running_mark&) = delete;
  running_mark& operator=(const running_mark&) = delete;
  ~running_mark() { running = false; }
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
    const auto same_key = [key](const waiting_event& e) { return e.key == key; };
    if (key != nullptr && std::any_of(waiting.begin(), waiting.end(), same_key)) return;
    waiting.push_back({handler, key});
    return;
  }
  const running_mark mark;
  run_one(handler);
  while (!waiting.empty() && !process_ended()) {
    const waiting_event next = std::move(waiting.front());
    waiting.pop_front();
    run_one(next.handler);
  }
}

bool handler_running() { return running; }

std::chrono::steady_clock::time_point handler_began() { return began; }

void forget_events() {
  waiting.clear();
  running = false;
}

}  // namespace forms_layer
