#pragma once

#include "forms_layer/controls.h"

namespace ostrane {

// Change of a dialog's `Drive1`: sets `Dir1` to the current folder of the drive. Reports a drive
// that does not answer and sets the dialog to drive C; if that does not answer either, resets
// `Drive1` to the drive of `Dir1`. With `File1` reloads both lists even if the folder is the same.
void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1,
                   forms_layer::file_list* File1 = nullptr);

}  // namespace ostrane
