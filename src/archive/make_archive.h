#pragma once

namespace ostrane {

// Builds `OSTRANE.DAT` in the folder `Form5.Text1` from the files that `Form5.File1` lists, and
// shows the progress. The old archive stays until the new one is complete. If an archive is open
// the new one becomes the open one. Otherwise only `make_index`, `dat_index` and `record_count`
// change. Reports the files of the folder that were skipped. Reports any failure; then the archive
// and the dialog are unchanged.
void make_archive();

}  // namespace ostrane
