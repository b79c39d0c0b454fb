#pragma once

namespace ostrane {

// From `Form1` to a dialog and back. `Form2` and `Form6` leave `Form1` on the screen, disabled;
// `Form4` and `Form5` hide it.
void open_form2();
void open_form4();
void open_form5();
void open_form6();
void cancel_form2();
void cancel_form4();
void cancel_form5();
void cancel_form6();

// Reads the archive in the folder that `Form2` shows, and gives `Form1` back.
void read_archive_of_form2();

}  // namespace ostrane
