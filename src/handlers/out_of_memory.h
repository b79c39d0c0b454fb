#pragma once

namespace ostrane {

// A handler ended for lack of memory, wherever it was. Closes its files and brings the windows to a
// state from which the user can go on: `Form3` away, and `Form1` there unless a dialog is open.
void recover_from_lack_of_memory();

}  // namespace ostrane
