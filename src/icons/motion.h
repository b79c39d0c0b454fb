#pragma once

#include <cstdint>

namespace ostrane {

// The interval in `Text4` (hundredths of a second), in milliseconds. Anything but a number above 0
// counts as 10 hundredths.
std::int32_t motion_interval();

// Moves the slots of the series to one position, hides them and starts `Timer1` at that interval.
// `Command3` and `Command4` cannot step meanwhile.
void start_motion();

// The same, and after the last slot begins again, until `end_motion`.
void loop_motion();
bool motion_is_looping();

// Stops `Timer1`. `Command3` and `Command4` can step again.
void end_motion();

// Tick of `Timer1`: shows the next slot of the stack; after the last one stops the timer, or begins
// again.
void step_motion();

// Show the previous or the next slot of the stack, once a motion was started.
void show_previous_icon();
void show_next_icon();

}  // namespace ostrane
