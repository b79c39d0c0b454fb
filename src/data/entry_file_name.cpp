#include "data/entry_file_name.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "files/code_page.h"
#include "files/text.h"

namespace ostrane {

namespace {

// Windows also accepts the superscript digits 1 to 3.
bool has_number(std::string_view stem, std::string_view device) {
  constexpr std::string_view digits = "123456789\xB9\xB2\xB3";
  return stem.size() == 4 && stem.substr(0, 3) == device && digits.find(stem[3]) != digits.npos;
}

// Windows treats these as devices, also with an extension and with blanks after the stem.
bool is_device(const std::string& name) {
  const std::string folded = files::upper_case(name);
  const std::string_view stem =
      files::trimmed(std::string_view(folded).substr(0, folded.find('.')));
  constexpr std::array<std::string_view, 6> devices = {"CON", "PRN",    "AUX",
                                                       "NUL", "CONIN$", "CONOUT$"};
  return std::find(devices.begin(), devices.end(), stem) != devices.end() ||
         has_number(stem, "COM") || has_number(stem, "LPT");
}

}  // namespace

std::string unsafe_name_reason(const std::string& name) {
  if (name.empty()) return "it has no name";
  if (name == "." || name == "..") return "its name means a folder";
  if (name.find_first_of("\\/:") != std::string::npos) {
    return "its name contains a path separator";
  }
  if (std::any_of(name.begin(), name.end(), files::is_control_character)) {
    return "its name contains a control character";
  }
  if (is_device(name)) return "its name means a device";
  return "";
}

}  // namespace ostrane
