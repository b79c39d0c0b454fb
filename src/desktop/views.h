#pragma once

#include <QWidget>
#include <unordered_map>
#include <vector>

#include "desktop/canvas.h"
#include "desktop/control_view.h"

namespace desktop {

// All widgets that show controls, by control, and which of them are dirty.
class views {
 public:
  // Makes widgets on the canvas for all controls of its container, and for those in its frames.
  void make_all(forms_layer::container& shown, canvas& on);

  // A control without a widget is skipped. True if it had no dirty property before.
  bool mark_dirty(forms_layer::control& written, forms_layer::property_id what);
  void sync();

  // For a new theme.
  void show_all();

  // The widgets of a form in tab order.
  std::vector<QWidget*> in_tab_order(const forms_layer::form& shown) const;

 private:
  bool mark_picture_dirty(forms_layer::picture_box& box);

  std::vector<control_view*> all_;
  std::unordered_map<const forms_layer::control*, control_view*> by_control_;
  std::unordered_map<const forms_layer::container*, canvas*> canvases_;
  std::vector<control_view*> dirty_;
  std::vector<canvas*> dirty_canvases_;
};

}  // namespace desktop
