#pragma once

namespace ostrane {

// Writes every entry of the open archive to a file in the folder `Form4.Text1` and shows the
// progress. An existing file is overwritten from its first byte and not truncated. Entries that
// cannot be written are skipped and listed in the final message. A full disk and a lack of memory
// stop the job. The archive itself is never written to.
//
// The dialog stays if the job was stopped, wrote nothing or did not start. It does not start, with
// a message, if the folder or the archive does not exist, if the index puts entries before the
// file, or if the archive has changed since it was read.
void extract_all_entries();

}  // namespace ostrane
