#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "forms_layer/container.h"
#include "forms_layer/picture_box.h"

namespace desktop {

// The ground on which the controls of a form or a frame stand. It paints the picture boxes among
// them itself, as there can be thousands; all other controls are widgets on it. Where double clicks
// on pictures are answered, Tab leads to a cursor on them, which the arrow keys move; Enter and
// Space do what a double click does.
class surface : public QWidget {
 public:
  surface(forms_layer::container& shown, QWidget* parent);

  // Keeps in mind that a picture box on it was written; true if nothing was kept before.
  bool note(forms_layer::picture_box& box);
  // Asks for the painting of what was noted.
  void catch_up_pictures();

 protected:
  virtual forms_layer::colour ground() const { return forms_layer::system_button_face; }
  virtual void paint_over_ground(QPainter& /*painter*/, const QRect& /*dirty*/) {}

  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct picture {
    forms_layer::picture_box* box;
    QRect place;  // as on the screen; null while the box is hidden
    bool noted;
  };

  picture& find_or_add(forms_layer::picture_box& box);
  void catch_up(picture& p);
  void damage(const QRect& part);
  const picture* picture_at(const QPoint& position) const;
  void put_cursor(int key);
  void damage_cursor();

  std::vector<picture> pictures_;  // from back to front
  std::unordered_map<const forms_layer::picture_box*, std::size_t> places_;
  std::vector<std::size_t> noted_;
  std::size_t cursor_ = 0;  // index in pictures_
  QRegion damage_;
};

}  // namespace desktop
