#pragma once

#include "archive_bytes.h"
#include "data/icon_packer.h"
#include "desktop_fixture.h"
#include "handlers/start_up.h"

using ostrane::Form1;

// The main window with an archive of two texts, three pictures and a text.
struct Extras : Desktop {
  Extras() {
    std::vector<ostrane::picture> pictures;
    for (const int size : {40, 60, 80}) {
      pictures.emplace_back(size, size);
      for (int i = 0; i < size - 10; ++i) pictures.back().set(i, i, 200);
    }
    const std::vector<ostrane::archive_entry> entries = {
        {"A.TXT", "text"}, {"AB.TXT", "text"}, {"PIC.SHP", shp_file(pictures)}, {"Z.TXT", "text"}};
    ostrane::write_bytes(folder / "ostrane.dat", ostrane::archive_bytes(entries));
    ostrane::start_tool(
        "C:\\", [](auto&, const auto&) {}, folder);
    window = &activate(show(Form1));
    list = static_cast<QAbstractItemView*>(widget_of(*window, Form1.List1));
    canvas = widget_of(*window, Form1.Command5)->parentWidget();
    canvas->setObjectName("pictures");
  }
  void play(const std::function<std::string()>& seen,
            const std::vector<std::pair<const char*, std::string>>& steps) const {
    Desktop::play(*window, seen, steps);
  }
  QPoint middle_of(int row) const {
    return list->visualRect(list->model()->index(row, 0)).center();
  }
  std::string selected() const {
    std::string rows, known;
    for (const int row : Form1.List1.SelectedRows()) known += std::to_string(row);
    for (const auto& at : list->selectionModel()->selectedIndexes())
      rows += std::to_string(at.row());
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(known, rows.size() > 1 ? rows : "");
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

  QWidget* window = nullptr;
  QAbstractItemView* list = nullptr;
  QWidget* canvas = nullptr;
};
