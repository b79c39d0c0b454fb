#pragma once

namespace desktop {

// To be called once there is an application. Screen readers then find the visible pictures of a
// canvas as its children, after its widgets: with a name, a place, and what a double click does as
// their action.
void install_accessible_canvases();

}  // namespace desktop
