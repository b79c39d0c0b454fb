#pragma once

namespace ostrane {

// Makes the folder `Form4.Text2` inside the folder `Form4.Text1` and opens it in the dialog. A
// blank name does nothing. A failure to make or to open it is reported by its error number.
void make_new_folder();

}  // namespace ostrane
