#include "tool.h"

#include <stdexcept>

#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"

namespace ostrane::bench {

namespace user = forms_layer::user;

void start_tool_on(const std::filesystem::path& folder) {
  files::set_drives({{'C', "bench", folder}}, "C:\\");
  start_tool(folder);
}

void open_archive(const std::string& folder) {
  user::click(Form1.mnu_open);
  forms_layer::run_event([&] { Form2.Dir1.Path = folder; });
  user::click(Form2.Command1);
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

void compare_with(const std::string& folder, const std::string& file_name) {
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

void expect_success() {
  for (const std::string& message : forms_layer::messages_shown()) {
    const bool done = message.find("has been") != std::string::npos;
    if (!done) throw std::runtime_error(message);
  }
}

}  // namespace ostrane::bench
