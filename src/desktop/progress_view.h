#pragma once

#include <QProgressBar>

#include "desktop/control_view.h"
#include "forms_layer/progress_bar.h"

namespace desktop {

class progress_view : public view_of<QProgressBar, forms_layer::progress_bar> {
 public:
  progress_view(forms_layer::progress_bar& shown, QWidget* parent) : view_of(shown, parent) {
    setTextVisible(false);
    setRange(0, steps);
  }

 protected:
  void show_content() override {
    setValue(static_cast<int>(shown_.filled() * steps));
    update();  // Qt paints only steps of several pixels
  }

 private:
  static constexpr int steps = 1000;
};

}  // namespace desktop
