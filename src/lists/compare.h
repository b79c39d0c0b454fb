#pragma once

namespace ostrane {

// Compares the open archive with the shiplist that `Form6` shows as chosen, writes the report and
// gives `Form1` back. A file that cannot be read or written gives a message, and the dialog stays.
void compare_with_shiplist();

}  // namespace ostrane
