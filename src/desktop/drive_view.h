#pragma once

#include <QComboBox>

#include "desktop/control_view.h"
#include "forms_layer/drive_list.h"

namespace desktop {

// A drop-down list of the drives.
class drive_view : public QComboBox, public control_view {
 public:
  drive_view(forms_layer::drive_list& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_selection() override;
  void show_colours() override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  forms_layer::drive_list& drives_;
};

}  // namespace desktop
