#include "handlers/failing_drive.h"

#include <functional>
#include <string>
#include <utility>

#include "files/file_error.h"
#include "forms_layer/message_box.h"

namespace ostrane {

namespace {

// While the recovery itself changes the drive, its failures are not recovered from once more, and
// the folders follow only as far as it says.
enum class recovery { none, to_drive_c, back };
recovery running = recovery::none;

using step = std::function<void()>;

void report_failing_drive(const std::string& drive) {
  forms_layer::message_box(
      "You are trying to access a Drive that isn't responding.\n\rDrive in error: >" + drive +
      "<\n\rCheck that the Drive is working properly, and has a Diskette or CD-ROM inserted. Then "
      "try again.");
}

bool works(const step& tried) {
  try {
    tried();
    return true;
  } catch (const files::file_error&) {
    return false;
  }
}

void recover(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1) {
  report_failing_drive(Drive1.Drive());
  running = recovery::to_drive_c;
  works([&] { Drive1.Drive = "C"; });
  if (!works([&] { Dir1.Path = "C:\\"; })) {
    running = recovery::back;
    works([&] { Drive1.Drive = Dir1.Path(); });
  }
  running = recovery::none;
}

void follow(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1,
            forms_layer::file_list* File1) {
  if (running == recovery::back) return;
  bool recovered = running != recovery::none;
  const auto run_step = [&](const step& tried) {
    if (!works(tried) && !std::exchange(recovered, true)) recover(Drive1, Dir1);
  };
  run_step([&] { Dir1.Path = Drive1.Drive(); });
  if (File1 == nullptr) return;
  run_step([&] { Dir1.Refresh(); });
  run_step([&] { File1->Refresh(); });
}

}  // namespace

void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1) {
  follow(Drive1, Dir1, nullptr);
}

void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1,
                   forms_layer::file_list& File1) {
  follow(Drive1, Dir1, &File1);
}

}  // namespace ostrane
