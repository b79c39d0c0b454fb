// bench_bare_qt start | label | controls | icons COUNT | text FILE | read FILE
// Measures Qt without the tool and prints microseconds and KB. start shows an empty window, label a
// window with one word, controls a window with about as many controls and menus as the tool's.
// icons creates COUNT pictures and paints them once. text sets a text and paints it once, read
// reads its file too and shows the text's control only then, as the tool does.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "data.h"
#include "screen_sync.h"

namespace {

using namespace ostrane;

constexpr int side = 32;
constexpr int pictures_per_row = 50;

class pictures : public QWidget {
 public:
  std::vector<QImage> images;

  static QRect rect_of(std::size_t i) {
    const int index = static_cast<int>(i);
    return {index % pictures_per_row * (side + 4), index / pictures_per_row * (side + 4), side,
            side};
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    for (std::size_t i = 0; i < images.size(); ++i) {
      const QRect rect = rect_of(i);
      if (event->region().intersects(rect)) painter.drawImage(rect.topLeft(), images[i]);
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

qint64 paint_pictures(int count) {
  const std::vector<picture> drawn = bench::mixed_pictures(count, side);
  pictures window;
  window.resize(1900, 1200);
  bench::show_and_wait(window);
  QElapsedTimer time;
  time.start();
  for (const picture& one : drawn) window.images.push_back(image_of(one));
  window.repaint();
  bench::sync_with_screen();
  return time.nsecsElapsed() / 1000;
}

QByteArray bytes_of(const char* path) {
  QFile file(path);
  file.open(QIODevice::ReadOnly);
  return file.readAll();
}

qint64 set_text(const char* path) {
  const QByteArray bytes = bytes_of(path);
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

qint64 read_and_show_text(const char* path) {
  QWidget window;
  window.resize(1000, 700);
  QPlainTextEdit text(&window);
  text.setGeometry(window.rect());
  text.setLineWrapMode(QPlainTextEdit::NoWrap);
  text.hide();
  bench::show_and_wait(window);
  QElapsedTimer time;
  time.start();
  text.setPlainText(QString::fromLatin1(bytes_of(path)));
  text.show();
  text.viewport()->repaint();
  bench::sync_with_screen();
  return time.nsecsElapsed() / 1000;
}

struct word : QLabel {
  word() : QLabel(QStringLiteral("word")) {}
};

struct controls : QMainWindow {
  controls() {
    for (int i = 0; i < 3; ++i) {
      QMenu* menu = menuBar()->addMenu(QString("Menu %1").arg(i));
      for (int item = 0; item < 4; ++item) menu->addAction(QString("Item %1").arg(item));
    }
    auto* all = new QWidget;
    auto* list = new QListWidget(all);
    list->setGeometry(0, 40, 110, 400);
    auto* group = new QGroupBox("Group", all);
    group->setGeometry(120, 0, 500, 440);
    for (int i = 0; i < 8; ++i) {
      (new QPushButton(QString("Button %1").arg(i), group))->setGeometry(10, 20 + 40 * i, 80, 20);
      (new QLineEdit(QString::number(i), group))->setGeometry(100, 20 + 40 * i, 80, 20);
      (new QLabel(QString("Label %1").arg(i), group))->setGeometry(190, 20 + 40 * i, 80, 20);
    }
    setCentralWidget(all);
  }
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
  if (job == "icons") microseconds = paint_pictures(std::atoi(argv[2]));
  if (job == "controls") microseconds = start<controls>();
  if (job == "text") microseconds = set_text(argv[2]);
  if (job == "read") microseconds = read_and_show_text(argv[2]);
  std::cout << microseconds << ' ' << bench::peak_memory() << std::endl;
  std::_Exit(0);
}
