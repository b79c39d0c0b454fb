#pragma once

namespace ostrane {

// Builds `OSTRANE.DAT` in the folder of `Form5.Text1` from the files that `Form5.File1` lists, with
// `Form3` on the screen meanwhile. The old archive stays until the new one is whole. If an archive
// is open the new one becomes the open one. One message lists the files of the folder that were
// left out. Any failure gives a message that names the file, leaves everything as it was, and the
// dialog stays.
void make_archive();

}  // namespace ostrane
