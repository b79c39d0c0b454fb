#pragma once

#include "forms_layer/controls.h"

// Colours and fonts that several forms share.
namespace ostrane {

constexpr forms_layer::colour pale_green = forms_layer::rgb(0xC0, 0xFF, 0xC0);
constexpr forms_layer::colour pale_cyan = forms_layer::rgb(0xC0, 0xFF, 0xFF);

constexpr forms_layer::font_design bold_large = {
    .name = "MS Sans Serif", .points = 9.75, .bold = true};
constexpr forms_layer::font_design large = {.name = "MS Sans Serif", .points = 9.75, .bold = false};

constexpr const char* icon_tool_tip = "Doubleclick to display data for this icon.";

}  // namespace ostrane
