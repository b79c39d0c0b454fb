#pragma once

#include <QProgressBar>

#include "desktop/control_view.h"
#include "forms_layer/progress_bar.h"

namespace desktop {

// Moves in steps of a pixel, and paints the strip that it moved by: a job moves it thousands of
// times.
class progress_view : public QProgressBar, public control_view {
 public:
  progress_view(forms_layer::progress_bar& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int filled_width() const;

  forms_layer::progress_bar& bar_;
  int painted_ = 0;  // pixels that are filled on the screen
};

}  // namespace desktop
