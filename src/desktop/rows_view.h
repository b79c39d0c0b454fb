#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>
#include <string_view>

#include "desktop/control_view.h"

namespace desktop {

// A list of rows of text. What the rows are and what choosing one means is for its heirs to say.
// The rows are read from the control as they come into sight, so that long lists cost nothing.
class rows_view : public QListView, public control_view {
 public:
  rows_view(forms_layer::control& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

  // The text in the tool's code page.
  virtual std::string_view row_text(int row) const = 0;
  virtual int row_count() const = 0;
  // What stands left of a row's text: how many pixels it takes, and its painting.
  virtual int indent(int /*row*/) const { return 0; }
  virtual void paint_mark(QPainter& /*painter*/, const QRect& /*where*/, int /*row*/) const {}
  virtual int row_height() const;

 protected:
  virtual int selected_row() const = 0;
  // A press on a row, the selected one too, or its selection by keyboard.
  virtual void row_chosen(int /*row*/) {}
  virtual void row_double_clicked(int /*row*/) {}
  virtual void enter_pressed(int /*row*/) {}

  void show_content() override;
  void show_selection() override;
  void show_colours() override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool viewportEvent(QEvent* event) override;

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

  class rows_painter : public QStyledItemDelegate {
   public:
    explicit rows_painter(const rows_view& view) : view_(view) {}
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

   private:
    const rows_view& view_;
  };

  void choose(int row);
  int widest_row() const;

  rows_model model_;
  rows_painter painter_;
  int width_ = 0;
};

}  // namespace desktop
