#pragma once

#include <string>

// The start of the process, before there is a window.
namespace desktop {

// Call before the application is made.
void prepare_start();

// Qt sets the user's locale for the whole process. Keeps from it what numbers and errors need. Call
// after the application is made.
void restore_locale();

// Shows an error to the user who started the program.
void show_start_error(const std::string& text);

// Why there is no display; `text` is Qt's own reason.
std::string no_display_reason(const std::string& text);

}  // namespace desktop
