#pragma once

#include <QComboBox>

#include "desktop/control_view.h"
#include "forms_layer/drive_list.h"

namespace desktop {

// A drop-down list of the drives.
class drive_view : public view_of<QComboBox, forms_layer::drive_list> {
 public:
  drive_view(forms_layer::drive_list& shown, QWidget* parent);

 protected:
  void show_content() override;
  void show_selection() override;
  void show_colours() override;
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace desktop
