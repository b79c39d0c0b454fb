#pragma once

namespace ostrane {

// Fills the table of keys of `Form1` and `Form2`. The manual and the README list the same keys.
void wire_keys();

}  // namespace ostrane
