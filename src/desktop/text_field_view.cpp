#include "desktop/text_field_view.h"

#include <QSignalBlocker>
#include <algorithm>

#include "desktop/screen_text.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

text_field_view::text_field_view(forms_layer::text_box& shown, QWidget* parent)
    : view_of(shown, parent) {
  setReadOnly(shown.designed.locked);
  if (shown.designed.centred) setAlignment(Qt::AlignCenter);
  limit_to(shown.designed.max_length);
  // A screen reader's edit does not emit textEdited.
  connect(this, &QLineEdit::textChanged, this, [this](const QString& edited) {
    forms_layer::user::type(shown_, from_screen(edited));
    // The tool can reject the edit. If its text is then unchanged, it reports no change.
    if (!forms_layer::handler_running()) show_content();
  });
}

void text_field_view::show_content() {
  const QSignalBlocker not_an_edit(this);
  const QString now = to_screen(shown_.Text());
  setPlaceholderText(to_screen(shown_.Placeholder()));
  if (now == text()) return;
  const int cursor = cursorPosition();
  limit_to(std::max(shown_.designed.max_length, static_cast<int>(now.size())));
  setText(now);
  setCursorPosition(hasFocus() ? cursor : 0);
}

// The limit applies to the user's input, not to texts of the tool. Qt sets the text again with each
// limit, which loses the cursor and the undo steps.
void text_field_view::limit_to(int length) {
  if (shown_.designed.max_length > 0 && length != maxLength()) setMaxLength(length);
}

}  // namespace desktop
