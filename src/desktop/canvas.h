#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "forms_layer/container.h"
#include "forms_layer/picture_box.h"

namespace desktop {

// The parent widget of the controls of a form or a frame. It paints the picture boxes among them,
// as there can be thousands; all other controls are child widgets. Where double clicks on pictures
// are answered, Tab leads to a cursor on them, which the arrow keys move; Enter and Space do what a
// double click does.
class canvas : public QWidget {
 public:
  canvas(forms_layer::container& shown, QWidget* parent);

  struct picture {
    forms_layer::picture_box* box;
    QRect rect;  // as on the screen; null while the box is hidden
    bool dirty;
  };

  // Marks a picture box dirty; true if none was dirty before.
  bool mark_dirty(forms_layer::picture_box& box);
  // Schedules the painting of the dirty ones.
  void sync_pictures();

  // From back to front.
  const std::vector<picture>& pictures() const { return pictures_; }
  std::size_t cursor() const { return cursor_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  picture& find_or_add(forms_layer::picture_box& box);
  void sync(picture& p);
  void damage(const QRect& part);
  forms_layer::picture_box* picture_at(const QPoint& position) const;
  void move_cursor(int key);
  void damage_cursor();

  std::vector<picture> pictures_;
  std::unordered_map<const forms_layer::picture_box*, std::size_t> indices_;
  std::vector<std::size_t> dirty_;
  std::size_t cursor_ = 0;                             // index in pictures_
  const forms_layer::picture_box* pressed_ = nullptr;  // by the latest press
  QRegion damage_;
};

// What a double click on a picture does.
void double_click(const forms_layer::picture_box& box);
// What the right button does, at a point of the screen. False if the picture has no menu.
bool open_menu(const forms_layer::picture_box& box, const QPoint& at);

}  // namespace desktop
