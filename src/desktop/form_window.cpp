#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/designed_look.h"
#include "desktop/exposure.h"
#include "desktop/screen_text.h"
#include "desktop/window_place.h"
#include "forms_layer/application.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

Qt::WindowFlags flags_for(const forms_layer::form_design& designed) {
  if (designed.control_box) return Qt::Window;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
}

}  // namespace

form_window::form_window(forms_layer::form& shown, views& all_views)
    : QWidget(nullptr, flags_for(shown.designed)), form(shown), views_(all_views) {
  setFont(font_for({}));
  if (!form.menus.empty()) menus_ = new menu_bar(form, this);
  client_ = new surface(form, this);
  set_size_as_designed();
  lay_out();
  views_.make_all(form, *client_);
  set_tab_order();
  show_caption();
}

int form_window::menu_height() const { return menus_ == nullptr ? 0 : menus_->sizeHint().height(); }

void form_window::set_size_as_designed() {
  const QSize size(pixels_across(form.client_width()),
                   pixels_down(form.client_height()) + menu_height());
  if (form.designed.resizable) {
    resize(size);
  } else {
    setFixedSize(size);
  }
}

void form_window::set_tab_order() {
  QWidget* before = nullptr;
  for (QWidget* widget : views_.in_tab_order(form)) {
    if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (before == nullptr) widget->setFocus();
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

void form_window::lay_out() {
  const int top = menu_height();
  if (menus_ != nullptr) menus_->setGeometry(0, 0, width(), top);
  client_->setGeometry(0, top, width(), std::max(0, height() - top));
}

void form_window::resizeEvent(QResizeEvent* /*event*/) {
  lay_out();
  if (!isVisible()) return;
  forms_layer::user::resize(form, client_->width() * forms_layer::application.TwipsPerPixelX,
                            client_->height() * forms_layer::application.TwipsPerPixelY);
}

// Whether the window goes is for the tool to say.
void form_window::closeEvent(QCloseEvent* event) {
  event->ignore();
  forms_layer::user::close(form);
}

void form_window::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) views_.show_all();
  QWidget::changeEvent(event);
}

// Keys that no control had use for.
void form_window::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Refresh)) {
    forms_layer::user::reload(form);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void form_window::come_up(QWindow* owner, const QWidget* centre_of, bool active) {
  winId();
  windowHandle()->setTransientParent(owner);
  if (!std::exchange(placed_, true)) {
    move(first_place(*this, form.designed, centre_of));
  } else if (!isMaximized()) {
    move(last_place_);
  }
  setAttribute(Qt::WA_ShowWithoutActivating, !active);
  awaits_exposure_ = true;
  wants_focus_ = !active;
  show();
  if (focused_ != nullptr) focused_->setFocus();
  raise();
  if (active) activateWindow();
}

void form_window::go_away() {
  last_place_ = pos();
  wants_focus_ = false;
  // Qt hands the focus on when its widget goes; the window is to come back as it was.
  focused_ = focusWidget();
  hide();
}

void form_window::take_focus() {
  wants_focus_ = false;
  raise();
  activateWindow();
}

void form_window::show_caption() {
  // Without any title some systems show the name of the program's file.
  const QString caption = to_screen(form.Caption());
  setWindowTitle(caption.isEmpty() ? QStringLiteral(" ") : caption);
}

void form_window::show_menu_item(const forms_layer::menu_item& item) {
  if (menus_ != nullptr) menus_->show_item(item);
}

void form_window::paint_now() {
  if (!isVisible()) return;
  if (std::exchange(awaits_exposure_, false)) wait_until_exposed(*windowHandle());
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(this, &update);
}

}  // namespace desktop
