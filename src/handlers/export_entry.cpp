#include "handlers/export_entry.h"

#include "data/entry_file_name.h"
#include "data/entry_range.h"
#include "state/open_archive.h"

namespace ostrane {

static rgb_palette shown_colours() {
  rgb_palette colours = {};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const forms_layer::colour shown = tool_state.colour_table[i];
    colours[i] = forms_layer::red_of(shown) << 16U | forms_layer::green_of(shown) << 8U |
                 forms_layer::blue_of(shown);
  }
  return colours;
}

std::string export_entry(icon_export wanted, std::int32_t index, const export_target& target) {
  return read_open_archive([&] {
    const entry_range entry = range_of(index_records(), index);
    wanted.start = entry.start;
    wanted.end = entry.end;
    wanted.colours = shown_colours();
    export_output output = {.archive = tool_state.archive_file,
                            .stamp = tool_state.archive_stamp,
                            .target = target.path_of,
                            .replaces = target.replaces};
    tool_state.export_icons(output, wanted);
  });
}

std::string proposed_stem(std::int32_t index) {
  const std::string name = entry_name(index);
  return unsafe_name_reason(name).empty() ? stem_of_entry(name) : "picture";
}

}  // namespace ostrane
