#pragma once

#include "data/name_list.h"

namespace ostrane {

// The rows of `List1`.
name_list listed_names();

}  // namespace ostrane
