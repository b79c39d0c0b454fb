#include "lists/read_iconlist.h"

#include "data/icon_names.h"
#include "files/case_insensitive_lookup.h"
#include "state/tool_state.h"

namespace ostrane {

void read_iconlist() {
  tool_state.icon_names = read_icon_names(
      {files::case_insensitive_lookup().find(tool_state.app_path, "iconlist.csv"), "iconlist.csv"});
}

}  // namespace ostrane
