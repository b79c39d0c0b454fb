#pragma once

#include "data/compare_report.h"

namespace ostrane {

// The rows of `List1`.
name_list listed_names();

}  // namespace ostrane
