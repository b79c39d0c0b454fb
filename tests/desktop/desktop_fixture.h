#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QTest>
#include <QWidget>

#include "desktop/control_view.h"
#include "desktop/qt_screen.h"
#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"

// A form with each kind of control, on a drive with the folder "sub" and the file "a.txt".
struct all_kinds : forms_layer::form {
  all_kinds()
      : form({.name = "all_kinds",
              .caption = "All kinds",
              .client_width = 6000,
              .client_height = 6000,
              .control_box = true,
              .resizable = true}) {}

  forms_layer::list_box list{*this, {.name = "list", .at = {0, 1800, 1500, 600}}};
  forms_layer::label label{*this,
                           {.name = "label",
                            .at = {0, 0, 1500, 300},
                            .text = "Label",
                            .back_color = ostrane::pale_cyan}};
  forms_layer::button button{*this, {.name = "button", .at = {1600, 0, 1000, 300}, .cancel = true}};
  forms_layer::text_box field{*this, {.name = "field", .at = {0, 400, 1500, 300}, .max_length = 2}};
  forms_layer::text_box page{*this,
                             {.name = "page", .at = {0, 800, 1500, 900}, .multi_line = true}};
  forms_layer::progress_bar bar{*this, {.name = "bar", .at = {0, 2800, 1500, 300}}};
  forms_layer::drive_list drives{*this, {.name = "drives", .at = {0, 3200, 1500, 315}}};
  forms_layer::dir_list folders{*this, {.name = "folders", .at = {0, 3600, 1500, 900}}};
  forms_layer::file_list files{*this, {.name = "files", .at = {1600, 3600, 1300, 900}}};
  forms_layer::frame frame{*this, {.name = "frame", .at = {3000, 0, 2900, 2900}, .text = "Frame"}};
  forms_layer::button inner{frame,
                            {.name = "inner", .at = {1500, 1500, 900, 300}, .text = "Inner"}};
  forms_layer::picture_array pictures{
      frame, {.name = "pictures", .at = {240, 840, 100, 100}, .visible = false}};
  forms_layer::menu menu{*this, "menu", "Menu"};
  forms_layer::menu_item first{menu, "first", "First"};
  forms_layer::menu_item line{menu, "line", ""};
  forms_layer::menu_item second{menu, "second", "Second"};
  forms_layer::context_menu context{*this, "context"};
  forms_layer::menu_item pick{context, "pick", "Pick"};
  forms_layer::timer timer{*this, "timer", 400, false};
};

struct Desktop : testing::Test {
  Desktop();
  ~Desktop() override;

  // Writes as a handler does, and returns when all of it is on the screen.
  void write(const std::function<void()>& handler);
  QWidget& show(forms_layer::form& shown);
  QWidget& show_active();
  forms_layer::picture_box& picture() { return form.pictures(1); }

  std::filesystem::path folder;  // drive C:
  desktop::qt_screen screen;
  all_kinds form;
};

// Adds up what a widget is asked to paint.
class paint_watch : public QObject {
 public:
  explicit paint_watch(QWidget* watched) { watched->installEventFilter(this); }
  bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion painted;
};

QWidget* widget_of(const QWidget& window, const forms_layer::control& shown);

inline QImage picture_of(QWidget& shown) {
  return shown.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
