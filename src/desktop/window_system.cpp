#include "desktop/window_system.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace desktop {

namespace {

// Long enough for a busy machine. A window manager that does not map the window must not stop a
// job.
constexpr int max_wait_in_milliseconds = 500;

}  // namespace

void pump_window_system() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void wait_until_exposed(const QWindow& shown) {
  const QDeadlineTimer end(max_wait_in_milliseconds);
  while (!shown.isExposed() && !end.hasExpired()) {
    pump_window_system();
    if (!shown.isExposed()) QThread::usleep(500);
  }
}

}  // namespace desktop
