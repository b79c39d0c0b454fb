#include "platform/message_box.h"

#include "platform/application.h"
#include "platform/case_blind.h"
#include "platform/screen.h"

namespace platform {

namespace {

std::vector<std::string> shown;
std::function<void(const std::string&)> while_it_stands;

}  // namespace

void message_box(const std::string& text) {
  forget_folders();
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

}  // namespace platform
