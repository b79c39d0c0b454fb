#pragma once

#include <QWindow>

namespace desktop {

// To be called before there is an application. Where pixels go to the X server through shared
// memory, Qt waits for the server's answer before it paints again over what it sent last, as each
// step of a long job does; through the connection they follow one another, and a whole window takes
// hardly longer. The user's own setting stays.
void disable_shared_memory();

// A window that is shown comes to the screen only when the window system has said so, which it
// does through the event loop. This waits for that in the middle of a handler, for a moment at
// most. No user input is taken meanwhile; whatever else comes, the tool queues behind the handler.
void wait_until_exposed(QWindow& shown);

// Answers the window system in the middle of a long handler, now and then, so that it does not
// take the program for dead and what was covered is painted again. No user input is taken.
void pump_window_events();

}  // namespace desktop
