#include "platform/dialogs/ColorDialog.h"

#include <utility>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>

#include "platform/Colors.h"

namespace platform {
namespace {

ColorChooser& Chooser() {
  static ColorChooser chooser;
  return chooser;
}

// The toolkit's own dialog opens in full on every desktop.
DialogResult<std::uint32_t> AskOnTheDesktop(const ColorQuestion& question) {
  // The window under the dialog may be destroyed while it is up, and takes the dialog with it.
  auto* dialog = new QColorDialog(ToColor(question.start), QApplication::activeWindow());
  const QPointer<QColorDialog> standing = dialog;
  dialog->setObjectName(QStringLiteral("ColorDialog"));
  dialog->setWindowTitle(QStringLiteral("Color"));
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  DialogResult<std::uint32_t> result{{DialogEnd::Cancelled, {}}};
  if (dialog->exec() == QDialog::Accepted && standing) {
    result.end.number = 0;
    result.choice = FromColor(dialog->selectedColor());
  }
  delete standing;
  return result;
}

}  // namespace

DialogResult<std::uint32_t> AskForColor(const ColorQuestion& question) {
  const ColorChooser chooser = Chooser();  // a copy: the choice may put another one in its place
  return chooser ? chooser(question) : AskOnTheDesktop(question);
}

ColorChooser SetColorChooser(ColorChooser chooser) {
  return std::exchange(Chooser(), std::move(chooser));
}

}  // namespace platform
