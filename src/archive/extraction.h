#pragma once

namespace ostrane {

// Writes every entry of the open archive into the folder of `Form4.Text1`, each over a file of its
// name or as a new one, with `Form3` on the screen meanwhile. What cannot be written is skipped and
// listed in the closing message; a full disk stops the job. If nothing was written the dialog
// stays; so it does if there is no such folder, no archive, or one that has changed since it was
// read. The archive itself is never written to.
void extract_all_entries();

}  // namespace ostrane
