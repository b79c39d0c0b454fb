#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"
#include "platform/text_box.h"

namespace desktop {

// A text box of one line.
class line_view : public QLineEdit, public control_view {
 public:
  line_view(platform::text_box& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;

 private:
  void take_edit();

  platform::text_box& box_;
};

}  // namespace desktop
