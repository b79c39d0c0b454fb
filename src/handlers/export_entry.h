#pragma once

#include <cstdint>

#include "data/icon_export.h"

namespace ostrane {

struct export_target {
  std::function<files::file_path(const std::u8string& name)> path_of;
  bool replaces = false;
};

// Exports the icons of the entry `index` in `dat_index` in the colours of the screen. Returns why
// that failed, or "".
std::string export_entry(icon_export wanted, std::int32_t index, const export_target& target);

// The beginning of a proposed file name for that entry. It does not lead to another folder.
std::string proposed_stem(std::int32_t index);

}  // namespace ostrane
