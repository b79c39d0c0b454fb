#include "desktop/accessible_canvas.h"

#include <QAccessibleWidget>
#include <map>
#include <vector>

#include "desktop/canvas.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

class accessible_picture : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  accessible_picture(canvas& on, std::size_t index) : canvas_(on), index_(index) {}

  bool isValid() const override { return !picture().rect.isNull(); }
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
    now.focused = canvas_.hasFocus() && canvas_.cursor() == index_;
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
    if (name == showMenuAction()) open_menu(*picture().box, rect().center());
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  const canvas::picture& picture() const { return canvas_.pictures()[index_]; }

  canvas& canvas_;
  std::size_t index_;
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
    return QAccessibleWidget::childCount() + static_cast<int>(visible().size());
  }
  QAccessibleInterface* child(int index) const override {
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets) return QAccessibleWidget::child(index);
    const std::vector<std::size_t> shown = visible();
    const auto at = static_cast<std::size_t>(index - widgets);
    return at < shown.size() ? picture(shown[at]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == wanted) return i;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (const std::size_t index : visible()) {
      if (picture(index)->rect().contains(x, y)) return picture(index);
    }
    return QAccessibleWidget::childAt(x, y);
  }
  QAccessibleInterface* focusChild() const override {
    const bool at_picture = canvas_.hasFocus() && canvas_.cursor() < canvas_.pictures().size();
    return at_picture ? picture(canvas_.cursor()) : QAccessibleWidget::focusChild();
  }

 private:
  std::vector<std::size_t> visible() const {
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < canvas_.pictures().size(); ++i) {
      if (!canvas_.pictures()[i].rect.isNull()) shown.push_back(i);
    }
    return shown;
  }
  QAccessibleInterface* picture(std::size_t index) const {
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

}  // namespace

void install_accessible_canvases() { QAccessible::installFactory(make_accessible); }

}  // namespace desktop
