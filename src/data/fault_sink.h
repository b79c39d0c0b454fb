#pragma once

#include <functional>
#include <string>

namespace ostrane {

// Receives the faults that a check finds. `entry` is "" for a fault of the archive itself.
using fault_sink = std::function<void(const std::string& entry, const std::string& fault)>;

}  // namespace ostrane
