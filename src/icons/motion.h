#pragma once

namespace ostrane {

// Stacks the slots of the series on one spot, hides them and starts `Timer1` at the pace of
// `Text4` (hundredths of a second). What is no number above 0 there counts as 10.
void start_motion();

// One tick: the next slot of the stack comes up, or the motion ends on its last one.
void step_motion();

// One slot back or forward in the stack, once a motion was started.
void show_previous_icon();
void show_next_icon();

}  // namespace ostrane
