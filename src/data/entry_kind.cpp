#include "data/entry_kind.h"

#include <array>

#include "files/code_page.h"
#include "files/text.h"

namespace ostrane {

entry_kind kind_of_entry(std::string_view name) {
  const std::string_view trimmed = files::trimmed(name);
  const std::string extension = files::lower_case(files::last_characters(trimmed, 4));
  if (extension == ".shp") return entry_kind::icons;
  if (extension == ".pal") return entry_kind::palette;
  if (extension == ".txt" || trimmed == "000DATUP.000") return entry_kind::text;
  return entry_kind::other;
}

const char* text_of(entry_kind kind) {
  constexpr std::array<const char*, 4> texts = {"icons", "palette", "text", "other"};
  return texts[static_cast<std::size_t>(kind)];
}

}  // namespace ostrane
