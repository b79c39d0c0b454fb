#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "desktop/zoom_view.h"
#include "forms_layer/container.h"
#include "forms_layer/key.h"
#include "forms_layer/menu.h"
#include "forms_layer/picture_box.h"

namespace desktop {

// The parent widget of the controls of a form or a frame. It paints picture boxes itself, as there
// can be thousands; other controls are child widgets. If double clicks on pictures have a handler,
// Tab leads to a cursor on them: arrow keys move it, Enter and Space act as a double click. One
// picture can be enlarged over the others.
class canvas : public QWidget {
 public:
  canvas(forms_layer::container& shown, QWidget* parent);

  struct picture {
    forms_layer::picture_box* box;
    QRect rect;  // in the canvas; null while the box is hidden
    bool dirty;

    // A swatch of a palette and a blank icon have no pixels.
    bool is_blank() const { return box->pixels() == nullptr || rect.isNull(); }
  };

  // Marks a picture box dirty, which joins the pictures if it is new.
  void mark_dirty(forms_layer::picture_box& box);
  bool is_dirty() const { return !dirty_.empty(); }
  // Schedules repaints of the dirty boxes.
  void sync_pictures();
  void show_all();

  // From back to front.
  const std::vector<picture>& pictures() const { return pictures_; }
  std::size_t cursor() const { return cursor_; }
  // Opens the context menu at a point of the screen. Returns false if the picture has no menu.
  bool open_menu(const forms_layer::picture_box& box, const QPoint& at);
  // Adds the actions of the screen to a menu of its pictures.
  void add_view_items(const forms_layer::context_menu& opened, QMenu& menu);
  // Does what the key says for the current picture, if that is visible and the key is about
  // pictures.
  void act(const forms_layer::key& pressed);
  // Returns false if no picture was enlarged.
  bool end_zoom();

  bool cursor_is_visible() const { return !pictures_.empty() && !pictures_[cursor_].rect.isNull(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void sync(picture& p);
  void damage(const QRect& part);
  bool has_menu(const forms_layer::context_menu& opened) const;
  std::size_t index_of(const forms_layer::picture_box& box) const { return indices_.at(&box); }
  std::size_t current() const;
  // The factor of the enlarged picture; 1 is its own size, without a frame.
  void set_zoom(std::size_t index, int factor);
  void enlarge(std::size_t index, int factor);
  void show_in_zoom(std::size_t index);
  void follow_in_zoom();
  forms_layer::picture_box* picture_at(const QPoint& position) const;
  void move_cursor(int key);
  void damage_cursor();
  void announce_cursor();

  std::vector<picture> pictures_;
  std::unordered_map<const forms_layer::picture_box*, std::size_t> indices_;
  std::vector<std::size_t> dirty_;
  std::size_t cursor_ = 0;                             // index in pictures_
  const forms_layer::picture_box* pressed_ = nullptr;  // by the latest press
  QRegion damage_;
  const forms_layer::picture_box* menu_target_ = nullptr;
  zoom_view* zoom_;
  int zoom_top_ = 0;          // that of the pictures when one was enlarged
  int wheel_ = 0;             // turned with Ctrl, less than a step
  std::size_t appeared_ = 0;  // the first picture that this sync showed; past the end for none
};

// Acts as a double click on a picture.
void double_click(const forms_layer::picture_box& box);

}  // namespace desktop
