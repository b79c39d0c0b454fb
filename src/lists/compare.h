#pragma once

namespace ostrane {

// Compares the names in `List1` with the shiplist that `Form6` shows as chosen, writes the report,
// hides `Form6` and enables `Form1`. Reports a file that cannot be read or written; then the dialog
// stays. Changes `comparison`.
void compare_with_shiplist();

}  // namespace ostrane
