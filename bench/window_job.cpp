// bench_window start|icons|text|extract|build|keys FOLDER [COUNT]
// Runs one job of the tool with its windows. Prints the microseconds from the click to the last
// pixel on the screen, and the peak memory in KB. FOLDER is as for bench_job. icons draws a series
// of COUNT icons. keys sends twenty presses of Down to the list of entries with xdotool. It prints
// the number of the selected row, and how often the active window changed.
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "desktop/application_setup.h"
#include "desktop/qt_screen.h"
#include "forms/forms.h"
#include "forms_layer/user.h"
#include "screen_sync.h"
#include "tool.h"

namespace {

using namespace ostrane;
namespace user = forms_layer::user;

// Keeps the texts of message boxes.
class screen : public desktop::qt_screen {
 public:
  void message_box(const std::string& /*title*/, const std::string& text) override {
    messages.push_back(text);
  }
  std::vector<std::string> messages;
};

// Ends the program if the job failed. Extraction and build report their success.
void expect_success(const screen& shown, const std::string& job) {
  const std::size_t expected = job == "extract" || job == "build" ? 1 : 0;
  if (!bench::dialog_is_open() && shown.messages.size() == expected) return;
  for (const std::string& text : shown.messages) std::cerr << text << '\n';
  std::_Exit(1);
}

void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::processEvents();
    bench::sync_with_screen();
  }
}

void click(const std::string& name) {
  for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
    if (Form1.List1.List(row) == name) user::select_row(Form1.List1, row);
  }
}

void prepare(const std::string& job, const std::string& folder) {
  if (job == "start") return;
  if (job != "build") bench::open_archive(folder);
  if (job == "icons" || job == "text") bench::resize_window(1900, 1200, 999);
  if (job == "text") click("SHORT.TXT");
  settle();
}

void run(const std::string& job, const std::string& folder, const std::string& count) {
  if (job == "icons") click("I" + count + ".SHP");
  if (job == "text") click("LONG.TXT");
  if (job == "extract") bench::extract_into(folder + "\\out");
  if (job == "build") bench::build_from(folder);
  // The end of a job posts its last work to the event loop.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  bench::sync_with_screen();
}

[[noreturn]] void press_keys(QWidget& window) {
  window.activateWindow();
  settle();
  int changes = 0;
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, [&] { ++changes; });
  QProcess keys;
  keys.start("xdotool", QStringList{"key", "--delay", "20"} + QStringList(20, "Down"));
  QEventLoop loop;
  QObject::connect(&keys, &QProcess::finished,
                   [&] { QTimer::singleShot(1000, &loop, &QEventLoop::quit); });
  loop.exec();
  std::cout << Form1.List1.ListIndex() + 1 << ' ' << changes << std::endl;
  std::_Exit(0);
}

[[noreturn]] void measure(screen& shown, const std::string& job, const std::string& folder,
                          const std::string& count) {
  bench::show_and_wait(*shown.window_of(Form1));
  prepare(job, folder);
  if (job == "keys") press_keys(*shown.window_of(Form1));
  QElapsedTimer time;
  time.start();
  if (job != "start") run(job, folder, count);
  const qint64 microseconds = time.nsecsElapsed() / 1000;
  expect_success(shown, job);
  std::cout << microseconds << ' ' << bench::peak_memory() << std::endl;
  std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: bench_window start|icons|text|extract|build|keys FOLDER [COUNT]\n";
    return 2;
  }
  const QApplication application(argc, argv);
  desktop::set_up_application();
  screen shown;
  forms_layer::attach_screen(&shown);
  const std::filesystem::path folder = std::filesystem::absolute(argv[2]);
  bench::start_tool_on(folder.parent_path());
  QCoreApplication::processEvents();
  QTimer::singleShot(0, [&] {
    measure(shown, argv[1], "C:\\" + folder.filename().string(), argc > 3 ? argv[3] : "");
  });
  return QApplication::exec();
}
