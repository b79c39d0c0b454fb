#include "desktop/accessible_name.h"

#include <cstdlib>

#include "desktop/screen_text.h"
#include "forms_layer/container.h"

namespace desktop {

namespace {

using forms_layer::control_kind;
using forms_layer::place;

constexpr std::int32_t near = 150;  // twips

bool is_beside(const place& label, const place& shown) {
  const std::int32_t gap = shown.left - (label.left + label.width);
  return std::abs(label.top - shown.top) < near && gap >= 0 && gap < near;
}

bool is_above(const place& label, const place& shown) {
  return std::abs(label.left - shown.left) < near && label.top < shown.top &&
         shown.top - (label.top + label.height) < near && shown.top - label.top < 3 * near;
}

QString name_of_kind(control_kind kind) {
  switch (kind) {
    case control_kind::list_box:
      return QStringLiteral("List");
    case control_kind::drive_list:
      return QStringLiteral("Drives");
    case control_kind::dir_list:
      return QStringLiteral("Folders");
    case control_kind::file_list:
      return QStringLiteral("Files");
    case control_kind::progress_bar:
      return QStringLiteral("Progress");
    default:
      return QStringLiteral("Text");
  }
}

}  // namespace

QString accessible_name(forms_layer::control& shown) {
  for (const forms_layer::control* other : shown.parent.controls()) {
    if (other->kind != control_kind::label) continue;
    const place& label = other->designed.at;
    if (is_beside(label, shown.designed.at) || is_above(label, shown.designed.at)) {
      return to_screen(other->designed.text);
    }
  }
  const std::string& tip = shown.designed.tool_tip;
  return tip.empty() ? name_of_kind(shown.kind) : to_screen(tip);
}

}  // namespace desktop
