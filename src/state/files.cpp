#include "state/files.h"

namespace ostrane {

files::binary_file file_1;
files::binary_file file_5;
files::binary_file file_6;

}  // namespace ostrane
