// make_sample FOLDER
// Writes FOLDER/files, FOLDER/iconlist.csv and, from the files, the archive FOLDER/ostrane.dat.
#include <exception>
#include <filesystem>
#include <fstream>
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

namespace {

namespace fs = std::filesystem;
using namespace ostrane;

void write_file(const fs::path& place, const std::string& bytes) {
  std::ofstream file(place, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  if (!file) throw std::runtime_error(place.string() + " cannot be written");
}

// A file that lies there from elsewhere would become an entry.
void write_files(const fs::path& folder) {
  fs::create_directories(folder);
  if (!fs::is_empty(folder)) throw std::runtime_error(folder.string() + " is not empty");
  for (const auto& file : samples::sample_files()) write_file(folder / file.name, file.bytes);
}

// Has the tool build the archive, as its user would, into the folder `files` of `folder`.
void build_archive(const fs::path& folder) {
  files::set_drives({{'C', "sample", folder}}, "C:\\");
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
