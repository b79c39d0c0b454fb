#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <cstdint>
#include <functional>
#include <vector>

#include "forms_layer/row_list.h"

namespace desktop {

// A field in the corner of a list that has `Find`: finds rows by their text or goes to a number.
// Enter goes to the next row, Escape closes it.
class find_bar : public QFrame {
 public:
  find_bar(const forms_layer::row_list& list, QWidget& list_widget,
           std::function<void(int row)> choose);

  void find_text();
  void find_number();
  // Choose the next or the previous row that the text finds.
  void find_next();
  void find_previous();
  // Returns false if it was not open.
  bool close_bar();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void open(const QString& hint);
  void show_count();
  std::vector<std::int32_t> hits() const;

  const forms_layer::row_list& list_;
  QWidget& list_widget_;
  std::function<void(int row)> choose_;
  QLineEdit field_;
  QLabel count_;
  bool by_number_ = false;
};

}  // namespace desktop
