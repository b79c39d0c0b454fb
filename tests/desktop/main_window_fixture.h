#pragma once

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QDebug>

#include "archive_bytes.h"
#include "data/icon_packer.h"
#include "desktop_fixture.h"
#include "handlers/start_up.h"

using ostrane::Form1;

// The main window with an archive of two texts, three pictures and a text.
struct Extras : Desktop {
  Extras() {
    std::vector<ostrane::shp_icon> icons;
    for (const int size : {40, 60, 80}) {
      ostrane::picture drawn(size, size);
      for (int i = 0; i < size - 10; ++i) drawn.set(i, i, 200);
      icons.push_back(ostrane::make_icon(drawn));
    }
    ostrane::write_bytes(folder / "ostrane.dat",
                         ostrane::archive_bytes({{"A.TXT", "text"},
                                                 {"AB.TXT", "text"},
                                                 {"PIC.SHP", shp_file(icons)},
                                                 {"Z.TXT", "text"}}));
    ostrane::start_tool(
        "C:\\", [](auto&, const auto&) {}, folder);
    window = &activate(show(Form1));
    list = static_cast<QAbstractItemView*>(widget_of(*window, Form1.List1));
    canvas = widget_of(*window, Form1.Command5)->parentWidget();
  }
  void key(int pressed, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(pressed), modifiers);
    handle_events();
  }
  void press_row(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, middle_of(row));
    handle_events();
  }
  QPoint middle_of(int row) const {
    return list->visualRect(list->model()->index(row, 0)).center();
  }
  std::string selected() const {
    std::string rows;
    for (int row = 0; row < Form1.List1.ListCount(); ++row) {
      if (list->selectionModel()->isRowSelected(row)) rows += std::to_string(row);
    }
    return rows + " shows " + std::to_string(Form1.List1.ListIndex());
  }
  // The enlarged picture: its size and place, or "" if it is closed.
  std::string zoomed() const {
    const auto* area = canvas->findChild<QAbstractScrollArea*>("zoom");
    if (!area->isVisible()) return "";
    QString text;
    QDebug(&text).nospace() << area->viewport()->findChild<QWidget*>()->width() << area->geometry();
    return text.remove("QRect").toStdString();
  }
  // The control that has the focus.
  std::string focused() const {
    const QWidget* at = window->focusWidget();
    return at == canvas ? "pictures" : at->objectName().toStdString();
  }
  void right_press(QWidget* on, const QPoint& at) const {
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, on->mapTo(window, at));
    handle_events();
  }

  QWidget* window = nullptr;
  QAbstractItemView* list = nullptr;
  QWidget* canvas = nullptr;
};
