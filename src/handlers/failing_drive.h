#pragma once

#include "platform/controls.h"

namespace ostrane {

// Change of a dialog's `Drive1`: its folders follow. A drive that does not answer gives a message,
// and the dialog goes to drive C; if that does not answer either it stays where it was.
void follow_drive(platform::drive_list& Drive1, platform::dir_list& Dir1);

// The same, and then both lists are read anew.
void follow_drive(platform::drive_list& Drive1, platform::dir_list& Dir1,
                  platform::file_list& File1);

}  // namespace ostrane
