#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/menu_bar.h"
#include "desktop/surface.h"
#include "desktop/views.h"
#include "forms_layer/form.h"

namespace desktop {

// The window of one form: the menu bar if it has menus, and beneath it the client area.
class form_window : public QWidget {
 public:
  form_window(forms_layer::form& shown, views& all_views);

  forms_layer::form& form;

  // Brings the window up over `owner` (null: over nothing). It goes to its place as designed the
  // first time, later to where it was. Over `centre_of` it centres if it is so designed.
  void come_up(QWindow* owner, const QWidget* centre_of, bool active);
  void go_away();
  void take_focus();
  void show_caption();
  void show_menu_item(const forms_layer::menu_item& item);

  // Paints what waits to be painted, now. The first time since the window came up, it is waited
  // until the window is on the screen, for a moment at most.
  void paint_now();

  // It came up without the focus, in the middle of a handler.
  bool wants_focus() const { return wants_focus_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int menu_height() const;
  void set_size_as_designed();
  void set_tab_order();
  void lay_out();

  views& views_;
  menu_bar* menus_ = nullptr;
  surface* client_ = nullptr;
  bool placed_ = false;
  QPoint last_place_;
  QPointer<QWidget> focused_;  // when the window last went away
  bool wants_focus_ = false;
  bool awaits_exposure_ = false;
};

}  // namespace desktop
