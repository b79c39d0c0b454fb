#pragma once

#include <chrono>
#include <functional>

namespace forms_layer {

// Runs a handler as one event. Events come one at a time: what arrives while a handler runs, or
// while a message box stands in it, waits and runs behind it in the order of arrival. With a `key`
// only one event of that key waits; a further one is dropped, as it goes for ticks. An error that
// leaves the handler is shown in a message box; so is a lack of memory, after the application's
// `OutOfMemory`.
void run_event(const std::function<void()>& handler, const void* key = nullptr);

// True from the start of a handler to its end, also while a message box stands in it.
bool handler_running();

// When the handler that runs, or the latest one, began.
std::chrono::steady_clock::time_point handler_began();

// Forgets what waits, so that a process can begin afresh.
void forget_events();

}  // namespace forms_layer
