#include "desktop/exposure.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QThread>

namespace desktop {

namespace {

constexpr int longest_wait_in_milliseconds = 250;
constexpr int answer_after_milliseconds = 100;

void take_all_but_user_input() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

void disable_shared_memory() {
  constexpr const char* setting = "QT_XCB_NO_MITSHM";
  if (!qEnvironmentVariableIsSet(setting)) qputenv(setting, "1");
}

void wait_until_exposed(QWindow& shown) {
  const QDeadlineTimer end(longest_wait_in_milliseconds);
  while (!shown.isExposed() && !end.hasExpired()) {
    take_all_but_user_input();
    if (!shown.isExposed()) QThread::usleep(500);
  }
}

void pump_window_events() {
  static QElapsedTimer since_last;
  if (since_last.isValid() && since_last.elapsed() < answer_after_milliseconds) return;
  take_all_but_user_input();
  since_last.start();
}

}  // namespace desktop
