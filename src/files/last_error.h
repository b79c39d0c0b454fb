#pragma once

namespace files {

// The error of the last call of Windows as a negative errno number. Call it directly after the
// call. A file that vanishes when its last user closes it is in use.
int last_error();

}  // namespace files
