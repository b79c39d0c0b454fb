#pragma once

namespace desktop {

// Call after the application is created. Screen readers then find the pictures of a canvas as its
// children, after its widgets: with a name, a position, and the double click as their action. The
// picture at the cursor has the focus of its canvas.
void install_accessible_canvases();

}  // namespace desktop
