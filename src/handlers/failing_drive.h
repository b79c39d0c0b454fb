#pragma once

#include "forms_layer/controls.h"

namespace ostrane {

// Change of a dialog's `Drive1`: its folders follow. A drive that does not answer gives a message,
// and the dialog goes to drive C; if that does not answer either it stays where it was.
void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1);

// The same, and then both lists are read anew.
void sync_to_drive(forms_layer::drive_list& Drive1, forms_layer::dir_list& Dir1,
                   forms_layer::file_list& File1);

}  // namespace ostrane
