#include "tool.h"

#include <stdexcept>

#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"
#include "state/tool_state.h"

namespace ostrane::bench {

namespace user = forms_layer::user;

void start_tool_on(const std::filesystem::path& folder) {
  files::override_system({{'C', "bench", folder}}, "C:\\");
  start_tool(folder);
}

void open_archive(const std::string& folder) {
  user::click(Form1.mnu_open);
  forms_layer::run_event([&] { Form2.Dir1.Path = folder; });
  user::click(Form2.Command1);
  if (tool_state.archive_is_open == flag_false) throw std::runtime_error("no archive was read");
}

void extract_into(const std::string& folder) {
  user::click(Form1.mnu_ext);
  forms_layer::run_event([&] { Form4.Dir1.Path = folder; });
  user::click(Form4.Command2);
}

void build_from(const std::string& folder) {
  user::click(Form1.mnu_make);
  forms_layer::run_event([&] { Form5.Dir1.Path = folder; });
  user::click(Form5.Command1);
}

void run_comparison(const std::string& folder, const std::string& file_name) {
  user::click(Form1.mnu_read_filelist);
  forms_layer::run_event([&] {
    Form6.Dir1.Path = folder;
    Form6.Text1.Text = file_name;
  });
  user::click(Form6.Command1);
}

void resize_window(int width, int height, int max_icons) {
  user::resize(Form1, width * forms_layer::application.TwipsPerPixelX,
               height * forms_layer::application.TwipsPerPixelY);
  user::type(Form1.Text5, std::to_string(max_icons));
  user::focus(&Form1.List1);
}

bool dialog_is_open() { return Form4.Visible() || Form5.Visible() || Form6.Visible(); }

void expect_success() {
  const auto& shown = forms_layer::messages_shown();
  if (dialog_is_open() || shown.size() > 1) throw std::runtime_error(shown.back());
}

}  // namespace ostrane::bench
