#pragma once

#include <QMainWindow>
#include <QPointer>

#include "desktop/canvas.h"
#include "desktop/menu_bar.h"
#include "desktop/views.h"
#include "forms_layer/form.h"

namespace desktop {

// The window of one form: the menu bar if it has menus, and beneath it the client area.
class form_window : public QMainWindow {
 public:
  form_window(forms_layer::form& shown, views& all_views);

  forms_layer::form& form;

  // Shows the window over `owner` (null: over nothing). It goes to its place as designed the first
  // time, later to where it was. Over `centre_of` it centres if it is so designed. A window that is
  // shown in the middle of a handler gets no keyboard until `take_focus`.
  void show_over(QWindow* owner, const QWidget* centre_of, bool in_handler);
  void hide_window();
  void take_focus();
  void show_caption();
  void show_menu_item(const forms_layer::menu_item& item);

  // It was shown in the middle of a handler and has no keyboard yet.
  bool wants_focus() const { return wants_focus_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int menu_height() const;
  void set_designed_size();
  void set_tab_order();
  void open_focused_menu();

  views& views_;
  menu_bar* menus_ = nullptr;
  bool placed_ = false;
  QPoint last_position_;       // of the client area
  QPointer<QWidget> focused_;  // when the window was last hidden
  bool wants_focus_ = false;
};

}  // namespace desktop
