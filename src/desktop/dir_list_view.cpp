#include "desktop/dir_list_view.h"

#include <QPainter>
#include <algorithm>

#include "forms_layer/user.h"

namespace desktop {

namespace {

constexpr int icon_width = 15;
constexpr int icon_height = 11;
constexpr int space_behind_icon = 4;
constexpr int pixels_per_depth = 8;

void paint_folder(QPainter& painter, bool open) {
  const QColor line(0x60, 0x50, 0x10);
  const QColor paper(0xFF, 0xE0, 0x80);
  painter.setPen(line);
  painter.setBrush(open ? QColor(0xE8, 0xB8, 0x40) : paper);
  painter.drawPolygon(QPolygon({{0, 10}, {0, 1}, {1, 0}, {5, 0}, {6, 1}, {12, 1}, {12, 10}}));
  if (!open) {
    painter.drawLine(0, 3, 12, 3);
    return;
  }
  painter.setBrush(paper);
  painter.drawPolygon(QPolygon({{0, 10}, {3, 4}, {14, 4}, {12, 10}}));
}

}  // namespace

int dir_list_view::indent(int row) const {
  return at(row).depth * pixels_per_depth + icon_width + space_behind_icon;
}

void dir_list_view::paint_mark(QPainter& painter, const QRect& where, int row) const {
  painter.save();
  painter.translate(QPoint(where.left() + at(row).depth * pixels_per_depth,
                           where.top() + (where.height() - icon_height) / 2));
  paint_folder(painter, at(row).open);
  painter.restore();
}

int dir_list_view::row_height() const { return std::max(rows_view::row_height(), icon_height + 3); }

void dir_list_view::show_content() {
  highlighted_ = folders_.open_row();
  rows_view::show_content();
}

void dir_list_view::open(int row) { forms_layer::user::open_folder(folders_, row); }

}  // namespace desktop
