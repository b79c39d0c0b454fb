#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "platform/container.h"
#include "platform/picture_box.h"

namespace desktop {

// The ground on which the controls of a form or a frame stand. It paints the picture boxes among
// them itself, as there can be thousands; all other controls are widgets on it.
class surface : public QWidget {
 public:
  surface(platform::container& shown, QWidget* parent);

  // Keeps in mind that a picture box on it was written; true if nothing was kept before.
  bool note(platform::picture_box& box);
  // Asks for the painting of what was noted.
  void catch_up_pictures();

 protected:
  virtual platform::colour ground() const { return platform::system_button_face; }
  virtual void paint_over_ground(QPainter& /*painter*/, const QRect& /*dirty*/) {}

  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct picture {
    platform::picture_box* box;
    QRect place;  // as on the screen; null while the box is hidden
    bool noted;
  };

  picture& find_or_add(platform::picture_box& box);
  void catch_up(picture& p);
  void damage(const QRect& part);
  const picture* picture_at(const QPoint& position) const;

  std::vector<picture> pictures_;  // from back to front
  std::unordered_map<const platform::picture_box*, std::size_t> places_;
  std::vector<std::size_t> noted_;
  QRegion damage_;
};

}  // namespace desktop
