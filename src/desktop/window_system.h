#pragma once

#include <QWindow>

namespace desktop {

// Processes events of the window system during a handler. Keys and the mouse wait for the end of
// the handler; the tool queues other events.
void pump_window_system();

// Processes events until a new window is exposed, for a short time at most. Qt learns of the
// exposure only through the event loop, to which a handler does not return.
void wait_until_exposed(const QWindow& shown);

}  // namespace desktop
