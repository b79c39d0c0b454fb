#include "handlers/sync_to_drive.h"

#include <functional>
#include <string>
#include <utility>

#include "files/file_error.h"
#include "forms_layer/message_box.h"

namespace ostrane {

namespace {

// recover() sets `Drive1`, whose Change calls sync() again. The phase tells that inner call to
// report no error (to_drive_c) or to leave the folder unchanged (back).
enum class recovery_phase { none, to_drive_c, back };
recovery_phase phase = recovery_phase::none;

struct phase_guard {
  ~phase_guard() { phase = recovery_phase::none; }
};

using step = std::function<void()>;

void report_failing_drive(const std::string& drive) {
  forms_layer::message_box(
      "You are trying to access a Drive that isn't responding.\n\rDrive in error: >" + drive +
      "<\n\rCheck that the Drive is working properly, and has a Diskette or CD-ROM inserted. Then "
      "try again.");
}

bool try_step(const step& run) {
  try {
    run();
    return true;
  } catch (const files::file_error&) {
    return false;
  }
}

void recover(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1) {
  report_failing_drive(Drive1.Drive());
  const phase_guard at_end;
  phase = recovery_phase::to_drive_c;
  try_step([&] { Drive1.Drive = "C"; });
  if (!try_step([&] { Dir1.Path = "C:\\"; })) {
    phase = recovery_phase::back;
    try_step([&] { Drive1.Drive = Dir1.Path(); });
  }
}

}  // namespace

void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1,
                   forms_layer::file_list* File1) {
  if (phase == recovery_phase::back) return;
  bool recovered = phase != recovery_phase::none;
  const auto run_step = [&](const step& run) {
    if (!try_step(run) && !std::exchange(recovered, true)) recover(Drive1, Dir1);
  };
  const std::string old_folder = Dir1.Path();
  run_step([&] { Dir1.Path = Drive1.Drive(); });
  // The assignment reads `Dir1`. For another folder its Change reads `File1`.
  if (File1 != nullptr && Dir1.Path() == old_folder) run_step([&] { File1->Refresh(); });
}

}  // namespace ostrane
