#pragma once

namespace ostrane {

// Makes the folder that `Form4.Text2` names inside that of `Text1`, and goes there; blanks alone
// name none. A failure gives a message with the system's number for it.
void make_new_folder();

}  // namespace ostrane
