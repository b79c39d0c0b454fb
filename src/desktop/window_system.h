#pragma once

#include <QWindow>

namespace desktop {

// Handles what the window system has sent, in the middle of a handler. Keys and the mouse wait for
// the end of the handler; other events that reach the tool are queued by it.
void pump_window_system();

// The window system exposes a new window through the event loop, which a handler does not return
// to. Pumps until the window is exposed, for a moment at most.
void wait_until_exposed(const QWindow& shown);

}  // namespace desktop
