#pragma once

#include <QWidget>
#include <string>

namespace desktop {

// A modal box with one OK button over `owner` (or the middle of the screen, for null). Returns
// when it was answered.
void show_message(const std::string& title, const std::string& text, QWidget* owner);

}  // namespace desktop
