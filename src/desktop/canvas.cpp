#include "desktop/canvas.h"

#include <qdrawutil.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <new>
#include <utility>

#include "desktop/designed_look.h"
#include "desktop/dialogs.h"
#include "desktop/keyboard.h"
#include "desktop/picture_painter.h"
#include "desktop/screen_text.h"
#include "forms_layer/picture_array.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

// With more rectangles a region costs more time than it saves.
constexpr int max_damaged_parts = 40;

// The cursor is a frame on the border of a picture and one pixel outside.
QRect with_cursor(const QRect& rect) { return rect.isNull() ? rect : rect.adjusted(-1, -1, 1, 1); }

}  // namespace

void double_click(const forms_layer::picture_box& box) {
  if (box.array != nullptr) forms_layer::user::double_click(*box.array, box.Index);
}

bool canvas::open_menu(const forms_layer::picture_box& box, const QPoint& at) {
  if (box.array == nullptr || box.array->ContextMenu == nullptr) return false;
  menu_target_ = &box;
  forms_layer::user::open_menu(*box.array, box.Index, as_screen_point(at));
  return true;
}

// The enlarged picture is made first, so that it is below the controls.
canvas::canvas(forms_layer::container& shown, QWidget* parent)
    : QWidget(parent), zoom_(new zoom_view(*this)) {
  for (forms_layer::control* control : shown.controls()) {
    if (control->kind != forms_layer::control_kind::picture_box) continue;
    mark_dirty(static_cast<forms_layer::picture_box&>(*control));
  }
  sync_pictures();
  const auto answers = [](const picture& p) {
    return p.box->array != nullptr && p.box->array->DblClick;
  };
  if (std::any_of(pictures_.begin(), pictures_.end(), answers)) setFocusPolicy(Qt::TabFocus);
}

void canvas::mark_dirty(forms_layer::picture_box& box) {
  const auto [at, is_new] = indices_.try_emplace(&box, pictures_.size());
  try {
    if (is_new) pictures_.push_back({&box, {}, false});
  } catch (const std::bad_alloc&) {
    indices_.erase(at);
    throw;
  }
  if (!std::exchange(pictures_[at->second].dirty, true)) dirty_.push_back(at->second);
}

void canvas::sync_pictures() {
  appeared_ = pictures_.size();
  for (const std::size_t index : std::exchange(dirty_, {})) sync(pictures_[index]);
  if (zoom_->is_open()) follow_in_zoom();
  if (!damage_.isEmpty()) update(std::exchange(damage_, {}));
}

void canvas::show_all() {
  dirty_.clear();
  appeared_ = pictures_.size();
  for (picture& p : pictures_) sync(p);
  damage_ = {};
  if (zoom_->is_open()) follow_in_zoom();
  update();
}

void canvas::sync(picture& p) {
  p.dirty = false;
  const QRect rect = p.box->Visible() ? rect_of(*p.box) : QRect();
  const forms_layer::pixel_area painted = p.box->consume_damage();
  if (p.rect.isNull() && !rect.isNull()) {
    appeared_ = std::min(appeared_, static_cast<std::size_t>(&p - pictures_.data()));
  }
  if (rect != p.rect) {
    const bool has_cursor = &p == &pictures_[cursor_] && hasFocus();
    for (const QRect& seen : {std::exchange(p.rect, rect), rect}) {
      damage(has_cursor ? with_cursor(seen) : seen);
    }
  } else if (!rect.isNull() && !painted.empty()) {
    const int border = forms_layer::picture_box::border;
    damage(QRect(rect.left() + border + painted.left, rect.top() + border + painted.top,
                 painted.right - painted.left, painted.bottom - painted.top));
  }
}

void canvas::damage(const QRect& part) {
  if (damage_.rectCount() > max_damaged_parts) damage_ = damage_.boundingRect();
  damage_ += part;
}

void canvas::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  for (const picture& p : pictures_) {
    if (!event->rect().intersects(p.rect) || !event->region().intersects(p.rect)) continue;
    paint_picture(painter, *p.box, p.rect, event->rect() & p.rect);
  }
  if (hasFocus() && cursor_is_visible() && !zoom_->is_open()) {
    qDrawPlainRect(&painter, with_cursor(pictures_[cursor_].rect),
                   palette().color(QPalette::Highlight), 2);
  }
}

