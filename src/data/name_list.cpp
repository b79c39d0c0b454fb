#include "data/name_list.h"

#include "files/text_file.h"

namespace ostrane {

void write_name_list(const files::file_path& path, const name_list& archive) {
  files::text_writer writer(path, archive.archive);
  for (std::int32_t row = 0; row < archive.count; ++row) writer.write_line(archive.name(row));
  writer.close();
}

}  // namespace ostrane
