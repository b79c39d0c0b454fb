#pragma once

#include <QAbstractListModel>
#include <QInputEvent>
#include <QListView>

#include "desktop/control_view.h"
#include "desktop/find_bar.h"
#include "forms_layer/row_list.h"

namespace desktop {

// A list of rows of text. A row is read from the control when it is painted, so long lists are
// cheap.
class rows_view : public view_of<QListView, forms_layer::row_list> {
 public:
  rows_view(forms_layer::row_list& shown, QWidget* parent);

  const forms_layer::row_list& list() const { return shown_; }
  // An icon before the text, and the pixels to the left of both.
  virtual QIcon row_icon(int /*row*/) const { return {}; }
  virtual int indent(int /*row*/) const { return 0; }
  QSize row_size() const { return row_size_; }

  // Made when it is used first; null if the list cannot be searched.
  find_bar* search();
  // Returns false if the search was not open.
  bool close_search() { return search_ != nullptr && search_->close_bar(); }

 protected:
  virtual void row_double_clicked(int row);
  virtual void enter_pressed(int /*row*/) {}

  void show_content() override;
  void show_selection() override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString& letters) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  class rows_model : public QAbstractListModel {
   public:
    explicit rows_model(const rows_view& view) : view_(view) {}
    void reload();
    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

   private:
    const rows_view& view_;
    int count_ = 0;
  };

  void choose(int row);
  bool extends_selection(const QInputEvent& event) const;
  void report_selection();
  int row_of_keys() const;
  void show_selected_rows();
  QSize needed_size() const;

  rows_model model_;
  QSize row_size_;
  int pressed_row_ = -1;
  QPoint pressed_at_;
  bool chooses_on_release_ = false;  // as the press may begin a drag of selected rows
  find_bar* search_ = nullptr;
  QString word_;             // typed by the latest letters
  quint64 key_time_ = 0;     // of the latest press of a key
  quint64 letter_time_ = 0;  // of the latest letter
};

}  // namespace desktop
