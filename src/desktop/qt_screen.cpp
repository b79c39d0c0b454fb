#include "desktop/qt_screen.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#include "desktop/dialogs.h"
#include "desktop/message.h"
#include "desktop/picture_painter.h"
#include "desktop/window_system.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

// Displays show some 60 frames per second.
constexpr auto frame_time = 16ms;

// The window of a job that ends sooner would only flicker.
constexpr auto window_delay = 100ms;

}  // namespace

qt_screen::qt_screen() {
  qApp->installEventFilter(&filter_);
  // Without GLib a turn handles posted events after `awake` and then waits.
  for (const auto signal :
       {&QAbstractEventDispatcher::awake, &QAbstractEventDispatcher::aboutToBlock}) {
    QObject::connect(QAbstractEventDispatcher::instance(), signal, &filter_,
                     [this] { sync_between_handlers(); });
  }
}

qt_screen::~qt_screen() = default;

void qt_screen::control_changed(forms_layer::control& changed, forms_layer::property_id what) {
  views_.mark_dirty(changed, what);
}

void qt_screen::form_changed(forms_layer::form& changed, forms_layer::property_id what) {
  form_window* window = window_of(changed);
  if (what == forms_layer::property_id::caption && window != nullptr) window->show_caption();
  if (what == forms_layer::property_id::visible) dirty_forms_.push_back(&changed);
  if (what == forms_layer::property_id::focus) takes_focus_ = &changed;
}

void qt_screen::menu_changed(forms_layer::form& owner, forms_layer::menu_item& changed) {
  const form_window* window = window_of(owner);
  if (window == nullptr) return;
  const auto name = QString::fromLatin1(changed.name);
  if (auto* action = window->findChild<QAction*>(name)) action->setEnabled(changed.Enabled());
}

// Each write restarts a timer, even if the value is the same.
void qt_screen::timer_changed(forms_layer::timer& changed) {
  const auto [at, is_new] = timers_.try_emplace(&changed);
  QTimer& timer = at->second;
  if (is_new) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.callOnTimeout([&changed] { forms_layer::user::tick(changed); });
  }
  const bool runs = changed.Enabled() && changed.Interval() > 0;
  runs ? timer.start(changed.Interval()) : timer.stop();
}

void qt_screen::refresh(forms_layer::form& /*shown*/) { show_frame_if_due(); }

void qt_screen::refresh(forms_layer::control& /*shown*/) { show_frame_if_due(); }

void qt_screen::message_box(const std::string& title, const std::string& text) {
  sync();
  store_focus();
  show_message(title, text, topmost(nullptr));
}

forms_layer::menu_item* qt_screen::pick_item(forms_layer::context_menu& opened,
                                             forms_layer::screen_point at) {
  sync();
  return desktop::pick_item(opened, at, window_of(opened.owner));
}

forms_layer::save_answer qt_screen::ask_save_path(const forms_layer::save_question& question) {
  sync();
  store_focus();
  return desktop::ask_save_path(question, before_box_ == nullptr ? topmost(nullptr) : before_box_);
}

void qt_screen::copy_picture(const forms_layer::picture_box& shown) {
  QGuiApplication::clipboard()->setImage(image_of(shown));
}

// Ends main(), which lets Qt pass on the clipboard.
void qt_screen::end_process() { QApplication::exit(EXIT_SUCCESS); }

form_window* qt_screen::window_of(const forms_layer::form& shown) const {
  const auto at = windows_.find(&shown);
  return at == windows_.end() ? nullptr : at->second.get();
}

// The event loop also runs during a handler, for a frame or a dialog.
void qt_screen::sync_between_handlers() {
  if (forms_layer::handler_running()) return;
  try {
    sync();
  } catch (const std::bad_alloc&) {
    // The next sync shows these changes.
  }
}

void qt_screen::sync() {
  views_.sync();
  sync_forms();
  if (!forms_layer::handler_running()) give_focus();
}

// The start of a handler counts as a frame, as the end of the previous one synced everything.
void qt_screen::show_frame_if_due() {
  const auto began = forms_layer::handler_began();
  const auto now = std::chrono::steady_clock::now();
  if (now - std::max(last_frame_, began) < frame_time) return;
  views_.sync();
  if (now - began >= window_delay) sync_forms();
  pump_window_system();
  last_frame_ = std::chrono::steady_clock::now();
}

// Show new windows before hiding old ones, so that the screen is never empty.
void qt_screen::sync_forms() {
  const std::vector<forms_layer::form*> dirty = dirty_forms_;
  for (forms_layer::form* form : dirty) {
    if (form->Visible()) show_window(*form);
  }
  for (forms_layer::form* form : dirty) {
    if (!form->Visible()) hide_window(*form);
  }
  // If memory runs out before, the next sync shows and hides them.
  std::erase_if(dirty_forms_, [&dirty](const forms_layer::form* form) {
    return std::find(dirty.begin(), dirty.end(), form) != dirty.end();
  });
}

void qt_screen::show_window(forms_layer::form& shown) {
  form_window& window = made_window(shown);
  if (window.isVisible()) return;
  form_window* owner = topmost(&shown);
  if (main_ == nullptr) main_ = &window;
  on_screen_.push_back(&window);
  window.show_over(owner == nullptr ? nullptr : owner->windowHandle(), main_,
                   forms_layer::handler_running());
}

void qt_screen::hide_window(forms_layer::form& shown) {
  form_window* window = window_of(shown);
  if (window == nullptr || !window->isVisible()) return;
  const bool was_active = window->isActiveWindow();
  std::erase(on_screen_, window);
  for (form_window* other : on_screen_) {
    QWindow* handle = other->windowHandle();
    if (handle->transientParent() == window->windowHandle()) handle->setTransientParent(nullptr);
  }
  window->hide_window();
  // Not all window managers pass on the focus.
  form_window* next = topmost(nullptr);
  if (was_active && next != nullptr) next->take_focus();
}

form_window& qt_screen::made_window(forms_layer::form& shown) {
  std::unique_ptr<form_window>& window = windows_[&shown];
  if (window == nullptr) {
    window = std::make_unique<form_window>(shown, views_);
    for (forms_layer::timer* timer : shown.timers) timer_changed(*timer);
  }
  return *window;
}

// The latest shown window whose form is visible, other than `but`.
form_window* qt_screen::topmost(const forms_layer::form* but) const {
  const auto stays = [but](const form_window* w) { return &w->form != but && w->form.Visible(); };
  const auto at = std::find_if(on_screen_.rbegin(), on_screen_.rend(), stays);
  return at == on_screen_.rend() ? nullptr : *at;
}

// Call before a box or dialog takes the focus.
void qt_screen::store_focus() {
  if (before_box_ == nullptr) {
    before_box_ = dynamic_cast<form_window*>(QApplication::activeWindow());
  }
  box_had_focus_ = true;
}

// Windows that were shown during a handler and are still visible get the focus at its end. After a
// message box the window manager may have given it to one that is hidden now, to the report, which
// owns the box while it is shown, or to none.
void qt_screen::give_focus() {
  if (std::exchange(box_had_focus_, false)) {
    form_window* to = std::exchange(before_box_, nullptr);
    if (to == nullptr || !to->form.Visible() || !to->form.Enabled()) to = topmost(nullptr);
    if (to != nullptr) to->take_focus();
  }
  for (form_window* window : on_screen_) {
    if (window->wants_focus()) window->take_focus();
  }
  if (takes_focus_ == nullptr) return;
  if (form_window* window = window_of(*std::exchange(takes_focus_, nullptr))) window->take_focus();
}

}  // namespace desktop
