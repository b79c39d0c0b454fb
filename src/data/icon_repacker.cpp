#include "data/icon_repacker.h"

#include "data/data_error.h"
#include "data/new_icon.h"

namespace ostrane {

namespace {

shp_icon packed_icon(const stored_icon& icon, std::size_t number) {
  const std::string which = "its icon " + std::to_string(number);
  if (!icon.is_there) throw data_error(which + " is outside the entry");
  if (icon.is_cut) throw data_error(which + " is longer than what is read of it");
  if (!icon.drawn) return {icon.head, ""};
  return new_icon(*icon.drawn, known_icon{icon.head, last_set_column(*icon.drawn)});
}

icon_file read_back(icon_repacker& job, const std::string& bytes) {
  job.scratch.rewind();
  job.scratch.write(std::as_bytes(std::span(bytes)));
  job.packed.open_to_read(job.scratch.path());
  return read_icon_file(job.packed, 0, static_cast<std::int32_t>(bytes.size()));
}

void require_same_icons(icon_repacker& job, const icon_file& old, const icon_file& packed) {
  bool is_same = packed.positions.size() == old.positions.size();
  for (std::size_t i = 0; is_same && i < old.positions.size(); ++i) {
    is_same = read_stored_icon(*job.stream, job.packed, packed, i) ==
              read_stored_icon(*job.stream, job.file, old, i);
  }
  if (!is_same) throw data_error("its packed icons would differ");
}

}  // namespace

std::string repacked(icon_repacker& job, const icon_file& old) {
  if (static_cast<std::size_t>(old.head.icon_count) != old.positions.size()) {
    throw data_error("it does not have the number of icons that its head gives");
  }
  std::vector<shp_icon> icons;
  for (std::size_t i = 0; i < old.positions.size(); ++i) {
    icons.push_back(packed_icon(read_stored_icon(*job.stream, job.file, old, i), i + 1));
  }
  std::string bytes = shared_shp_file(icons, old.head.identifier);
  if (static_cast<std::int64_t>(bytes.size()) >= std::int64_t{old.end} - old.start) return "";
  require_same_icons(job, old, read_back(job, bytes));
  return bytes;
}

}  // namespace ostrane
