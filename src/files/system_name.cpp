#include "files/system_name.h"

#include "files/code_page.h"

namespace files {

namespace fs = std::filesystem;

namespace {

// On POSIX names are bytes, interpreted as UTF-8.
[[maybe_unused]] std::u8string utf8_of(const std::string& name) { return as_utf8(name); }

// A Windows name can hold half a surrogate pair, which has no UTF-8; the byte FF is not UTF-8
// either.
[[maybe_unused]] std::u8string utf8_of(const std::wstring& name) {
  try {
    return fs::path(name).u8string();
  } catch (const fs::filesystem_error&) {
    return {0xFF};
  }
}

}  // namespace

fs::path system_name(std::string_view text) { return to_utf8(text); }

std::optional<std::string> name_as_text(const fs::path::string_type& name) {
  return from_utf8(utf8_of(name));
}

std::string name_as_text_lossy(const fs::path::string_type& name) {
  return from_utf8_lossy(utf8_of(name));
}

}  // namespace files
