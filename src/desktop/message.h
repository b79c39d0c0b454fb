#pragma once

#include <QWidget>
#include <string>

namespace desktop {

// Shows a modal box with an OK button over `owner`, or in the middle of the screen if that is null.
// Returns when the user closes it.
void show_message(const std::string& title, const std::string& text, QWidget* owner);

}  // namespace desktop
