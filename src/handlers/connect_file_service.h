#pragma once

namespace ostrane {

// Connects the drive, folder and file lists of the forms to the file system.
void connect_file_service();

}  // namespace ostrane
