#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "forms_layer/container.h"
#include "forms_layer/control.h"
#include "forms_layer/key.h"
#include "forms_layer/menu.h"

namespace forms_layer {

class timer;

enum class start_position { screen_centre, owner_centre };

// The initial state of a form. Lengths are twips; the client area excludes frame and menu bar.
struct form_design {
  const char* name = "";
  std::string caption = {};
  std::int32_t client_width = 0;
  std::int32_t client_height = 0;
  bool control_box = false;  // the user can close the window
  bool resizable = false;
  start_position opens = start_position::owner_centre;
  // Width() and Height() minus the client area. Fixed, whatever the window manager draws.
  std::int32_t frame_width = 225;
  std::int32_t frame_height = 705;
};

// A window. It is constructed once; hiding and showing it keeps its state.
class form : public container {
 public:
  explicit form(form_design as_designed);

  const form_design designed;

  property<std::string, property_id::caption, form> Caption;
  property<bool, property_id::visible, form> Visible;
  property<bool, property_id::enabled, form> Enabled;

  // The outer size in twips.
  std::int32_t Width() const { return client_width_ + designed.frame_width; }
  std::int32_t Height() const { return client_height_ + designed.frame_height; }
  std::int32_t client_width() const { return client_width_; }
  std::int32_t client_height() const { return client_height_; }

  event Load;
  event Unload;
  event Resize;
  // True if the form takes this file or folder of the system when the user drops it. Null: none.
  std::function<bool(const std::filesystem::path& dragged)> TakesDrop;
  std::function<void(const std::filesystem::path& dropped)> Drop;

  // Lets the screen repaint what changed in the form and its controls.
  void Refresh();
  // Gives the window the focus after the running handler.
  void SetFocus();

  std::vector<menu*> menus;
  std::vector<timer*> timers;
  std::vector<key> keys;

  form& containing_form() override { return *this; }

  void on_assigned(property_id what, bool differs);

  // Stores a new client size in twips. Does not raise Resize.
  void set_client_size(std::int32_t width, std::int32_t height);

 private:
  std::int32_t client_width_;
  std::int32_t client_height_;
  bool resized_once_ = false;
};

}  // namespace forms_layer