forms_layer::picture_box* canvas::picture_at(const QPoint& position) const {
  if (zoom_->is_open() && zoom_->picture() != nullptr && childAt(position) != nullptr &&
      zoom_->isAncestorOf(childAt(position))) {
    return pictures_[index_of(*zoom_->picture())].box;
  }
  if (childAt(position) != nullptr) return nullptr;  // a control covers the pictures
  const auto found = std::find_if(pictures_.rbegin(), pictures_.rend(),
                                  [&](const picture& p) { return p.rect.contains(position); });
  return found == pictures_.rend() ? nullptr : found->box;
}

bool canvas::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const forms_layer::picture_box* pointed_at = picture_at(help->pos());
  if (pointed_at == nullptr) return QWidget::event(event);
  QToolTip::showText(help->globalPos(), as_tool_tip(pointed_at->ToolTipText()), this,
                     rect_of(*pointed_at));
  return true;
}

void canvas::mousePressEvent(QMouseEvent* event) {
  pressed_ = picture_at(event->position().toPoint());
}

void canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  const forms_layer::picture_box* clicked = picture_at(event->position().toPoint());
  if (clicked != std::exchange(pressed_, clicked)) return;
  if (clicked != nullptr && event->button() == Qt::LeftButton) double_click(*clicked);
}

// Controls on the canvas pass on events that they ignore.
void canvas::contextMenuEvent(QContextMenuEvent* event) {
  bool opened = false;
  if (event->reason() != QContextMenuEvent::Keyboard) {
    const forms_layer::picture_box* box = picture_at(event->pos());
    opened = box != nullptr && open_menu(*box, event->globalPos());
  } else if (hasFocus() && !pictures_[cursor_].rect.isNull()) {
    const picture& p = pictures_[cursor_];
    opened = open_menu(*p.box, mapToGlobal(p.rect.center()));
  }
  event->setAccepted(opened);
}

void canvas::damage_cursor() { damage(with_cursor(pictures_[cursor_].rect)); }

void canvas::move_cursor(int key) {
  std::vector<QRect> rects;
  rects.reserve(pictures_.size());
  for (const picture& p : pictures_) rects.push_back(p.rect);
  damage_cursor();
  // If its picture is hidden, the cursor returns to the first one.
  cursor_ = cursor_step(rects, cursor_, rects[cursor_].isNull() ? Qt::Key_Home : key);
  damage_cursor();
  update(std::exchange(damage_, {}));
  if (zoom_->is_open()) enlarge(cursor_, zoom_->factor());
  announce_cursor();
}

// To screen readers.
void canvas::announce_cursor() {
  if (!QAccessible::isActive() || !hasFocus() || !cursor_is_visible()) return;
  QAccessibleEvent moved(QAccessible::queryAccessibleInterface(this)->focusChild(),
                         QAccessible::Focus);
  QAccessible::updateAccessibility(&moved);
}

// Controls on the canvas pass on keys that they ignore.
void canvas::keyPressEvent(QKeyEvent* event) {
  const bool confirms = is_enter(*event) || event->key() == Qt::Key_Space;
  if (!hasFocus() || (!confirms && !is_cursor_key(event->key()))) {
    QWidget::keyPressEvent(event);
  } else if (!confirms || pictures_[cursor_].rect.isNull()) {
    move_cursor(event->key());
  } else if (!event->isAutoRepeat()) {
    double_click(*pictures_[cursor_].box);
  }
}

// Without a picture that can be seen Tab skips the canvas.
void canvas::focusInEvent(QFocusEvent* event) {
  const bool back = event->reason() == Qt::BacktabFocusReason;
  const bool by_tab = back || event->reason() == Qt::TabFocusReason;
  if (pictures_[cursor_].rect.isNull()) move_cursor(Qt::Key_Home);
  const QRect rect = pictures_[cursor_].rect;
  if (by_tab && (rect.isNull() || childAt(rect.center()) != nullptr)) {
    focusNextPrevChild(!back);
  } else {
    update(with_cursor(rect));
  }
}

void canvas::focusOutEvent(QFocusEvent* /*event*/) { update(with_cursor(pictures_[cursor_].rect)); }

}  // namespace desktop
