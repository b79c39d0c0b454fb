#include "screen_sync.h"

#include <sys/resource.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <cstdlib>

namespace ostrane::bench {

void show_and_wait(QWidget& window) {
  window.show();
  while (!window.windowHandle()->isExposed()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  QCoreApplication::processEvents();
  sync_with_screen();
}

void sync_with_screen() {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = x11->connection();
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

long peak_memory() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

}  // namespace ostrane::bench
