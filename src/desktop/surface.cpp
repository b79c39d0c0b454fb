#include "desktop/surface.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/cursor_step.h"
#include "desktop/designed_look.h"
#include "desktop/keys.h"
#include "desktop/picture_painter.h"
#include "desktop/screen_text.h"
#include "forms_layer/picture_array.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

// A region of many rectangles costs more than the painting that it saves.
constexpr int most_damaged_parts = 40;

void double_click(const forms_layer::picture_box& box) {
  if (box.array != nullptr) forms_layer::user::double_click(*box.array, box.Index);
}

// The cursor goes round a picture: over its border and a pixel outside.
QRect with_cursor(const QRect& place) {
  return place.isNull() ? place : place.adjusted(-1, -1, 1, 1);
}

void paint_cursor(QPainter& painter, const QRect& place, const QColor& colour) {
  if (place.isNull()) return;
  painter.setPen(colour);
  painter.drawRect(place.adjusted(0, 0, -1, -1));
  painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

}  // namespace

surface::surface(forms_layer::container& shown, QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  for (forms_layer::control* control : shown.controls()) {
    if (control->kind != forms_layer::control_kind::picture_box) continue;
    note(static_cast<forms_layer::picture_box&>(*control));
  }
  catch_up_pictures();
  const auto answers = [](const picture& p) {
    return p.box->array != nullptr && p.box->array->DblClick;
  };
  if (std::any_of(pictures_.begin(), pictures_.end(), answers)) setFocusPolicy(Qt::TabFocus);
}

bool surface::note(forms_layer::picture_box& box) {
  picture& noted = find_or_add(box);
  if (std::exchange(noted.noted, true)) return false;
  noted_.push_back(static_cast<std::size_t>(&noted - pictures_.data()));
  return noted_.size() == 1;
}

surface::picture& surface::find_or_add(forms_layer::picture_box& box) {
  const auto [at, is_new] = places_.try_emplace(&box, pictures_.size());
  if (is_new) pictures_.push_back({&box, {}, false});
  return pictures_[at->second];
}

void surface::catch_up_pictures() {
  for (const std::size_t index : std::exchange(noted_, {})) catch_up(pictures_[index]);
  if (!damage_.isEmpty()) update(std::exchange(damage_, {}));
}

void surface::catch_up(picture& p) {
  p.noted = false;
  const QRect place = p.box->Visible() ? place_of(*p.box) : QRect();
  const forms_layer::pixel_area painted = p.box->consume_damage();
  if (place != p.place) {
    const bool under_cursor = &p == &pictures_[cursor_] && hasFocus();
    if (under_cursor) damage_cursor();
    damage(std::exchange(p.place, place));
    damage(place);
    if (under_cursor) damage_cursor();
  } else if (!place.isNull() && !painted.empty()) {
    const int border = forms_layer::picture_box::border;
    damage(QRect(place.left() + border + painted.left, place.top() + border + painted.top,
                 painted.right - painted.left, painted.bottom - painted.top));
  }
}

void surface::damage(const QRect& part) {
  if (damage_.rectCount() > most_damaged_parts) damage_ = damage_.boundingRect();
  damage_ += part;
}

void surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), on_screen(ground()));
  paint_over_ground(painter, event->rect());
  for (const picture& p : pictures_) {
    if (!event->rect().intersects(p.place) || !event->region().intersects(p.place)) continue;
    paint_picture(painter, *p.box, p.place, event->rect() & p.place);
  }
  if (hasFocus() && !pictures_.empty()) {
    paint_cursor(painter, pictures_[cursor_].place, palette().color(QPalette::Highlight));
  }
}

const surface::picture* surface::picture_at(const QPoint& position) const {
  const auto found = std::find_if(pictures_.rbegin(), pictures_.rend(),
                                  [&](const picture& p) { return p.place.contains(position); });
  return found == pictures_.rend() ? nullptr : &*found;
}

bool surface::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const picture* pointed_at = picture_at(help->pos());
  if (pointed_at == nullptr) {
    QToolTip::showText(help->globalPos(), toolTip(), this);
  } else {
    const QString tip = as_tool_tip(pointed_at->box->ToolTipText());
    QToolTip::showText(help->globalPos(), tip, this, pointed_at->place);
  }
  return true;
}

void surface::mouseDoubleClickEvent(QMouseEvent* event) {
  const picture* clicked = picture_at(event->position().toPoint());
  if (clicked == nullptr || event->button() != Qt::LeftButton) return;
  double_click(*clicked->box);
}

void surface::damage_cursor() { damage(with_cursor(pictures_[cursor_].place)); }

void surface::put_cursor(int key) {
  std::vector<QRect> places;
  places.reserve(pictures_.size());
  for (const picture& p : pictures_) places.push_back(p.place);
  damage_cursor();
  // A cursor whose picture is gone begins anew.
  cursor_ = cursor_step(places, cursor_, places[cursor_].isNull() ? Qt::Key_Home : key);
  damage_cursor();
  update(std::exchange(damage_, {}));
}

// Keys that a control on the surface had no use for come here too.
void surface::keyPressEvent(QKeyEvent* event) {
  const bool confirms = is_enter(*event) || event->key() == Qt::Key_Space;
  if (!hasFocus() || (!confirms && !is_cursor_key(event->key()))) {
    QWidget::keyPressEvent(event);
  } else if (!confirms || pictures_[cursor_].place.isNull()) {
    put_cursor(event->key());
  } else if (!event->isAutoRepeat()) {
    double_click(*pictures_[cursor_].box);
  }
}

// Without a picture on show Tab leads past the surface.
void surface::focusInEvent(QFocusEvent* event) {
  const bool back = event->reason() == Qt::BacktabFocusReason;
  const bool by_tab = back || event->reason() == Qt::TabFocusReason;
  if (pictures_[cursor_].place.isNull()) put_cursor(Qt::Key_Home);
  if (by_tab && pictures_[cursor_].place.isNull()) {
    focusNextPrevChild(!back);
  } else {
    update(with_cursor(pictures_[cursor_].place));
  }
}

void surface::focusOutEvent(QFocusEvent* /*event*/) {
  update(with_cursor(pictures_[cursor_].place));
}

}  // namespace desktop
