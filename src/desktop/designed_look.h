#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>

#include "forms_layer/control.h"

// Converts designed fonts, colours and rectangles for the screen.
namespace desktop {

// An installed font with similar widths.
QFont font_for(const forms_layer::font_design& designed);

// A colour that is not a system colour.
inline QRgb as_rgb(forms_layer::colour c) {
  return qRgb(static_cast<int>(forms_layer::red_of(c)), static_cast<int>(forms_layer::green_of(c)),
              static_cast<int>(forms_layer::blue_of(c)));
}

// A system colour becomes that of the theme.
QColor on_screen(forms_layer::colour c);

// `start` with `back` and its text colour for a pair of roles, slightly greyed when disabled: the
// theme's text on a system colour, the better readable of black and white on others. For the Base
// role also with a frame colour that is visible in light and dark themes.
QPalette with_colours(QPalette start, QPalette::ColorRole back_role, QPalette::ColorRole text_role,
                      forms_layer::colour back);

// The mean of two colours.
QColor mix(const QColor& a, const QColor& b);

// Twips to pixels, rounded down.
int pixels_across(std::int32_t twips);
int pixels_down(std::int32_t twips);
// In pixels, relative to its container.
QRect rect_of(const forms_layer::control& shown);

}  // namespace desktop
