#pragma once

#include <string>

// The texts of the sample, as bytes of their files: code page 1252, lines ended by CR LF.
namespace ostrane::samples {

std::string guide_text();
std::string almanac_text();
std::string data_text();

// "NAME;description" for each entry, a name without what stands behind its dot.
std::string icon_list();

}  // namespace ostrane::samples
