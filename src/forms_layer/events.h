#pragma once

#include <chrono>
#include <functional>

namespace forms_layer {

// Runs a handler as one event, or queues it if another one is running, which includes its message
// boxes. Queued events run in order after the running one. At most one event per `key` is queued
// (used for timer ticks). A std::exception that leaves the handler is shown in a message box. For a
// std::bad_alloc the application's `OutOfMemory` is called first.
void run_event(const std::function<void()>& handler, const void* key = nullptr);

// True while a handler runs, which includes its message boxes.
bool handler_running();

// The start time of the running handler, or of the latest one if none runs.
std::chrono::steady_clock::time_point handler_began();

// Clears the queue. For begin_process.
void clear_events();

}  // namespace forms_layer
