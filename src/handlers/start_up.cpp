#include "handlers/start_up.h"

#include "forms/forms.h"
#include "handlers/out_of_memory.h"
#include "handlers/wiring.h"
#include "platform/application.h"
#include "platform/events.h"
#include "state/tool_state.h"

namespace ostrane {

void begin_tool(const std::filesystem::path& program_folder) {
  platform::begin_process();
  platform::application.Title = "Ostrane.dat-tool";
  platform::application.Path = program_folder;
  platform::application.OutOfMemory = recover_from_lack_of_memory;
  make_state_afresh();
  make_forms_afresh();
  wire_forms();
  platform::run_event([] {
    Form1.Load();
    Form1.Visible = true;
  });
}

}  // namespace ostrane
