// monkey SEED ACTIONS: uses the windows at random, on the sample archive. The same seed gives the
// same actions. Prints each one to the file "actions" of its folder, so that a finding can be read.
#include <QTest>
#include <QtWidgets>
#include <iostream>

#include "desktop/application_setup.h"
#include "desktop/qt_screen.h"
#include "disk.h"
#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"
#include "pictures/icon_exporter.h"
#include "sample_files.h"

namespace {

namespace fs = std::filesystem;

struct world {
  fs::path folder = ostrane::make_temporary_folder();
  std::ofstream actions{folder / "actions"};
  std::minstd_rand numbers;
  int left = 0;   // actions
  int depth = 0;  // of nested actions
};

int below(world& w, int limit) { return static_cast<int>(w.numbers() >> 8U) % std::max(1, limit); }

template <typename T, std::size_t N>
const T& one_of(world& w, const T (&choices)[N]) {
  return choices[below(w, N)];
}

void restart(world& w) {
  fs::remove_all(w.folder / "c");
  fs::create_directories(w.folder / "c" / "sub");
  fs::create_directories(w.folder / "d");
  const auto files = ostrane::samples::sample_files();
  ostrane::write_bytes(w.folder / "c" / "ostrane.dat", ostrane::archive_bytes(files));
  for (const auto& [name, bytes] : files)
    ostrane::write_bytes(w.folder / "c" / "sub" / name, bytes);
  fs::current_path(w.folder / "c");
  files::override_system({{'C', "home", w.folder / "c"}, {'D', "", w.folder / "d"}}, "C:\\");
  ostrane::start_tool(w.folder / "c", ostrane::make_icon_exporter());
  forms_layer::user::click(ostrane::Form1.mnu_open);
  forms_layer::user::click(ostrane::Form2.Command1);
}

QWidget* target() {
  for (QWidget* on : {QApplication::activePopupWidget(), QApplication::activeModalWidget(),
                      QApplication::activeWindow()}) {
    if (on != nullptr && on->isVisible()) return on;
  }
  for (QWidget* on : QApplication::topLevelWidgets()) {
    if (on->isVisible() && on->isWindow()) return on;
  }
  return nullptr;
}

void press_key(world& w, QWidget& on) {
  static const QStringList keys =
      QString(
          "Down Up Left Right Home End PgDown Tab Tab Backtab Return Return Space Esc Esc Del "
          "Backspace F1 F3 Shift+F3 F5 F10 Shift+F10 Menu Alt+F Alt+I Alt+R Ctrl+V Ctrl+C Ctrl+X "
          "Ctrl+Z Ctrl+A Ctrl+O Ctrl+S Ctrl+E Ctrl+L Ctrl+F Ctrl+G Ctrl++ Ctrl+- Ctrl+0 Shift+Down "
          "Shift+Up Ctrl+Space Shift+Return")
          .split(' ');
  const QString& name = keys[below(w, static_cast<int>(keys.size()))];
  const QKeyCombination pressed = QKeySequence::fromString(name)[0];
  w.actions << "key " << name.toStdString() << std::endl;
  QTest::keyClick(on.windowHandle(), pressed.key(), pressed.keyboardModifiers());
}

void type(world& w, QWidget& on) {
  const char letter = one_of(w, "0123456789.-abcgostvwx&\\:");
  w.actions << "type " << letter << std::endl;
  if (letter != '\0') QTest::keyClick(on.windowHandle(), letter);
}

void use_mouse(world& w, QWidget& on) {
  const QPoint at(below(w, on.width()), below(w, on.height()));
  const int what = below(w, 10);
  static const Qt::KeyboardModifiers pressed[] = {
      {}, {}, {}, Qt::ControlModifier, Qt::ShiftModifier};
  const Qt::KeyboardModifiers modifiers = one_of(w, pressed);
  w.actions << "mouse " << what << ' ' << modifiers.toInt() << ' ' << at.x() << ',' << at.y()
            << std::endl;
  QWindow* window = on.windowHandle();
  if (what == 0) {
    const QPointF position(at);
    QWheelEvent turned(position, on.mapToGlobal(position), {}, {0, below(w, 2) == 0 ? 120 : -120},
                       Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(window, &turned);
    return;
  }
  if (what < 3) return QTest::mouseDClick(window, Qt::LeftButton, modifiers, at);
  const Qt::MouseButton other = what == 3 ? Qt::MiddleButton : Qt::RightButton;
  QTest::mouseClick(window, what < 6 ? other : Qt::LeftButton, modifiers, at);
}

void fill_clipboard(world& w) {
  const int what = below(w, 4);
  w.actions << "clipboard " << what << std::endl;
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (what == 0) clipboard->clear();
  if (what == 1) clipboard->setMimeData(new QMimeData);
  if (what == 2) clipboard->setText(QString(below(w, 5000), QLatin1Char('7')));
  if (what == 3) clipboard->setImage(QImage(3, 3, QImage::Format_RGB32));
}

void resize(world& w, QWidget& on) {
  const QSize size(below(w, 900), below(w, 700));
  w.actions << "resize " << size.width() << ',' << size.height() << std::endl;
  on.resize(size);
}

// No click may lead the dialog to another folder.
void answer(world& w, QFileDialog& dialog) {
  const bool accepts = below(w, 2) == 0;
  w.actions << "dialog " << accepts << std::endl;
  if (!accepts) return dialog.reject();
  dialog.setDirectory(QString::fromStdString((w.folder / "d").string()));
  if (dialog.acceptMode() == QFileDialog::AcceptSave) {
    static const char* const names[] = {"a", "a.png", "a-0001.png", "a.gif", "a.bmp"};
    dialog.selectFile(QString::fromLatin1(one_of(w, names)));
  }
  static_cast<QDialog&>(dialog).accept();
}

void act(world& w) {
  QWidget* on = target();
  if (on == nullptr || on->windowHandle() == nullptr) return;
  if (auto* dialog = qobject_cast<QFileDialog*>(on)) return answer(w, *dialog);
  if (qobject_cast<QMessageBox*>(on) != nullptr) {
    w.actions << "close box" << std::endl;
    return static_cast<void>(QTest::keyClick(on->windowHandle(), Qt::Key_Return));
  }
  const int what = below(w, 100);
  if (what < 45) return press_key(w, *on);
  if (what < 60) return type(w, *on);
  if (what < 95) return use_mouse(w, *on);
  what < 98 ? fill_clipboard(w) : resize(w, *on);
}

// Boxes, menus and dialogs run their own event loops, in which the actions go on.
void go_on(world& w) {
  constexpr int max_depth = 20;
  QTimer::singleShot(w.depth == 0 ? 0 : 1, qApp, [&w] { go_on(w); });
  const bool in_box =
      QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
  // Without a box it is an event loop of QTest, which ends by itself.
  if (w.depth > 0 && (!in_box || w.depth > max_depth)) return;
  if (w.left-- <= 0) return QApplication::exit();
  ++w.depth;
  act(w);
  --w.depth;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: monkey SEED ACTIONS\n";
    return 2;
  }
  world w;
  w.numbers.seed(static_cast<unsigned>(std::atoi(argv[1])) + 1);
  w.left = std::atoi(argv[2]);
  qputenv("HOME", (w.folder / "c").string().c_str());
  const desktop::application application(argc, argv);
  desktop::set_up_application();
  std::cout << w.folder.string() << std::endl;
  int starts = 0;
  while (w.left > 0) {
    desktop::qt_screen screen;
    forms_layer::attach_screen(&screen);
    restart(w);
    if (starts++ == 0) go_on(w);
    QApplication::exec();
    forms_layer::attach_screen(nullptr);
  }
  std::cout << starts << " starts" << std::endl;
  files::override_system({});
  fs::current_path("/");
  fs::remove_all(w.folder);
}
