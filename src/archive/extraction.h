#pragma once

namespace ostrane {

// Writes every entry of the open archive into the folder of `Form4.Text1`, each over a file of its
// name or as a new one, with `Form3` on the screen meanwhile. What cannot be written is passed over
// and listed in a message at the end; a full disk stops the job. Nothing is written, and the dialog
// stays, if there is no such folder or no archive. The archive itself is never written to.
void extract_all_entries();

}  // namespace ostrane
