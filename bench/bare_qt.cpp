// bench_bare_qt start | label | icons COUNT | refreshes COUNT | bars FILES | text FILE
// What Qt itself takes, in microseconds and KB: an empty window; one with a word in it; pictures
// built and painted once; a window that repaints one picture after the other when a second window
// has come up; one that for each of many files repaints a text and the eight strips by which a bar
// grows meanwhile; a text set and painted once.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "data.h"
#include "screen_sync.h"

namespace {

using namespace ostrane;

constexpr int side = 32;
constexpr int in_a_row = 50;

class pictures : public QWidget {
 public:
  std::vector<QImage> images;

  static QRect place(std::size_t i) {
    const int index = static_cast<int>(i);
    return {index % in_a_row * (side + 4), index / in_a_row * (side + 4), side, side};
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    for (std::size_t i = 0; i < images.size(); ++i) {
      if (event->region().intersects(place(i))) painter.drawImage(place(i).topLeft(), images[i]);
    }
  }
};

QImage image_of(const picture& drawn) {
  QImage image(drawn.columns(), drawn.rows(), QImage::Format_RGB32);
  for (int y = 0; y < drawn.rows(); ++y) {
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < drawn.columns(); ++x) {
      to[x] = drawn.is_set(x, y) ? qRgb(drawn.at(x, y), 64, 128) : qRgb(240, 240, 240);
    }
  }
  return image;
}

qint64 paint_pictures(int count, bool one_by_one) {
  const std::vector<picture> drawn = bench::mixed_pictures(count, side);
  pictures window;
  window.resize(1900, 1200);
  bench::show_and_wait(window);
  QElapsedTimer time;
  time.start();
  QWidget message;
  message.resize(400, 300);
  if (one_by_one) bench::show_and_wait(message);
  for (const picture& one : drawn) {
    window.images.push_back(image_of(one));
    if (one_by_one) window.repaint(pictures::place(window.images.size() - 1));
  }
  if (!one_by_one) window.repaint();
  bench::sync_with_screen();
  return time.nsecsElapsed() / 1000;
}

// The text at the top and the bar below it, of which only strips are painted.
class text_and_bar : public QWidget {
 public:
  static constexpr int strips = 8;
  QString text;

  text_and_bar() {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(430, 200);
  }
  static QRect text_place() { return {10, 10, 400, 32}; }
  static QRect strip(int i) { return {10 + i * 50, 100, 50, 20}; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    const bool is_text = event->rect().intersects(text_place());
    painter.fillRect(event->rect(), is_text ? Qt::lightGray : Qt::blue);
    if (is_text) painter.drawText(text_place(), Qt::AlignLeft, text);
  }
};

qint64 paint_bars(int files) {
  text_and_bar window;
  bench::show_and_wait(window);
  QElapsedTimer time;
  time.start();
  for (int file = 0; file < files; ++file) {
    window.text = QStringLiteral("Extracting file: F%1.DAT\nFile number: %1").arg(file);
    window.repaint(text_and_bar::text_place());
    for (int i = 0; i < text_and_bar::strips; ++i) window.repaint(text_and_bar::strip(i));
  }
  bench::sync_with_screen();
  return time.nsecsElapsed() / 1000;
}

qint64 show_text(const char* path) {
  QFile file(path);
  file.open(QIODevice::ReadOnly);
  const QByteArray bytes = file.readAll();
  QPlainTextEdit window;
  window.resize(1000, 700);
  window.setLineWrapMode(QPlainTextEdit::NoWrap);
  bench::show_and_wait(window);
  QElapsedTimer time;
  time.start();
  window.setPlainText(QString::fromLatin1(bytes));
  window.viewport()->repaint();
  bench::sync_with_screen();
  return time.nsecsElapsed() / 1000;
}

struct word : QLabel {
  word() : QLabel(QStringLiteral("word")) {}
};

template <typename Window>
qint64 start() {
  Window window;
  window.resize(800, 600);
  bench::show_and_wait(window);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const std::string job = argc > 1 ? argv[1] : "start";
  qint64 microseconds = 0;
  if (job == "start") microseconds = start<QWidget>();
  if (job == "label") microseconds = start<word>();
  if (job == "icons") microseconds = paint_pictures(std::atoi(argv[2]), false);
  if (job == "refreshes") microseconds = paint_pictures(std::atoi(argv[2]), true);
  if (job == "bars") microseconds = paint_bars(std::atoi(argv[2]));
  if (job == "text") microseconds = show_text(argv[2]);
  std::cout << microseconds << ' ' << bench::peak_memory() << std::endl;
  std::_Exit(0);
}
