#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>

#include "forms_layer/control.h"

// Fonts, colours and places as designed, in terms of the screen.
namespace desktop {

// An installed font of about the widths of the designed one.
QFont font_for(const forms_layer::font_design& designed);

// A system colour becomes what the theme has for it.
QColor on_screen(forms_layer::colour c);

// The theme's text colour on a system colour; black or white, whichever can be read, on a fixed
// one.
QColor text_on(forms_layer::colour back);

// `start` with `back` and its text colour for a pair of roles, greyed a little when disabled. With
// the Base role also for a frame that can be seen in light and dark themes.
QPalette with_colours(QPalette start, QPalette::ColorRole back_role, QPalette::ColorRole text_role,
                      forms_layer::colour back);

// The colour halfway.
QColor mix(const QColor& a, const QColor& b);

// Whole pixels of a length or a place in twips; what is left over is dropped towards the left.
int pixels_across(std::int32_t twips);
int pixels_down(std::int32_t twips);
// In pixels of what the control stands in.
QRect rect_of(const forms_layer::control& shown);

}  // namespace desktop
