#pragma once

#include <QWidget>

namespace ostrane::bench {

// Runs the event loop until the window is exposed and painted.
void show_and_wait(QWidget& window);

// Returns when the window system has carried out all that it was sent.
void sync_with_screen();

// The most memory that the process has had in use, in KB.
long peak_memory();

}  // namespace ostrane::bench
