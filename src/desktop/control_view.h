#pragma once

#include <QWidget>

#include "desktop/designed_look.h"
#include "forms_layer/control.h"

namespace desktop {

// The widget of one control. It mirrors the control's properties and reports input to the tool.
class control_view {
 public:
  explicit control_view(forms_layer::control& shown) : control(shown) {}
  control_view(const control_view&) = delete;
  control_view& operator=(const control_view&) = delete;
  virtual ~control_view() = default;

  forms_layer::control& control;
  virtual QWidget& widget() = 0;

  // The widget that takes the focus and is in the tab order.
  virtual QWidget& focus_widget() { return widget(); }

  void mark_dirty(forms_layer::property_id what);
  bool is_dirty() const { return dirty_ != 0; }
  // Shows all dirty properties.
  void sync();
  // Shows every property, as for a new widget or a new theme.
  void show_all();

 protected:
  // Caption, text, items or range. Synced before the selection, which refers to the items.
  virtual void show_content() {}
  virtual void show_selection() {}
  // By default BackColor is the colour of the widget's background role.
  virtual void show_colours();

 private:
  unsigned dirty_ = 0;
};

// The base of a view: a Qt widget that shows a kind of control, in its designed font.
template <typename Widget, typename Control>
class view_of : public Widget, public control_view {
 public:
  view_of(Control& shown, QWidget* parent) : Widget(parent), control_view(shown), shown_(shown) {
    this->setFont(font_for(shown.designed.font));
  }
  QWidget& widget() override { return *this; }

 protected:
  Control& shown_;
};

}  // namespace desktop
