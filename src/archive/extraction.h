#pragma once

namespace ostrane {

// Writes every entry of the open archive into the folder `Form4.Text1`, each over the file of its
// name or as a new one, and shows the progress. Entries that cannot be written are skipped and
// listed in the final message; a full disk stops the job. The dialog stays if the job was stopped
// or wrote nothing, and after the message that the folder or the archive does not exist or that the
// archive has changed since it was read. The archive itself is never written to.
void extract_all_entries();

}  // namespace ostrane
