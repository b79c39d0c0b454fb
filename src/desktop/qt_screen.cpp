#include "desktop/qt_screen.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#include "desktop/dialogs.h"
#include "desktop/picture_painter.h"
#include "desktop/view_actions.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

// Displays show some 60 frames per second.
constexpr auto frame_time = 16ms;

// The window of a job that ends sooner would only flicker.
constexpr auto window_delay = 100ms;

// Wayland gives the focus also to a window that a dialog blocks. Qt then asks for the focus of that
// window, so the dialog must ask later.
void pass_on_focus(const QWindow* focused, window_stack& windows, QObject& context) {
  const QWidget* widget = focused == nullptr ? nullptr : QWidget::find(focused->winId());
  const auto* window = dynamic_cast<const form_window*>(widget);
  if (window == nullptr) return;
  QTimer::singleShot(0, &context, [&windows, is_barred = !window->form.Enabled()] {
    if (QWidget* dialog = QApplication::activeModalWidget()) {
      dialog->activateWindow();
    } else if (is_barred && !forms_layer::handler_running()) {
      windows.bring_up_topmost();
    }
  });
}

}  // namespace

qt_screen::qt_screen() {
  qApp->installEventFilter(&filter_);
  filter_.on_barred_press = [this] { windows_.bring_up_topmost(); };
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &filter_,
                   [this](const QWindow* focused) { pass_on_focus(focused, windows_, filter_); });
  // Without GLib a turn handles posted events after `awake` and then waits.
  for (const auto signal :
       {&QAbstractEventDispatcher::awake, &QAbstractEventDispatcher::aboutToBlock}) {
    QObject::connect(QAbstractEventDispatcher::instance(), signal, &filter_,
                     [this] { settle_between_handlers(); });
  }
}

void qt_screen::control_changed(forms_layer::control& changed, forms_layer::property_id what) {
  views_.mark_dirty(changed, what);
}

void qt_screen::form_changed(forms_layer::form& changed, forms_layer::property_id what) {
  form_window* window = window_of(changed);
  if (what == forms_layer::property_id::caption && window != nullptr) window->show_caption();
  if (what == forms_layer::property_id::visible) windows_.mark_dirty(changed);
  if (what == forms_layer::property_id::focus) windows_.request_focus(changed);
}

void qt_screen::menu_changed(forms_layer::form& owner, forms_layer::menu_item& changed) {
  const form_window* window = window_of(owner);
  if (window == nullptr) return;
  const auto name = QString::fromLatin1(changed.name);
  if (auto* action = window->findChild<QAction*>(name)) action->setEnabled(changed.Enabled());
}

void qt_screen::timer_changed(forms_layer::timer& changed) {
  if (form_window* window = window_of(changed.owner)) window->sync_timer(changed);
}

void qt_screen::refresh(forms_layer::form& /*shown*/) { show_frame_if_due(); }

void qt_screen::refresh(forms_layer::control& /*shown*/) { show_frame_if_due(); }

void qt_screen::message_box(const std::string& title, const std::string& text) {
  sync();
  windows_.store_focus();
  held_keys_.take_input();
  show_message(title, text, windows_.topmost());
}

forms_layer::menu_item* qt_screen::pick_item(forms_layer::context_menu& opened,
                                             forms_layer::screen_point at) {
  sync();
  form_window* owner = window_of(opened.owner);
  return desktop::pick_item(opened, at, owner, [&](QMenu& menu) {
    if (owner != nullptr) add_view_items(*owner, opened, menu);
    if (filter_.key_was_latest()) activate_first_item(menu);
  });
}

forms_layer::save_answer qt_screen::ask_save_path(const forms_layer::save_question& question) {
  sync();
  windows_.store_focus();
  return desktop::ask_save_path(question, windows_.dialog_owner());
}

std::filesystem::path qt_screen::ask_folder(const std::string& title) {
  sync();
  windows_.store_focus();
  return desktop::ask_folder(title, windows_.dialog_owner());
}

void qt_screen::drag_files(const std::vector<std::filesystem::path>& names,
                           const forms_layer::file_writer& write) {
  sync();
  form_window* from = windows_.topmost();
  if (from == nullptr) return;
  if (auto dragged = desktop::drag_files(names, write, *from)) drags_.push_back(dragged);
}

void qt_screen::copy_picture(const forms_layer::picture_box& shown) {
  QGuiApplication::clipboard()->setImage(image_of(shown));
}

// Ends main(), which lets Qt pass on the clipboard.
void qt_screen::end_process() { QApplication::exit(EXIT_SUCCESS); }

// The event loop also runs during a handler, for a frame or a dialog.
void qt_screen::settle_between_handlers() {
  if (forms_layer::handler_running()) return;
  try {
    sync();
    windows_.give_focus();
    held_keys_.deliver();
  } catch (const std::bad_alloc&) {
    // The next turn of the event loop does the rest.
  }
}

void qt_screen::sync() {
  views_.sync();
  windows_.sync();
}

// The start of a handler counts as a frame, as the end of the previous one synced everything.
void qt_screen::show_frame_if_due() {
  const auto began = forms_layer::handler_began();
  const auto shown_at = now();
  if (shown_at - std::max(last_frame_, began) < frame_time) return;
  views_.sync();
  if (shown_at - began >= window_delay) windows_.sync();
  pump_window_system();
  last_frame_ = now();
}

}  // namespace desktop
