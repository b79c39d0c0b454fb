#pragma once

#include "forms_layer/form.h"

namespace ostrane {

// Open a dialog from `Form1`. `Form2` and `Form6` overlay `Form1`, which stays visible but
// disabled; `Form4` and `Form5` replace it. The first time `Form2` shows the current folder of the
// process if that holds an archive. open_form6 sets the pattern of its file list to text
// files.
void open_form2();
void open_form4();
void open_form5();
void open_form6();

// Cancel: hide a dialog that overlays or replaces `Form1`, and enable or show `Form1`.
void cancel_overlay(forms_layer::form& dialog);
void cancel_replacement(forms_layer::form& dialog);

// Call after a handler threw bad_alloc. Closes `archive_file`, hides `Form3`, and shows and enables
// `Form1` unless a dialog is open.
void abandon_job();

// Reads the archive in the folder that `Form2` shows, then hides `Form2` and enables `Form1`, also
// if there is no archive.
void confirm_form2();
// The same if `Form2` lists an archive. Returns false if not.
bool confirm_listed_archive();

}  // namespace ostrane
