#include "desktop/progress_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/designed_look.h"

namespace desktop {

progress_view::progress_view(forms_layer::progress_bar& shown, QWidget* parent)
    : QProgressBar(parent), control_view(shown), bar_(shown) {
  setTextVisible(false);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

int progress_view::filled_width() const {
  return static_cast<int>(bar_.filled() * std::max(0, width() - 2));
}

void progress_view::show_content() {
  const int filled = filled_width();
  if (filled == painted_) return;
  const int left = std::min(filled, painted_);
  const int right = std::max(filled, painted_);
  painted_ = filled;
  // The bar's own way is to paint all of itself, at once.
  setAttribute(Qt::WA_UpdatesDisabled);
  setRange(0, std::max(1, width() - 2));
  setValue(filled);
  setAttribute(Qt::WA_UpdatesDisabled, false);
  update(1 + left, 1, right - left, height() - 2);
}

void progress_view::resizeEvent(QResizeEvent* /*event*/) { show_content(); }

void progress_view::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect inner = rect().adjusted(1, 1, -1, -1);
  const QRect dirty = event->rect();
  if (!inner.contains(dirty)) {
    painter.fillRect(dirty, line_colour(palette().color(QPalette::Window),
                                        palette().color(QPalette::WindowText)));
  }
  const QRect filled(inner.topLeft(), QSize(painted_, inner.height()));
  const QRect rest = inner.adjusted(painted_, 0, 0, 0);
  painter.fillRect(filled & dirty, palette().color(QPalette::Highlight));
  painter.fillRect(rest & dirty, palette().color(QPalette::Base));
}

}  // namespace desktop
