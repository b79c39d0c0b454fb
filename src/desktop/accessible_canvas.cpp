#include "desktop/accessible_canvas.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <map>

#include "desktop/canvas.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

class accessible_picture : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  accessible_picture(canvas& on, std::size_t number) : index(number), canvas_(on) {}

  const std::size_t index;  // in the pictures of the canvas

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&canvas_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Graphic; }
  QString text(QAccessible::Text kind) const override {
    const forms_layer::picture_box& box = *picture().box;
    if (kind == QAccessible::Description) return to_screen(box.ToolTipText());
    if (kind != QAccessible::Name) return {};
    return QStringLiteral("Picture %1, %2 by %3").arg(box.Index).arg(box.columns()).arg(box.rows());
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    return {canvas_.mapToGlobal(picture().rect.topLeft()), picture().rect.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State now;
    now.focusable = true;
    now.invisible = picture().rect.isNull();
    now.focused = canvas_.hasFocus() && !now.invisible && canvas_.cursor() == index;
    return now;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QStringList actionNames() const override {
    if (picture().box->array == nullptr) return {};
    return {pressAction(), showMenuAction()};
  }
  void doAction(const QString& name) override {
    if (name == pressAction()) double_click(*picture().box);
    if (name == showMenuAction()) canvas_.open_menu(*picture().box, rect().center());
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  const canvas::picture& picture() const { return canvas_.pictures()[index]; }

  canvas& canvas_;
};

class accessible_canvas : public QAccessibleWidget {
 public:
  explicit accessible_canvas(canvas& shown) : QAccessibleWidget(&shown), canvas_(shown) {}
  accessible_canvas(const accessible_canvas&) = delete;
  accessible_canvas& operator=(const accessible_canvas&) = delete;
  ~accessible_canvas() override {
    for (const auto& [index, id] : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override {
    return QAccessibleWidget::childCount() + static_cast<int>(canvas_.pictures().size());
  }
  QAccessibleInterface* child(int index) const override {
    const int widgets = QAccessibleWidget::childCount();
    return index < widgets ? QAccessibleWidget::child(index)
                           : picture(static_cast<std::size_t>(index - widgets));
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    const auto* picture = dynamic_cast<const accessible_picture*>(wanted);
    return picture == nullptr ? QAccessibleWidget::indexOfChild(wanted)
                              : QAccessibleWidget::childCount() + static_cast<int>(picture->index);
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint at = canvas_.mapFromGlobal(QPoint(x, y));
    if (canvas_.childAt(at) != nullptr) return QAccessibleWidget::childAt(x, y);
    const auto& pictures = canvas_.pictures();
    // The front one is the last.
    const auto found = std::find_if(pictures.rbegin(), pictures.rend(),
                                    [&at](const auto& p) { return p.rect.contains(at); });
    if (found == pictures.rend()) return nullptr;
    return picture(static_cast<std::size_t>(pictures.rend() - found) - 1);
  }
  QAccessibleInterface* focusChild() const override {
    const bool on_picture = canvas_.hasFocus() && canvas_.cursor_is_visible();
    return on_picture ? picture(canvas_.cursor()) : QAccessibleWidget::focusChild();
  }

 private:
  QAccessibleInterface* picture(std::size_t index) const {
    if (index >= canvas_.pictures().size()) return nullptr;
    const auto [at, is_new] = ids_.try_emplace(index);
    if (is_new) {
      at->second = QAccessible::registerAccessibleInterface(new accessible_picture(canvas_, index));
    }
    return QAccessible::accessibleInterface(at->second);
  }

  canvas& canvas_;
  mutable std::map<std::size_t, QAccessible::Id> ids_;
};

QAccessibleInterface* make_accessible(const QString& /*class_name*/, QObject* object) {
  auto* shown = dynamic_cast<canvas*>(object);
  return shown == nullptr ? nullptr : new accessible_canvas(*shown);
}

QAccessible::UpdateHandler next_handler = nullptr;

// Qt reports a focus change to the canvas, also if the canvas has passed on the focus already.
void report_focused_picture(QAccessibleEvent* event) {
  const bool is_focus = event->type() == QAccessible::Focus && event->child() < 0;
  const auto* shown = is_focus ? dynamic_cast<canvas*>(event->object()) : nullptr;
  QAccessible::installUpdateHandler(next_handler);
  if (shown == nullptr) {
    QAccessible::updateAccessibility(event);
  } else if (shown->hasFocus()) {
    QAccessibleInterface* whole = event->accessibleInterface();
    QAccessibleInterface* picture = whole->focusChild();
    QAccessibleEvent focused(picture == nullptr ? whole : picture, QAccessible::Focus);
    QAccessible::updateAccessibility(&focused);
  }
  QAccessible::installUpdateHandler(report_focused_picture);
}

}  // namespace

void install_accessible_canvases() {
  QAccessible::installFactory(make_accessible);
  next_handler = QAccessible::installUpdateHandler(report_focused_picture);
}

}  // namespace desktop
