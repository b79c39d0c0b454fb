#pragma once

#include "platform/controls.h"

// Colours and fonts that several forms share.
namespace ostrane {

constexpr platform::colour pale_green = platform::rgb(0xC0, 0xFF, 0xC0);
constexpr platform::colour pale_cyan = platform::rgb(0xC0, 0xFF, 0xFF);

constexpr platform::font_design bold_large = {
    .name = "MS Sans Serif", .points = 9.75, .bold = true};
constexpr platform::font_design large = {.name = "MS Sans Serif", .points = 9.75, .bold = false};

constexpr const char* icon_tool_tip = "Doubleclick to display data for this icon.";

}  // namespace ostrane
