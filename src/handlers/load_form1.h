#pragma once

namespace ostrane {

// Load event of `Form1`: sets the defaults, the built-in colours, the icon names and the first
// twelve slots. A drive C: that does not answer leaves `Form2` in the current folder.
void load_form1();

}  // namespace ostrane
