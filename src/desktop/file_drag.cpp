#include "desktop/file_drag.h"

#include <QDrag>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <string>
#include <utility>

#include "desktop/application_setup.h"
#include "desktop/system_mouse.h"
#include "files/code_page.h"
#include "forms_layer/events.h"
#include "forms_layer/message_box.h"

namespace desktop {

namespace {

std::filesystem::path folder_of(const QTemporaryDir& made) {
  return files::as_utf8(made.path().toStdString());
}

unsigned mouse_releases() {
  const auto* here = dynamic_cast<const application*>(qApp);
  return here == nullptr ? 0 : here->mouse_releases();
}

// Some programs ask for the names before the drop. Wayland does not report the mouse in a drag.
bool is_before_drop(unsigned releases_before) {
  const QString platform = QGuiApplication::platformName();
  const bool reports_mouse =
      platform == QLatin1String("xcb") || platform == QLatin1String("offscreen");
  return mouse_is_held() || (reports_mouse && mouse_releases() == releases_before);
}

bool can_be_written(const file_drag& drag) {
  return !drag.is_written && (drag.is_running || !forms_layer::handler_running());
}

// Runs as an event of the tool, that of the drag if it still runs. Returns a message for the user,
// or "".
std::string write_files(file_drag& drag) {
  drag.is_written = true;
  std::string message;
  const auto write = [&] { message = drag.write(folder_of(drag.folder)); };
  drag.is_running ? write() : forms_layer::run_event(write);
  return message;
}

// Not at once: the other program waits for the files.
void report_later(const std::string& message) {
  QTimer::singleShot(0, qApp, [message] {
    forms_layer::run_event([message] { forms_layer::message_box(message); });
  });
}

class dragged_files : public QMimeData {
 public:
  dragged_files(const std::vector<std::filesystem::path>& names, std::shared_ptr<file_drag> drag)
      : drag_(std::move(drag)) {
    QList<QUrl> urls;
    for (const std::filesystem::path& name : names) {
      const std::u8string path = (folder_of(drag_->folder) / name).u8string();
      urls +=
          QUrl::fromLocalFile(QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
    }
    setUrls(urls);
  }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override {
    if (!is_before_drop(releases_before_) && can_be_written(*drag_)) {
      const std::string message = write_files(*drag_);
      if (!message.empty()) report_later(message);
    }
    return QMimeData::retrieveData(format, type);
  }

 private:
  std::shared_ptr<file_drag> drag_;
  const unsigned releases_before_ = mouse_releases();
};

}  // namespace

std::shared_ptr<file_drag> drag_files(const std::vector<std::filesystem::path>& names,
                                      const forms_layer::file_writer& write, QWidget& from) {
  auto made = std::make_shared<file_drag>();
  if (!made->folder.isValid()) {
    forms_layer::run_event([&] {
      forms_layer::message_box("The files cannot be dragged: " +
                               made->folder.errorString().toStdString());
    });
    return nullptr;
  }
  made->write = write;
  auto* drag = new QDrag(&from);
  drag->setMimeData(new dragged_files(names, made));
  const Qt::DropAction done = drag->exec(Qt::CopyAction);
  made->is_running = false;
  return done == Qt::IgnoreAction && !made->is_written ? nullptr : made;
}

}  // namespace desktop
