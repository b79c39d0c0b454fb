#pragma once

#include "forms_layer/form.h"

namespace ostrane {

// From `Form1` to a dialog. `Form2` and `Form6` stand over `Form1`, which stays on the screen,
// disabled; `Form4` and `Form5` stand in its place. `Form6` lists text files from then on.
void open_form2();
void open_form4();
void open_form5();
void open_form6();

// Cancel: hides a dialog that stands over `Form1` or in its place, and gives `Form1` back.
void cancel_overlay(forms_layer::form& dialog);
void cancel_replacement(forms_layer::form& dialog);

// Reads the archive in the folder that `Form2` shows, and gives `Form1` back, whether or not there
// was one.
void read_archive_of_form2();

}  // namespace ostrane
