#pragma once

#include <cstdint>

#include "data/icon_export.h"

namespace ostrane {

// Exports the icons of the entry `index` in `dat_index` in the colours of the screen. The file of
// the open archive must be open. Throws data_error and file_error.
void export_entry(icon_export& wanted, std::int32_t index);

// The beginning of a proposed file name for that entry. It does not lead to another folder.
std::string proposed_stem(std::int32_t index);

}  // namespace ostrane
