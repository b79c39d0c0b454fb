#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

class form;
class menu;

// One line of a menu. An item without a caption is a separator.
class menu_item {
 public:
  menu_item(menu& parent, const char* item_name, std::string caption);
  menu_item(const menu_item&) = delete;
  menu_item& operator=(const menu_item&) = delete;
  ~menu_item() = default;

  form& owner;
  const char* const name;
  std::string Caption;  // Popup may change that of a context menu
  property<bool, property_id::menu, menu_item> Enabled;

  event Click;

  bool is_separator() const { return Caption.empty(); }
  void on_assigned(property_id what, bool differs);
};

// A menu of the menu bar.
class menu {
 public:
  menu(form& shown_on, const char* menu_name, std::string caption);
  menu(const menu&) = delete;
  menu& operator=(const menu&) = delete;
  ~menu() = default;

  form& owner;
  const char* const name;
  const std::string Caption;
  std::vector<menu_item*> items;

 protected:
  // Not in the menu bar.
  menu(form& opened_on, const char* menu_name);
};

// A menu that opens on a row or an element of a control, by the right mouse button or the menu key.
class context_menu : public menu {
 public:
  context_menu(form& opened_on, const char* menu_name) : menu(opened_on, menu_name) {}

  // True if the menu opens on the row or element of this index.
  std::function<bool(std::int32_t index)> OpensOn;
  // Raised with the index before the menu opens. Enables the items.
  std::function<void(std::int32_t index)> Popup;
};

}  // namespace forms_layer
