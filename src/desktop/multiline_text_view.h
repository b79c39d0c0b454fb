#pragma once

#include <QPlainTextEdit>
#include <QTimer>

#include "desktop/control_view.h"
#include "forms_layer/text_box.h"

namespace desktop {

// A text box of several lines with both scroll bars. Its menu offers a font of fixed pitch. Edits
// are reported when the user pauses or leaves, as the text can be megabytes long.
class multiline_text_view : public view_of<QPlainTextEdit, forms_layer::text_box> {
 public:
  multiline_text_view(forms_layer::text_box& shown, QWidget* parent);

 protected:
  void show_content() override;
  void resizeEvent(QResizeEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void report_edit();
  void count_lines();

  bool has_joined_lines_ = false;
  bool has_fixed_pitch_ = false;  // by the user's choice, for this run
  QTimer pause_;                  // runs while there is an edit that was not reported
  QString reported_;              // by the latest edit
};

}  // namespace desktop
