#pragma once

#include <functional>
#include <string>
#include <vector>

namespace forms_layer {

// Shows a text in a modal box with one OK button and the application's title, and returns when it
// was answered. Without a screen the text is recorded and answered at once.
void message_box(const std::string& text);

// Without a screen: all texts so far, oldest first, and what is called while a box stands.
const std::vector<std::string>& messages_shown();
void on_message_box(std::function<void(const std::string&)> meanwhile);
void forget_messages();

}  // namespace forms_layer
