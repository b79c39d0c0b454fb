#pragma once

#include <chrono>
#include <functional>

namespace forms_layer {

// Runs a handler as one event, or queues it if another one is running, which includes its message
// boxes. Queued events run in order after the running one. Of each `key` at most one event is
// queued (used for timer ticks). A std::exception that leaves the handler is shown in a message
// box, after a std::bad_alloc with a call of the application's `OutOfMemory` before.
void run_event(const std::function<void()>& handler, const void* key = nullptr);

// True while a handler runs, which includes its message boxes.
bool handler_running();

// When the running handler, or else the latest one, began.
std::chrono::steady_clock::time_point handler_began();

// Clears the queue. For begin_process.
void clear_events();

}  // namespace forms_layer
