#include "platform/system_name.h"

#include <type_traits>

#include "platform/code_page.h"

namespace platform {

namespace fs = std::filesystem;

fs::path system_name(std::string_view text) {
  const std::string utf8 = to_utf8(text);
  if constexpr (std::is_same_v<fs::path::value_type, char>) {
    return utf8;
  } else {
    return std::u8string(utf8.begin(), utf8.end());
  }
}

std::optional<std::string> name_as_text(const fs::path::string_type& name) {
  if constexpr (std::is_same_v<fs::path::value_type, char>) {
    return from_utf8(name);
  } else {
    try {
      const std::u8string utf8 = fs::path(name).u8string();
      return from_utf8(std::string(utf8.begin(), utf8.end()));
    } catch (const fs::filesystem_error&) {
      return std::nullopt;  // Windows lets half a surrogate pair stand in a name
    }
  }
}

}  // namespace platform
