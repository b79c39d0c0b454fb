#pragma once

namespace ostrane {

// Lets the lists of the forms see the drives of the tool.
void connect_file_service();

}  // namespace ostrane
