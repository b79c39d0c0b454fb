#include "lists/listed_names.h"

#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

name_list listed_names() {
  return {Form1.List1.ListCount(),
          [](std::int32_t row) -> const std::string& { return Form1.List1.List(row); },
          tool_state.archive_stamp.identity};
}

}  // namespace ostrane
