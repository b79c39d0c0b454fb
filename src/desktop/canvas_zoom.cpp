// The enlarged picture of a canvas, and the other actions on its current picture.
#include <QActionGroup>
#include <QMenu>
#include <QWheelEvent>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "desktop/canvas.h"
#include "desktop/designed_look.h"
#include "desktop/picture_painter.h"
#include "forms_layer/picture_array.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

constexpr int margin = 8;  // between the enlarged picture and the edges of the canvas

// Adds a submenu of choices of which one is checked.
template <typename Value, typename Choose>
void add_choices(QMenu& menu, const QString& title,
                 const std::vector<std::pair<QString, Value>>& choices, Value chosen,
                 const Choose& choose) {
  QMenu* column = menu.addMenu(title);
  column->setFont(menu.font());
  auto* group = new QActionGroup(column);
  for (const auto& [text, value] : choices) {
    QAction* action = column->addAction(text);
    action->setCheckable(true);
    action->setChecked(value == chosen);
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, column, [choose, v = value] { choose(v); });
  }
}

}  // namespace

bool canvas::has_menu(const forms_layer::context_menu& opened) const {
  return std::any_of(pictures_.begin(), pictures_.end(), [&opened](const picture& p) {
    return p.box->array != nullptr && p.box->array->ContextMenu == &opened;
  });
}

void canvas::add_view_items(const forms_layer::context_menu& opened, QMenu& menu) {
  if (menu_target_ == nullptr || !has_menu(opened)) return;
  const std::size_t target = index_of(*menu_target_);
  menu.addSeparator();
  std::vector<std::pair<QString, int>> factors;
  for (const int factor : zoom_view::factors) {
    factors.emplace_back(QStringLiteral("&%1 times").arg(factor), factor);
  }
  factors.front().first = QStringLiteral("&1 (own size)");
  add_choices(menu, QStringLiteral("&Zoom"), factors, zoom_->factor(),
              [this, target](int factor) { set_zoom(target, factor); });
  add_choices<backdrop>(menu, QStringLiteral("&Background"),
                        {{QStringLiteral("As &designed"), backdrop::designed},
                         {QStringLiteral("&Chequered"), backdrop::chequered},
                         {QStringLiteral("&Black"), backdrop::black},
                         {QStringLiteral("&White"), backdrop::white},
                         {QStringLiteral("&Magenta"), backdrop::magenta}},
                        chosen_backdrop(), [this](backdrop chosen) {
                          set_backdrop(chosen);
                          show_all();
                          zoom_->widget()->update();
                        });
}

// The picture at the cursor, else the first that is visible; past the end if none is.
std::size_t canvas::current() const {
  if (zoom_->is_open() && zoom_->picture() != nullptr) return index_of(*zoom_->picture());
  if (cursor_is_visible()) return cursor_;
  const auto first = std::find_if(pictures_.begin(), pictures_.end(),
                                  [](const picture& p) { return !p.rect.isNull(); });
  return static_cast<std::size_t>(first - pictures_.begin());
}

void canvas::act(const forms_layer::key& pressed) {
  using forms_layer::view_action;
  if (pressed.action == view_action::end_zoom) end_zoom();
  const std::size_t index = current();
  if (index >= pictures_.size()) return;
  const forms_layer::picture_box& box = *pictures_[index].box;
  if (pressed.item != nullptr && box.array != nullptr) {
    forms_layer::user::pick(*box.array, box.Index, *pressed.item);
  } else if (pressed.action == view_action::zoom_in) {
    set_zoom(index, zoom_->stepped(1));
  } else if (pressed.action == view_action::zoom_out) {
    set_zoom(index, zoom_->stepped(-1));
  }
}

bool canvas::end_zoom() {
  const bool was_open = zoom_->is_open();
  zoom_->end();
  return was_open;
}

void canvas::set_zoom(std::size_t index, int factor) {
  factor == 1 ? zoom_->end() : enlarge(index, factor);
}

// The keys go on to the pictures.
void canvas::enlarge(std::size_t index, int factor) {
  const picture& p = pictures_[index];
  if (!zoom_->is_open()) {
    if (p.is_blank()) return;
    zoom_top_ = p.rect.top();
    for (const picture& other : pictures_) {
      if (!other.rect.isNull()) zoom_top_ = std::min(zoom_top_, other.rect.top());
    }
  }
  zoom_->set_factor(factor);
  show_in_zoom(index);
  if (p.is_blank()) return;
  cursor_ = index;
  if (!hasFocus()) setFocus(Qt::OtherFocusReason);
}

void canvas::show_in_zoom(std::size_t index) {
  const picture& p = pictures_[index];
  if (p.is_blank()) return zoom_->show_empty();
  const QRect area(margin, zoom_top_, width() - 2 * margin, height() - margin - zoom_top_);
  zoom_->show_picture(*p.box, p.rect, area);
}

// The motion and the buttons show another picture instead of the enlarged one. Between two pictures
// the frame is empty.
void canvas::follow_in_zoom() {
  const forms_layer::picture_box* shown = zoom_->picture();
  const bool is_visible = shown != nullptr && !pictures_[index_of(*shown)].rect.isNull();
  if (is_visible) return show_in_zoom(index_of(*shown));
  if (appeared_ >= pictures_.size()) return zoom_->show_empty();
  cursor_ = appeared_;
  show_in_zoom(appeared_);
}

void canvas::resizeEvent(QResizeEvent* /*event*/) {
  if (zoom_->is_open()) follow_in_zoom();
}

void canvas::wheelEvent(QWheelEvent* event) {
  const bool turned =
      (event->modifiers() & Qt::ControlModifier) != 0 && event->angleDelta().y() != 0;
  const forms_layer::picture_box* box =
      zoom_->is_open() ? zoom_->picture() : picture_at(event->position().toPoint());
  if (!turned || box == nullptr) return event->ignore();
  // A touchpad sends parts of a step.
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) set_zoom(index_of(*box), zoom_->stepped(steps));
}

}  // namespace desktop
