#pragma once

#include <string>

// The text files of the sample: code page 1252, CR LF.
namespace ostrane::samples {

std::string guide_text();
std::string almanac_text();
std::string data_text();

// iconlist.csv: "NAME;description" for each entry, without the extension.
std::string icon_list();

}  // namespace ostrane::samples
