#include "platform/ColorDialog.h"

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
  QPointer<QColorDialog> dialog = new QColorDialog(ToColor(question.start), QApplication::activeWindow());
  dialog->setObjectName(QStringLiteral("ColorDialog"));
  dialog->setWindowTitle(QStringLiteral("Color"));
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  DialogResult<std::uint32_t> result;
  result.end.number = DialogEnd::Cancelled;
  if (dialog->exec() == QDialog::Accepted && dialog) {
    result.end.number = 0;
    result.choice = FromColor(dialog->selectedColor());
  }
  delete dialog;
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
