#pragma once

#include "data/icon_export.h"

namespace ostrane {

// Null if the program was built without the libraries for PNG, GIF and JSON.
icon_exporter make_icon_exporter();

}  // namespace ostrane
