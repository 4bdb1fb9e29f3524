#include "platform/dialogs/FontDialog.h"

#include <utility>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>

#include "platform/dialogs/FontPicker.h"

namespace platform {
namespace {

FontChooser& Chooser() {
  static FontChooser chooser;
  return chooser;
}

DialogResult<FontValues> AskOnTheDesktop(const FontQuestion& question) {
  // The window under the dialog may be destroyed while it is up, and takes the dialog with it.
  auto* dialog = new FontPicker(question, QApplication::activeWindow());
  const QPointer<FontPicker> standing = dialog;
  DialogResult<FontValues> result{{DialogEnd::Cancelled, {}}, {}};
  if (dialog->exec() == QDialog::Accepted && standing) {
    result.end.number = 0;
    result.choice = dialog->Values();
  }
  delete standing;
  return result;
}

}  // namespace

DialogResult<FontValues> AskForFont(const FontQuestion& question) {
  const FontChooser chooser = Chooser();  // a copy: the choice may put another one in its place
  return chooser ? chooser(question) : AskOnTheDesktop(question);
}

FontChooser SetFontChooser(FontChooser chooser) {
  return std::exchange(Chooser(), std::move(chooser));
}

}  // namespace platform
