#include "forms_layer/message_box.h"

#include "forms_layer/application.h"
#include "forms_layer/screen.h"

namespace forms_layer {

namespace {

std::vector<std::string> recorded;
std::function<void(const std::string&)> on_shown;

}  // namespace

void message_box(const std::string& text) { the_screen().message_box(application.Title, text); }

void report(const std::string& text) {
  if (!text.empty()) message_box(text);
}

void screen::message_box(const std::string& /*title*/, const std::string& text) {
  recorded.push_back(text);
  if (on_shown) on_shown(text);
}

const std::vector<std::string>& messages_shown() { return recorded; }

void on_message_box(std::function<void(const std::string&)> call) { on_shown = std::move(call); }

void clear_messages() {
  recorded.clear();
  on_shown = nullptr;
}

}  // namespace forms_layer
