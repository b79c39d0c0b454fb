#pragma once

namespace ostrane {

// Call after a handler threw bad_alloc. Closes `archive_file`, hides `Form3`, and shows and enables
// `Form1` unless a dialog is open.
void recover_from_out_of_memory();

}  // namespace ostrane
