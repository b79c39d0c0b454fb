// list_extract_build ARCHIVE FOLDER: lists the entries of an archive, extracts them into FOLDER and
// builds an archive from them there. Links only the data side.
#include <iostream>

#include "data/archive_builder.h"
#include "data/archive_index.h"
#include "data/extraction.h"

using namespace ostrane;

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto named = [](const std::filesystem::path& path) {
    return files::file_path{path, path.string()};
  };
  const auto in_folder = [&](const std::string& name) {
    return named(std::filesystem::path(argv[2]) / name);
  };
  try {
    const files::file_path archive = named(argv[1]);
    const archive_index index = read_archive_index(archive);
    build_list list = {argv[2], {}, in_folder};
    for (const dat_record& record : index.records)
      list.names.push_back(name_with_blanks(record.name));
    list.names.pop_back();
    for (const std::string& name : list.names) std::cout << name << '\n';

    const job_progress quiet = {[](std::size_t, const std::string&, std::int32_t) {},
                                [](std::int32_t) {}};
    files::binary_file file;
    open_unchanged(file, archive, index.stamp);
    extract_entries(
        file, index.records, in_folder, [](const files::file_path&) {}, quiet);

    std::vector<make_record> sizes(list.names.size());
    const std::vector<dat_record> records = measure_files(list, sizes);
    write_archive(list, sizes, records, in_folder(archive_name), quiet);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
