#pragma once

#include <QWidget>
#include <unordered_map>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/surface.h"

namespace desktop {

// All widgets that show controls, by control, and which of them have to catch up with theirs.
class views {
 public:
  // Makes widgets for all controls of a container, and for those in its frames. `ground` is the
  // surface that shows the container.
  void make_all(forms_layer::container& shown, surface& ground);

  // A control without a widget is passed over. True if there was nothing to catch up with before.
  bool note(forms_layer::control& written, forms_layer::property_id what);
  void catch_up();

  // For a new theme.
  void show_all();

  // The widgets of a form in tab order.
  std::vector<QWidget*> in_tab_order(const forms_layer::form& shown) const;

 private:
  bool note_picture(forms_layer::picture_box& box);

  std::vector<control_view*> all_;
  std::unordered_map<const forms_layer::control*, control_view*> by_control_;
  std::unordered_map<const forms_layer::container*, surface*> grounds_;
  std::vector<control_view*> noted_;
  std::vector<surface*> noted_grounds_;
};

}  // namespace desktop
