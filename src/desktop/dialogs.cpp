#include "desktop/dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <algorithm>

#include "desktop/designed_look.h"
#include "desktop/menu_items.h"
#include "desktop/screen_text.h"
#include "files/code_page.h"

namespace desktop {

namespace {

using forms_layer::file_kind;

QString name_filter(const file_kind& kind) {
  return to_screen(kind.label) + QStringLiteral(" (*") + to_screen(kind.ending) + QLatin1Char(')');
}

// The ending without the extension: "-sheet" of "-sheet.png".
QString before_extension(const QString& text) { return text.left(text.lastIndexOf('.')); }

// Replaces the ending of another kind by that of the selected kind. Qt may already have changed the
// extension.
QString with_ending(const QString& name, const std::vector<file_kind>& kinds,
                    const file_kind& wanted) {
  QString stem = before_extension(name);
  for (const file_kind& kind : kinds) {
    const QString ending = before_extension(to_screen(kind.ending));
    if (!stem.endsWith(ending) || ending.isEmpty()) continue;
    stem.chop(ending.size());
    break;
  }
  return stem + to_screen(wanted.ending);
}

void set_default_suffix(QFileDialog& dialog, const file_kind& kind) {
  dialog.setDefaultSuffix(QFileInfo(to_screen(kind.ending)).suffix());
}

// Leaves room for the title, whose font the window manager chooses.
constexpr int min_text_width = 260;

// Of the latest dialog in which the user chose a file or a folder.
QString& last_folder() {
  static QString folder = QDir::homePath();
  return folder;
}

}  // namespace

void show_message(const std::string& title, const std::string& text, QWidget* owner) {
  QMessageBox box(owner);
  box.setWindowModality(Qt::ApplicationModal);
  // Some desktops set another font for message boxes.
  box.setFont(font_for({}));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_screen(title));
  // Some texts of the tool have LF CR.
  const QString one_break = to_screen(text).replace(QLatin1String("\n\r"), QLatin1String("\n"));
  box.setText(normalize_newlines(one_break));
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows != nullptr) rows->setColumnMinimumWidth(rows->columnCount() - 1, min_text_width);
  box.show();
  box.raise();
  box.activateWindow();
  box.exec();
}

forms_layer::menu_item* pick_item(const forms_layer::context_menu& opened,
                                  forms_layer::screen_point at, QWidget* owner,
                                  const std::function<void(QMenu&)>& prepare) {
  QMenu menu(owner);
  add_items(menu, opened);
  prepare(menu);
  return item_of(menu, opened, menu.exec(QPoint(at.x, at.y)));
}

void activate_first_item(QMenu& menu) {
  const QList<QAction*> actions = menu.actions();
  const auto first = std::find_if(actions.begin(), actions.end(),
                                  [](const QAction* action) { return action->isEnabled(); });
  if (first != actions.end()) menu.setActiveAction(*first);
}

forms_layer::save_answer ask_save_path(const forms_layer::save_question& question, QWidget* owner) {
  QFileDialog dialog(owner, to_screen(question.title), last_folder());
  // With a dialog of the desktop Qt adds the extension after the question to replace a file.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  for (const file_kind& kind : question.kinds) filters += name_filter(kind);
  dialog.setNameFilters(filters);
  set_default_suffix(dialog, question.kinds.front());
  dialog.selectFile(to_screen(question.stem + question.kinds.front().ending));
  const auto kind_selected = [&] {
    return static_cast<std::size_t>(
        std::max<qsizetype>(0, filters.indexOf(dialog.selectedNameFilter())));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&] {
    const file_kind& kind = question.kinds[kind_selected()];
    const QString name = QFileInfo(dialog.selectedFiles().value(0)).fileName();
    set_default_suffix(dialog, kind);
    dialog.selectFile(with_ending(name, question.kinds, kind));
  });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  last_folder() = dialog.directory().absolutePath();
  const QString path = QDir::toNativeSeparators(dialog.selectedFiles().first());
  return {.path = files::as_utf8(path.toStdString()), .kind = kind_selected()};
}

std::filesystem::path ask_folder(const std::string& title, QWidget* owner) {
  QFileDialog dialog(owner, to_screen(title), last_folder());
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  last_folder() = dialog.selectedFiles().first();
  return files::as_utf8(QDir::toNativeSeparators(last_folder()).toStdString());
}

}  // namespace desktop
