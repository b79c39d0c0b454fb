#pragma once

#include <functional>
#include <string>

namespace ostrane {

// Takes what a check has found: the name of the entry, or "" for the archive itself, and the fault.
using fault_sink = std::function<void(const std::string& entry, const std::string& fault)>;

}  // namespace ostrane
