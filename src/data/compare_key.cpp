#include "data/compare_key.h"

#include "files/code_page.h"
#include "files/text.h"

namespace ostrane {

std::string compare_key(std::string_view name) { return files::upper_case(files::trimmed(name)); }

}  // namespace ostrane
