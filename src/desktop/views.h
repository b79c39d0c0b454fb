#pragma once

#include <QWidget>
#include <map>
#include <unordered_map>
#include <vector>

#include "desktop/canvas.h"
#include "desktop/control_view.h"

namespace desktop {

// All widgets of controls, and which of them are dirty.
class views {
 public:
  // Creates widgets on the canvas for all controls of its container and of the frames in it.
  void make_all(forms_layer::container& shown, canvas& on);

  // Ignores a control without a widget.
  void mark_dirty(forms_layer::control& changed, forms_layer::property_id what);
  void sync();

  // After a change of the theme or a failed sync.
  void show_all();

  // The widgets of a form in tab order.
  std::multimap<int, QWidget*> in_tab_order(const forms_layer::form& shown) const;

 private:
  std::vector<control_view*> all_;
  std::unordered_map<const forms_layer::control*, control_view*> by_control_;
  std::unordered_map<const forms_layer::container*, canvas*> canvases_;
  std::vector<control_view*> dirty_;
  std::vector<canvas*> dirty_canvases_;
  bool failed_ = false;  // memory ran out during a change or a sync
};

}  // namespace desktop
