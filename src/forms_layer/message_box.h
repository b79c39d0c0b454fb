#pragma once

#include <functional>
#include <string>
#include <vector>

namespace forms_layer {

// Shows a text in a modal box with the application's title and an OK button. Returns when the user
// closes it. Without a screen it records the text and returns at once.
void message_box(const std::string& text);
// The same, unless the text is empty.
void report(const std::string& text);

// Without a screen: all texts so far, oldest first.
const std::vector<std::string>& messages_shown();
// Without a screen: `call` runs while a box is open.
void on_message_box(std::function<void(const std::string&)> call);
// Clears both. For begin_process.
void clear_messages();

}  // namespace forms_layer
