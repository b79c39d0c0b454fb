#include "state/files.h"

namespace ostrane {

platform::binary_file file_1;
platform::binary_file file_5;
platform::binary_file file_6;

}  // namespace ostrane
