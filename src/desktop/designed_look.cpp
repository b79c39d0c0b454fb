#include "desktop/designed_look.h"

#include <QApplication>
#include <cstring>

#include "desktop/system_fonts.h"
#include "forms_layer/application.h"

namespace desktop {

namespace {

// Designed lengths assume 96 dots per inch.
constexpr double pixels_per_point = 96.0 / 72.0;

// Fusion darkens the window's colour by this percentage for frames, which is invisible in a dark
// theme.
constexpr int fusion_darkens_lines_by = 140;

int pixels(std::int32_t twips, std::int32_t twips_per_pixel) {
  const std::int32_t whole = twips / twips_per_pixel;
  return twips % twips_per_pixel < 0 ? whole - 1 : whole;
}

QPalette::ColorRole role_of(forms_layer::colour system_colour) {
  return system_colour == forms_layer::system_window ? QPalette::Base : QPalette::Window;
}

// The text colour for a background.
QColor text_on(forms_layer::colour back) {
  if (!forms_layer::is_system_colour(back)) {
    return qGray(as_rgb(back)) > 127 ? Qt::black : Qt::white;
  }
  const bool is_field = role_of(back) == QPalette::Base;
  return QApplication::palette().color(QPalette::Active,
                                       is_field ? QPalette::Text : QPalette::WindowText);
}

}  // namespace

QFont font_for(const forms_layer::font_design& designed) {
  QFont font;
  if (std::strcmp(designed.name, "Courier New") == 0) {
    font.setFamilies(fixed_pitch_fonts());
    font.setStyleHint(QFont::TypeWriter);
  } else {
    font.setFamilies(proportional_fonts());
    font.setStyleHint(QFont::SansSerif);
  }
  font.setPixelSize(qRound(designed.points * pixels_per_point));
  font.setBold(designed.bold);
  return font;
}

QColor on_screen(forms_layer::colour c) {
  const QPalette theme = QApplication::palette();
  if (c == forms_layer::system_light) {
    return mix(theme.color(QPalette::Window), theme.color(QPalette::Base));
  }
  return forms_layer::is_system_colour(c) ? theme.color(role_of(c)) : QColor(as_rgb(c));
}

QPalette with_colours(QPalette start, QPalette::ColorRole back_role, QPalette::ColorRole text_role,
                      forms_layer::colour back) {
  // Themes have their own colour for it.
  if (back_role == QPalette::Button && back == forms_layer::system_button_face) return start;
  const QColor background = on_screen(back);
  const QColor text = text_on(back);
  start.setColor(back_role, background);
  start.setColor(text_role, text);
  start.setColor(QPalette::Disabled, text_role, mix(text, mix(text, background)));
  if (back_role != QPalette::Base) return start;
  start.setColor(QPalette::PlaceholderText, mix(text, background));
  const QColor window = QApplication::palette().color(QPalette::Window);
  const QColor window_text = QApplication::palette().color(QPalette::WindowText);
  start.setColor(QPalette::Window,
                 mix(window, mix(window, window_text)).lighter(fusion_darkens_lines_by));
  return start;
}

QColor mix(const QColor& a, const QColor& b) {
  return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

int pixels_across(std::int32_t twips) {
  return pixels(twips, forms_layer::application.TwipsPerPixelX);
}

int pixels_down(std::int32_t twips) {
  return pixels(twips, forms_layer::application.TwipsPerPixelY);
}

QRect rect_of(const forms_layer::control& shown) {
  return QRect(pixels_across(shown.Left()), pixels_down(shown.Top()), pixels_across(shown.Width()),
               pixels_down(shown.Height()));
}

}  // namespace desktop
