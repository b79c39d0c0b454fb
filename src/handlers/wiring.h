#pragma once

namespace ostrane {

// Connects the events of all forms to their handlers.
void wire_forms();

}  // namespace ostrane
