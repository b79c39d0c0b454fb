#pragma once

#include <QProgressBar>

#include "desktop/control_view.h"
#include "forms_layer/progress_bar.h"

namespace desktop {

class progress_view : public QProgressBar, public control_view {
 public:
  progress_view(forms_layer::progress_bar& shown, QWidget* parent)
      : QProgressBar(parent), control_view(shown), bar_(shown) {
    setTextVisible(false);
    setRange(0, steps);
  }
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override { setValue(static_cast<int>(bar_.filled() * steps)); }

 private:
  static constexpr int steps = 1000;

  forms_layer::progress_bar& bar_;
};

}  // namespace desktop
