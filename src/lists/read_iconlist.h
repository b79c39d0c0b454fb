#pragma once

namespace ostrane {

// Reads iconlist.csv in `app_path` into `icon_names`.
void read_iconlist();

}  // namespace ostrane
