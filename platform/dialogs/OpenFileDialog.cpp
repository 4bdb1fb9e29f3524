#include "platform/dialogs/OpenFileDialog.h"

#include <sstream>
#include <utility>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>

namespace platform {
namespace {

OpenFileChooser& Chooser() {
  static OpenFileChooser chooser;
  return chooser;
}

QString& LastFolder() {
  static QString folder{};
  return folder;
}

QString FolderToStartIn() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  for (const QString& folder : {LastFolder(), pictures})
    if (!folder.isEmpty() && QDir(folder).exists()) return folder;
  return QDir::homePath();
}

// The dialog's own form: the description, then the patterns in brackets, which it does not show.
QString NameFilter(const FileFilter& filter) {
  QString patterns = QString::fromStdString(filter.patterns).replace(u';', u' ');
  if (patterns == u"*.*") patterns = QStringLiteral("*");  // files without an ending as well
  return QStringLiteral("%1 (%2)").arg(QString::fromStdString(filter.description), patterns);
}

// The toolkit's own dialog: some desktops' dialogs tell "photo.jpg" from "*.JPG".
QFileDialog* MakeDialog(const OpenFileQuestion& question) {
  auto* dialog = new QFileDialog(QApplication::activeWindow(), QString::fromStdString(question.title));
  dialog->setObjectName(QStringLiteral("OpenFileDialog"));
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  dialog->setOption(QFileDialog::ReadOnly);  // a file is chosen here, not renamed or deleted
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setDirectory(FolderToStartIn());
  QStringList names;
  for (const FileFilter& filter : question.filters) names.append(NameFilter(filter));
  dialog->setNameFilters(names);
  dialog->selectNameFilter(names.value(question.filterIndex - 1));
  return dialog;
}

std::optional<std::string> AskOnTheDesktop(const OpenFileQuestion& question) {
  // The window under the dialog may be destroyed while it is up, and takes the dialog with it.
  QPointer<QFileDialog> dialog = MakeDialog(question);
  const bool chosen = dialog->exec() == QDialog::Accepted && dialog && !dialog->selectedFiles().isEmpty();
  std::optional<std::string> path;
  if (chosen) {
    path = QFile::encodeName(dialog->selectedFiles().constFirst()).toStdString();
    LastFolder() = dialog->directory().absolutePath();
  }
  delete dialog;
  return path;
}

}  // namespace

std::vector<FileFilter> FiltersFrom(const std::string& text) {
  std::vector<FileFilter> filters;
  std::istringstream pieces(text);
  FileFilter filter;
  while (std::getline(pieces, filter.description, '|') && std::getline(pieces, filter.patterns, '|'))
    filters.push_back(filter);
  return filters;
}

std::optional<std::string> AskForFile(const OpenFileQuestion& question) {
  const OpenFileChooser chooser = Chooser();  // a copy: the choice may put another one in its place
  return chooser ? chooser(question) : AskOnTheDesktop(question);
}

OpenFileChooser SetOpenFileChooser(OpenFileChooser chooser) {
  return std::exchange(Chooser(), std::move(chooser));
}

}  // namespace platform
