#pragma once

#include <QMainWindow>
#include <QPointer>

#include "desktop/views.h"
#include "forms_layer/form.h"

namespace desktop {

// The window of one form: the menu bar if it has menus, and the client area below.
class form_window : public QMainWindow {
 public:
  form_window(forms_layer::form& shown, views& all_views);

  forms_layer::form& form;

  // Shows the window over `owner`, which may be null. The first time it is at its designed
  // position, later at its last one. If its design says so, it is centred over `centre_of`. A
  // window shown during a handler gets no focus before `take_focus`.
  void show_over(QWindow* owner, const QWidget* centre_of, bool in_handler);
  void hide_window();
  void take_focus();
  void show_caption();

  // True if it was shown during a handler and has no focus yet.
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
  bool placed_ = false;
  QPoint last_position_;       // of the client area
  QPointer<QWidget> focused_;  // when the window was last hidden
  bool wants_focus_ = false;
};

}  // namespace desktop
