#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "desktop/wrapped_text.h"
#include "forms_layer/label.h"

namespace desktop {

// Wraps where the tool's labels wrap. One that answers a click answers Enter and Space too.
class label_view : public QLabel, public control_view {
 public:
  label_view(forms_layer::label& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int text_top() const;

  forms_layer::label& label_;
  wrapped_text lines_;
  bool focus_by_key_ = false;
};

}  // namespace desktop
