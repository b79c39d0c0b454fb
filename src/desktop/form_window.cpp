#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QThread>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/canvas.h"
#include "desktop/designed_look.h"
#include "desktop/menu_bar.h"
#include "desktop/screen_text.h"
#include "desktop/view_actions.h"
#include "files/code_page.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

Qt::WindowFlags flags_for(const forms_layer::form_design& designed) {
  if (designed.control_box) return Qt::Window;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
}

// The only file or folder of a drag, or "".
std::filesystem::path path_in(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  if (urls.size() != 1 || !urls.first().isLocalFile()) return {};
  return files::as_utf8(urls.first().toLocalFile().toStdString());
}

// The top left corner of a frame that is inside `free`, or begins there if it is larger.
QPoint inside(const QRect& frame, const QRect& free) {
  const int max_left = std::max(free.left(), free.right() + 1 - frame.width());
  const int max_top = std::max(free.top(), free.bottom() + 1 - frame.height());
  return {std::clamp(frame.left(), free.left(), max_left),
          std::clamp(frame.top(), free.top(), max_top)};
}

// The initial position of the client area of a form's window: centred on the screen or on `owner`
// (may be null), as designed, and completely on the screen. The window frame is assumed to be as
// thick as the owner's.
QPoint first_position(const QWidget& window, const forms_layer::form_design& designed,
                      const QWidget* owner) {
  const bool has_owner = owner != nullptr && owner != &window;
  const bool over_owner = has_owner && designed.opens == forms_layer::start_position::owner_centre;
  const QScreen* screen = over_owner ? owner->screen() : window.screen();
  const QRect free = screen->availableGeometry();
  const QMargins margins = has_owner ? owner->windowHandle()->frameMargins() : QMargins();
  QRect frame = QRect({}, window.size()).marginsAdded(margins);
  frame.moveCenter(over_owner ? owner->windowHandle()->frameGeometry().center() : free.center());
  return inside(frame, free) + QPoint(margins.left(), margins.top());
}

// Long enough for a busy machine. A window manager that does not map the window must not stop a
// job.
constexpr int max_wait_in_milliseconds = 500;

// Processes events until a new window is exposed, for a short time at most. Qt learns of the
// exposure only through the event loop, to which a handler does not return.
void wait_until_exposed(const QWindow& shown) {
  const QDeadlineTimer end(max_wait_in_milliseconds);
  while (!shown.isExposed() && !end.hasExpired()) {
    pump_window_system();
    if (!shown.isExposed()) QThread::usleep(500);
  }
}

}  // namespace

void pump_window_system() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

form_window::form_window(forms_layer::form& shown, views& all_views)
    : QMainWindow(nullptr, flags_for(shown.designed)), form(shown), views_(all_views) {
  setObjectName(QString::fromLatin1(form.designed.name));
  setFont(font_for({}));
  if (!form.menus.empty()) setMenuBar(new menu_bar(form, this));
  auto* client = new canvas(form, this);
  setCentralWidget(client);
  set_designed_size();
  // The layout sets the size of the client area only when the window is shown.
  client->resize(size() - QSize(0, menu_height()));
  views_.make_all(form, *client);
  set_focus_order();
  show_caption();
  add_keys();
  setAcceptDrops(static_cast<bool>(form.TakesDrop));
  for (forms_layer::timer* timer : form.timers) sync_timer(*timer);
}

int form_window::menu_height() const {
  return menuWidget() == nullptr ? 0 : menuWidget()->sizeHint().height();
}

void form_window::set_designed_size() {
  const QSize size(pixels_across(form.client_width()),
                   pixels_down(form.client_height()) + menu_height());
  if (form.designed.resizable) {
    resize(size);
  } else {
    setFixedSize(size);
  }
}

void form_window::set_focus_order() {
  QWidget* before = nullptr;
  for (const auto& [index, widget] : views_.in_tab_order(form)) {
    if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    before == nullptr ? widget->setFocus() : setTabOrder(before, widget);
    before = widget;
  }
}

void form_window::add_keys() {
  for (const forms_layer::key& key : form.keys) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromStdString(key.name)), this);
    connect(shortcut, &QShortcut::activated, this,
            [this, &key] { key.Pressed ? forms_layer::user::press(form, key) : act(*this, key); });
  }
}

