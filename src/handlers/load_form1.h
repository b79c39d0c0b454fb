#pragma once

namespace ostrane {

// Load event of `Form1`: sets the defaults and the built-in colours, reads the icon names and loads
// the first twelve slots. Without a drive C: `Form2` stays in the current folder.
void load_form1();

}  // namespace ostrane
