#include "forms_layer/message_box.h"

#include "forms_layer/application.h"
#include "forms_layer/screen.h"

namespace forms_layer {

namespace {

std::vector<std::string> shown;
std::function<void(const std::string&)> while_it_stands;

}  // namespace

void message_box(const std::string& text) {
  if (screen* on = attached_screen()) {
    on->message_box(application.Title, text);
    return;
  }
  shown.push_back(text);
  if (while_it_stands) while_it_stands(text);
}

const std::vector<std::string>& messages_shown() { return shown; }

void on_message_box(std::function<void(const std::string&)> meanwhile) {
  while_it_stands = std::move(meanwhile);
}

void forget_messages() {
  shown.clear();
  while_it_stands = nullptr;
}

}  // namespace forms_layer
