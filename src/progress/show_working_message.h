#pragma once

namespace ostrane {

// Writes the working texts into `Form3` and paints it at once; does not show or hide anything.
void show_working_message();

}  // namespace ostrane
