#pragma once

namespace ostrane {

// Ties every event of the forms to its handler.
void wire_forms();

}  // namespace ostrane
