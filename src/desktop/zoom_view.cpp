#include "desktop/zoom_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <iterator>

#include "desktop/picture_painter.h"

namespace desktop {

namespace {

class enlarged : public QWidget {
 public:
  explicit enlarged(const zoom_view& view) : view_(view) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    view_.paint(painter);
  }

 private:
  const zoom_view& view_;
};

}  // namespace

zoom_view::zoom_view(QWidget& on_canvas) : QScrollArea(&on_canvas) {
  setObjectName(QStringLiteral("zoom"));
  setAccessibleName(QStringLiteral("Enlarged picture"));
  setFrameShape(Box);
  setFocusPolicy(Qt::NoFocus);
  setWidget(new enlarged(*this));
  hide();
}

void zoom_view::show_picture(const forms_layer::picture_box& shown, const QRect& around,
                             const QRect& area) {
  picture_ = &shown;
  const QSize size = QSize(shown.columns(), shown.rows()) * factor_;
  const int frame = 2 * frameWidth();
  QSize outer = size + QSize(frame, frame);
  const int bar = verticalScrollBar()->sizeHint().width();
  if (outer.height() > area.height()) outer.rwidth() += bar;
  if (outer.width() > area.width()) outer.rheight() += bar;
  QRect place({}, outer.boundedTo(area.size()));
  place.moveCenter(around.center());
  place.moveLeft(std::clamp(place.left(), area.left(), area.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), area.top(), area.bottom() + 1 - place.height()));
  widget()->resize(size);
  setGeometry(place);
  widget()->update();
  show();
}

void zoom_view::show_empty() {
  picture_ = nullptr;
  widget()->update();
}

void zoom_view::end() {
  factor_ = 1;
  hide();
}

int zoom_view::stepped(int steps) const {
  const auto at = std::find(std::begin(factors), std::end(factors), factor_) - std::begin(factors);
  return factors[std::clamp<std::ptrdiff_t>(at + steps, 0, std::ssize(factors) - 1)];
}

void zoom_view::paint(QPainter& painter) const {
  if (picture_ == nullptr) return;
  painter.scale(factor_, factor_);
  // The border of the picture is outside.
  const QRect rect(-1, -1, picture_->columns() + 2, picture_->rows() + 2);
  paint_picture(painter, *picture_, rect, QRect(0, 0, picture_->columns(), picture_->rows()));
}

// With Ctrl it changes the factor, which the canvas does.
void zoom_view::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) != 0) return event->ignore();
  QScrollArea::wheelEvent(event);
}

}  // namespace desktop
