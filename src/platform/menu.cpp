#include "platform/menu.h"

#include <utility>

#include "platform/form.h"
#include "platform/screen.h"

namespace platform {

menu_item::menu_item(menu& parent, const char* item_name, std::string caption)
    : owner(parent.owner), name(item_name), Caption(std::move(caption)), Enabled(*this, true) {
  parent.items.push_back(this);
}

void menu_item::written(aspect /*what*/, bool differs) {
  screen* on = attached_screen();
  if (differs && on != nullptr) on->menu_changed(owner, *this);
}

menu::menu(form& shown_on, const char* menu_name, std::string caption)
    : owner(shown_on), name(menu_name), Caption(std::move(caption)) {
  owner.menus.push_back(this);
}

}  // namespace platform
