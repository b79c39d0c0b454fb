#pragma once

#include <QProgressBar>
#include <algorithm>

#include "desktop/control_view.h"
#include "desktop/designed_look.h"
#include "platform/progress_bar.h"

namespace desktop {

// Moves in steps of a pixel, so that a value that shows no difference paints nothing.
class progress_view : public QProgressBar, public control_view {
 public:
  progress_view(platform::progress_bar& shown, QWidget* parent)
      : QProgressBar(parent), control_view(shown), bar_(shown) {
    setTextVisible(false);
  }
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override {
    const int steps = std::max(1, pixels_across(bar_.Width()));
    setRange(0, steps);
    setValue(static_cast<int>(bar_.filled() * steps));
  }

 private:
  platform::progress_bar& bar_;
};

}  // namespace desktop
