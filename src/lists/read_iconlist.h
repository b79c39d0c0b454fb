#pragma once

namespace ostrane {

// Reads iconlist.csv beside the program into `icon_names`.
void read_iconlist();

}  // namespace ostrane
