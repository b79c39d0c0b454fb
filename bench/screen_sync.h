#pragma once

#include <QWidget>

namespace ostrane::bench {

// Runs the event loop until the window is exposed and painted.
void show_and_wait(QWidget& window);

// Waits until the window system has processed all requests.
void sync_with_screen();

// Peak memory of the process, in KB.
long peak_memory();

}  // namespace ostrane::bench
