#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <map>

#include "desktop/views.h"
#include "forms_layer/form.h"
#include "forms_layer/timer.h"

namespace desktop {

// Processes events of the window system during a handler. Keys and the mouse wait for the end of
// the handler; the tool queues other events.
void pump_window_system();

// The window of one form: the menu bar if it has menus, and the client area below. It runs the
// form's timers, also while it is hidden.
class form_window : public QMainWindow {
 public:
  form_window(forms_layer::form& shown, views& all_views);

  forms_layer::form& form;

  // Shows the window over `owner`, which may be null. The first time it is at its designed
  // position, later at its last one. If its design says so, it is centred over `centre_of`. A
  // window shown during a handler gets no focus before `take_focus`.
  void show_over(QWindow* owner, const QWidget* centre_of);
  void hide_window();
  void take_focus();
  void show_caption();
  // Stops a timer, or starts it again, even if its values are the same.
  void sync_timer(forms_layer::timer& changed);

  // True if it was shown during a handler and has no focus yet.
  bool wants_focus() const { return wants_focus_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  int menu_height() const;
  void set_designed_size();
  // Tab order. The first widget gets the focus.
  void set_focus_order();
  void add_keys();
  void open_focused_menu();
  void place(const QWidget* centre_of);

  views& views_;
  std::map<const forms_layer::timer*, QTimer> timers_;
  bool placed_ = false;
  QPoint last_position_;       // of the client area
  QPointer<QWidget> focused_;  // when the window was last hidden
  bool wants_focus_ = false;
};

}  // namespace desktop
