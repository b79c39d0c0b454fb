#pragma once

#include <functional>
#include <string>

namespace ostrane {

// Receives a fault and the name of its entry, or "" for the archive itself.
using fault_sink = std::function<void(const std::string& entry, const std::string& fault)>;

}  // namespace ostrane
