#include "forms_layer/menu.h"

#include <utility>

#include "forms_layer/form.h"
#include "forms_layer/screen.h"

namespace forms_layer {

menu_item::menu_item(menu& parent, const char* item_name, std::string caption)
    : owner(parent.owner), name(item_name), Caption(std::move(caption)), Enabled(*this, true) {
  parent.items.push_back(this);
}

void menu_item::on_assigned(property_id /*what*/, bool differs) {
  if (differs) the_screen().menu_changed(owner, *this);
}

menu::menu(form& shown_on, const char* menu_name, std::string caption)
    : owner(shown_on), name(menu_name), Caption(std::move(caption)) {
  owner.menus.push_back(this);
}

menu::menu(form& opened_on, const char* menu_name) : owner(opened_on), name(menu_name) {}

}  // namespace forms_layer
