#pragma once

#include <QMenu>
#include <QWidget>

#include "forms_layer/key.h"
#include "forms_layer/menu.h"

// The actions of the screen on the lists and pictures of a window: search, enlarged picture.
namespace desktop {

// Does what a key says, unless that is an action of the tool.
void act(const QWidget& window, const forms_layer::key& pressed);

// Closes the search, else the enlarged picture. Returns false if neither was open.
bool close_extra(const QWidget& window);

// Adds the actions of the screen to a menu of pictures.
void add_view_items(const QWidget& window, const forms_layer::context_menu& opened, QMenu& menu);

}  // namespace desktop
