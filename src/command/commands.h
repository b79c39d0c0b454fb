#pragma once

#include <string>
#include <vector>

// The commands of the program. Each returns the exit status and throws file_error, data_error and
// interruption.
namespace ostrane::command {

struct list_options {
  std::vector<std::string> archives;
  std::string order;  // name, size, offset or kind; "" for that of the index
  bool is_long = false;
  bool is_json = false;
  std::string icon_names;  // "" for iconlist.csv in the program's folder
};
int list(const list_options& options);

struct extract_options {
  std::string archive;
  std::vector<std::string> names;
  std::string folder = ".";
  std::string output;  // of one entry; "" for files in the folder
  bool overwrites = false;
};
int extract(const extract_options& options);

struct build_options {
  std::string folder;
  std::string archive;  // "" for OSTRANE.DAT in the folder
};
int build(const build_options& options);

struct add_options {
  std::string archive;
  std::vector<std::string> files;
  bool is_forced = false;
};
int add(const add_options& options);

struct remove_options {
  std::string archive;
  std::vector<std::string> names;
};
int remove(const remove_options& options);

struct rename_options {
  std::string archive;
  std::string old_name;
  std::string new_name;
  bool keeps_order = false;
};
int rename(const rename_options& options);

struct pack_options {
  std::string archive;
  std::vector<std::string> names;
};
int pack(const pack_options& options);

struct diff_options {
  std::string old_archive;
  std::string new_archive;
  bool is_json = false;
};
int diff(const diff_options& options);

struct compare_options {
  std::string archive;
  std::string shiplist;
  std::string report = "-";
};
int compare(const compare_options& options);

struct check_options {
  std::vector<std::string> archives;
};
int check(const check_options& options);

struct export_options {
  std::string archive;
  std::vector<std::string> names;
  std::string folder = ".";
  std::string form = "png";  // or sheet or gif
  int pace = 10;             // hundredths of a second per picture
  int scale = 1;
};
int export_entries(const export_options& options);

struct import_options {
  std::vector<std::string> sources;
  std::string icon_file;
  std::string palette;
  std::string like;  // "" for none
  std::string grid;  // "COLSxROWS"; "" for none
};
int import_pictures(const import_options& options);

}  // namespace ostrane::command
