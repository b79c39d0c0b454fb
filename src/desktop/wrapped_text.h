#pragma once

#include <QPainter>
#include <QString>
#include <QTextLayout>
#include <memory>
#include <vector>

namespace desktop {

// Text that wraps at blanks, or anywhere in a word that is wider than there is room. A line of it
// that stays as it was is not laid out again, as a job changes its text thousands of times.
class wrapped_text {
 public:
  // What looks other than before, in pixels below the top of the text.
  struct band {
    int top = 0;
    int bottom = 0;
  };

  band set(const QString& text, const QFont& font, Qt::Alignment alignment, int width);

  // Pixels.
  int height() const;

  // The lines that meet `dirty`, which is as wide as the text.
  void paint(QPainter& painter, const QPoint& top_left, const QRect& dirty) const;

 private:
  struct paragraph {
    QString text;
    std::unique_ptr<QTextLayout> layout;
    int top = 0;
    int height = 0;
  };

  void lay_out(paragraph& p) const;

  std::vector<paragraph> paragraphs_;
  QFont font_;
  Qt::Alignment alignment_;
  int width_ = 0;
};

// Paints text in the middle both ways.
void paint_wrapped_in_middle(QPainter& painter, const QRect& where, const QString& text);

// The height in pixels that the text takes when it wraps at `width`.
int wrapped_height(const QString& text, const QFont& font, int width);

}  // namespace desktop