// The cursor shows whether the window takes what is dragged over it.
void form_window::dragEnterEvent(QDragEnterEvent* event) {
  const std::filesystem::path dragged = path_in(*event->mimeData());
  // After a move the other program would remove its file.
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(!dragged.empty() && form.TakesDrop && form.TakesDrop(dragged));
}

// The program that the file comes from waits for the end of this event.
void form_window::dropEvent(QDropEvent* event) {
  const std::filesystem::path dropped = path_in(*event->mimeData());
  event->setDropAction(Qt::CopyAction);
  event->accept();
  QMetaObject::invokeMethod(
      this, [this, dropped] { forms_layer::user::drop(form, dropped); }, Qt::QueuedConnection);
}

void form_window::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (!isVisible()) return;
  forms_layer::user::resize(form, width() * forms_layer::application.TwipsPerPixelX,
                            (height() - menu_height()) * forms_layer::application.TwipsPerPixelY);
}

// The tool decides whether the window closes.
void form_window::closeEvent(QCloseEvent* event) {
  event->ignore();
  forms_layer::user::close(form);
}

// Qt reports a change of the theme as one of the palette that the window inherits.
void form_window::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) views_.show_all();
  QMainWindow::changeEvent(event);
}

// Keys that all controls ignored.
void form_window::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Refresh)) {
    forms_layer::user::reload(form);
  } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    open_focused_menu();
  } else if (event->key() == Qt::Key_Escape) {
    if (!close_extra(*this)) forms_layer::user::cancel(form);
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

// Shift+F10 acts as the menu key, which Qt handles.
void form_window::open_focused_menu() {
  QWidget* focused = focusWidget();
  if (focused == nullptr) return;
  const QPoint middle = focused->rect().center();
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, middle, focused->mapToGlobal(middle));
  QCoreApplication::sendEvent(focused, &asked);
}

void form_window::place(const QWidget* centre_of) {
  const bool first = !std::exchange(placed_, true);
  // The screen of its last position may have been unplugged.
  const QPoint last_centre = QRect(last_position_, size()).center();
  if (first || QGuiApplication::screenAt(last_centre) == nullptr) {
    last_position_ = first_position(*this, form.designed, centre_of);
    windowHandle()->installEventFilter(this);
  }
  if (!isMaximized()) setGeometry(QRect(last_position_, size()));
}

void form_window::show_over(QWindow* owner, const QWidget* centre_of) {
  winId();
  windowHandle()->setTransientParent(owner);
  place(centre_of);
  const bool in_handler = forms_layer::handler_running();
  // What the user types during a handler must arrive at the control that has the focus.
  setAttribute(Qt::WA_ShowWithoutActivating, in_handler);
  windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, in_handler);
  wants_focus_ = in_handler;
  show();
  if (focused_ != nullptr) focused_->setFocus();
  raise();
  if (in_handler) {
    wait_until_exposed(*windowHandle());
  } else {
    activateWindow();
  }
}

// The window manager's frame is known when the window is exposed for the first time.
bool form_window::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle() && event->type() == QEvent::Expose && windowHandle()->isExposed()) {
    watched->removeEventFilter(this);
    const QRect frame = windowHandle()->frameGeometry();
    const QPoint corner = inside(frame, screen()->availableGeometry());
    if (corner != frame.topLeft()) windowHandle()->setFramePosition(corner);
  }
  return QMainWindow::eventFilter(watched, event);
}

void form_window::hide_window() {
  last_position_ = geometry().topLeft();
  wants_focus_ = false;
  // Qt moves the focus when its widget is hidden; the window must keep it for the next time.
  focused_ = focusWidget();
  hide();
}

void form_window::take_focus() {
  wants_focus_ = false;
  windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, false);
  raise();
  activateWindow();
}

void form_window::sync_timer(forms_layer::timer& changed) {
  const auto [at, is_new] = timers_.try_emplace(&changed);
  QTimer& timer = at->second;
  if (is_new) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.callOnTimeout([&changed] { forms_layer::user::tick(changed); });
  }
  const bool runs = changed.Enabled() && changed.Interval() > 0;
  runs ? timer.start(changed.Interval()) : timer.stop();
}

void form_window::show_caption() {
  // Without a title some systems show the name of the executable.
  const QString caption = to_screen(form.Caption());
  setWindowTitle(caption.isEmpty() ? QStringLiteral(" ") : caption);
}

}  // namespace desktop
