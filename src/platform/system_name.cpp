#include "platform/system_name.h"

#include "platform/code_page.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

// Where names are bytes they are UTF-8.
[[maybe_unused]] std::optional<std::string> as_text(const std::string& name) {
  return from_utf8(name);
}

[[maybe_unused]] std::optional<std::string> as_text(const std::wstring& name) {
  try {
    const std::u8string utf8 = fs::path(name).u8string();
    return from_utf8(std::string(utf8.begin(), utf8.end()));
  } catch (const fs::filesystem_error&) {
    return std::nullopt;  // Windows lets half a surrogate pair stand in a name
  }
}

}  // namespace

fs::path system_name(std::string_view text) {
  const std::string utf8 = to_utf8(text);
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::optional<std::string> name_as_text(const fs::path::string_type& name) { return as_text(name); }

}  // namespace platform
