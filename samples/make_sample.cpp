// make_sample FOLDER
// Writes FOLDER/files, FOLDER/iconlist.csv and the archive of the files, FOLDER/ostrane.dat.
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>

#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"
#include "sample_files.h"
#include "texts.h"
#include "write_file.h"

namespace {

namespace fs = std::filesystem;
using namespace ostrane;

// Replaces the files of an earlier run. Any other file in the folder would become an entry.
void write_files(const fs::path& folder) {
  fs::create_directories(folder);
  fs::remove(folder / "OSTRANE.DAT");
  for (const auto& file : samples::sample_files()) fs::remove(folder / file.name);
  if (const fs::directory_iterator foreign(folder); foreign != fs::directory_iterator()) {
    throw std::runtime_error(foreign->path().string() + " is not part of the sample");
  }
  for (const auto& file : samples::sample_files()) write_file(folder / file.name, file.bytes);
}

// Builds the archive with the tool, as a user would, in the folder `files` of `folder`.
void build_archive(const fs::path& folder) {
  files::override_system({{'C', "sample", folder}}, "C:\\");
  start_tool(folder);
  forms_layer::user::click(Form1.mnu_make);
  Form5.Dir1.Path = "C:\\files";
  forms_layer::user::click(Form5.Command1);

  const auto& messages = forms_layer::messages_shown();
  const std::string done =
      "Your new Ostrane.dat has been created and saved in:C:\\files\\ostrane.dat";
  if (messages.size() != 1 || messages.front() != done) {
    throw std::runtime_error(messages.empty() ? "no archive was built" : messages.front());
  }
}

void make_sample(const fs::path& folder) {
  write_files(folder / "files");
  build_archive(folder);
  fs::rename(folder / "files" / "OSTRANE.DAT", folder / "ostrane.dat");
  write_file(folder / "iconlist.csv", samples::icon_list());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_sample FOLDER\n";
    return 2;
  }
  try {
    make_sample(fs::absolute(argv[1]));
  } catch (const std::exception& failure) {
    std::cerr << "make_sample: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
