#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string_view>

#include "desktop/control_view.h"

namespace desktop {

// A list of rows of text. Subclasses supply the rows and handle selections. A row is read from the
// control when it is painted, so long lists are cheap.
class rows_view : public view_of<QListView, forms_layer::control> {
 public:
  rows_view(forms_layer::control& shown, QWidget* parent);

  // The text in the tool's code page.
  virtual std::string_view row_text(int row) const = 0;
  virtual int row_count() const = 0;
  // An icon before the text, and the pixels to the left of both.
  virtual QIcon row_icon(int /*row*/) const { return {}; }
  virtual int indent(int /*row*/) const { return 0; }
  QSize row_size() const { return row_size_; }

 protected:
  virtual int selected_row() const = 0;
  // Called after a press on a row, also the selected one, or a selection by keyboard.
  virtual void row_chosen(int /*row*/) {}
  virtual void row_double_clicked(int /*row*/) {}
  virtual void enter_pressed(int /*row*/) {}
  // Called after the right button or the menu key, with a point of the screen.
  virtual void menu_requested(int /*row*/, const QPoint& /*at*/) {}

  void show_content() override;
  void show_selection() override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString& letters) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
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
  QSize needed_size() const;

  rows_model model_;
  QSize row_size_;
  int pressed_row_ = -1;
  QString word_;             // typed by the latest letters
  quint64 key_time_ = 0;     // of the latest press of a key
  quint64 letter_time_ = 0;  // of the latest letter
};

}  // namespace desktop
