#include "handlers/start_up.h"

#include "files/system_calls.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "handlers/open_path.h"
#include "handlers/window_switching.h"
#include "handlers/wiring.h"
#include "state/tool_state.h"

namespace ostrane {

void start_tool(const std::filesystem::path& program_folder, icon_exporter exporter,
                const std::filesystem::path& opened) {
  files::ignore_size_limit_signal();
  forms_layer::begin_process();
  forms_layer::application.Title = "Ostrane.dat-tool";
  forms_layer::application.Path = program_folder;
  forms_layer::application.OutOfMemory = abandon_job;
  reset_state();
  tool_state.export_icons = exporter;
  reset_forms();
  wire_forms();
  forms_layer::run_event([] {
    Form1.Load();
    Form1.Visible = true;
  });
  if (!opened.empty()) forms_layer::run_event([&opened] { open_path(opened); });
}

}  // namespace ostrane
