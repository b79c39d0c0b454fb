#include "desktop/file_drag.h"

#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "desktop/application_setup.h"
#include "files/code_page.h"

namespace desktop {

namespace {

std::filesystem::path folder_of(const QTemporaryDir& made) {
  return files::as_utf8(made.path().toStdString());
}

unsigned mouse_releases() {
  const auto* here = dynamic_cast<const application*>(qApp);
  return here == nullptr ? 0 : here->mouse_releases();
}

// Some programs ask for the names before the drop. Other platforms do not report the mouse in a
// drag.
bool can_wait_for_release() {
  const QString platform = QGuiApplication::platformName();
  return platform == QLatin1String("xcb") || platform == QLatin1String("offscreen");
}

class dragged_files : public QMimeData {
 public:
  dragged_files(const std::vector<std::filesystem::path>& names, QTemporaryDir& made,
                const file_writer& write, bool& written)
      : made_(made), write_(write), written_(written) {
    QList<QUrl> urls;
    for (const std::filesystem::path& name : names) {
      const std::u8string path = (folder_of(made) / name).u8string();
      urls +=
          QUrl::fromLocalFile(QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
    }
    setUrls(urls);
  }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override {
    const bool is_held = can_wait_for_release() && mouse_releases() == releases_before_;
    if (!is_held && !std::exchange(written_, true)) write_(folder_of(made_));
    return QMimeData::retrieveData(format, type);
  }

 private:
  QTemporaryDir& made_;
  const file_writer& write_;
  bool& written_;
  const unsigned releases_before_ = mouse_releases();
};

}  // namespace

std::unique_ptr<QTemporaryDir> drag_files(const std::vector<std::filesystem::path>& names,
                                          const file_writer& write, QWidget& from) {
  auto made = std::make_unique<QTemporaryDir>();
  if (!made->isValid()) return nullptr;
  bool written = false;
  auto* drag = new QDrag(&from);
  drag->setMimeData(new dragged_files(names, *made, write, written));
  const bool dropped = drag->exec(Qt::CopyAction) != Qt::IgnoreAction;
  if (!written || !dropped) made.reset();
  return made;
}

}  // namespace desktop
