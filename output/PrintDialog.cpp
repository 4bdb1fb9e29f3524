#include "output/PrintDialog.h"

#include <algorithm>
#include <utility>

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include "output/PrintJob.h"
#include "output/PrintRange.h"
#include "platform/Failure.h"

namespace {

PrintAnswerer& Answerer() {
  static PrintAnswerer answerer;
  return answerer;
}

// The toolkit does not tell when the disk was full.
bool EndsAsPdf(const QString& path) {
  constexpr qint64 tail = 16;
  QFile file(path);
  return file.open(QFile::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - tail)) &&
         file.read(tail).contains("%%EOF");
}

class PrinterPaper : public richtext::Paper {
 public:
  explicit PrinterPaper(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
  QPaintDevice& Device() override { return *printer_; }
  QSizeF Area() const override { return printer_->pageLayout().paintRect(QPageLayout::Point).size(); }
  bool IsWhole() const override {
    if (IsFile()) return EndsAsPdf(printer_->outputFileName());
    const std::string refusal = WhyJobWasRefused();
    if (refusal.empty()) return true;
    throw platform::Failure(platform::FailureKind::DeviceError, Name() + " (" + refusal + ")");
  }
  void GiveUp() override { nowhere_.emplace(); }
  void Withdraw() override {
    nowhere_.reset();
    if (IsFile()) QFile::remove(printer_->outputFileName());
  }
  bool NextSheet() override { return printer_->newPage() && printer_->printerState() != QPrinter::Error; }

 private:
  bool IsFile() const { return printer_->outputFormat() == QPrinter::PdfFormat; }
  std::string Name() const { return printer_->printerName().toStdString(); }

  std::unique_ptr<QPrinter> printer_;
  std::optional<NoPrintSystem> nowhere_;
};

// The toolkit's own choice of pages knows no page 0: its boxes begin at 1, and a range of 0 to 0 means all to
// the printer. Ours stands in its place, and the printer is told of no range.
void PutInPlace(PrintRange& range, QPrintDialog& dialog) {
  auto* attic = new QWidget(&dialog);
  attic->hide();
  if (auto* own = dialog.findChild<QGroupBox*>(QStringLiteral("gbPrintRange"))) own->setParent(attic);
  if (auto* rows = qobject_cast<QVBoxLayout*>(dialog.layout()))
    rows->insertWidget(1, &range);
  else
    dialog.setOptionTabs({&range});
}

// The toolkit proposes a name for the file on X11 alone, and the bare folder elsewhere.
void ProposeFileName(QPrintDialog& dialog, const QString& name) {
  auto* path = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  if (path && path->text().endsWith(u'/')) path->setText(path->text() + name + QStringLiteral(".pdf"));
}

// Tab goes as the eye does: from the printer over our choice to the buttons.
void PutInTabOrder(PrintRange& range, QPrintDialog& dialog) {
  auto* before = dialog.findChild<QWidget*>(QStringLiteral("fileBrowser"));
  const std::initializer_list<QWidget*> controls = {range.optAll, range.optPages, range.spnFrom, range.spnTo,
                                                    range.optSelection};
  for (QWidget* control : controls) {
    if (before) QWidget::setTabOrder(before, control);
    before = control;
  }
}

QPrintDialog* MakeDialog(QPrinter& printer, PrintRange*& range, const PrintRequest& request) {
  auto* dialog = new QPrintDialog(&printer, QApplication::activeWindow());
  dialog->setObjectName(QStringLiteral("PrintDialog"));
  dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                     QAbstractPrintDialog::PrintCollateCopies);
  range = new PrintRange(request, dialog);
  PutInPlace(*range, *dialog);
  PutInTabOrder(*range, *dialog);
  ProposeFileName(*dialog, printer.docName());
  if (auto* browse = dialog->findChild<QWidget*>(QStringLiteral("fileBrowser")))
    browse->setAccessibleName(QStringLiteral("choose the output file"));
  return dialog;
}

// A printer may have gone while the dialog showed it; then the toolkit prints on the one that was chosen
// before.
void CheckPrinter(const QPrintDialog& dialog, const QPrinter& printer) {
  const auto* shown = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
  if (printer.outputFormat() == QPrinter::PdfFormat || !shown ||
      shown->currentText() == printer.printerName())
    return;
  throw platform::Failure(
      platform::FailureKind::DeviceError,
      shown->currentText().toStdString() + " (the print system does not have it any more)");
}

QString NameOf(const QPrinter& printer) {
  return printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
}

std::optional<PrintOrder> AskOnTheDesktop(const PrintRequest& request) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(QStringLiteral("Thornquill"));
  printer->setCreator(QStringLiteral("Thornquill"));
  PrintRange* range = nullptr;
  // The window under the dialog may be destroyed while it is up, and takes the dialog with it.
  const QPointer<QPrintDialog> dialog = MakeDialog(*printer, range, request);
  const auto forget = qScopeGuard([&] { delete dialog; });
  if (dialog->exec() != QDialog::Accepted || !dialog) return std::nullopt;
  CheckPrinter(*dialog, *printer);
  PrintOrder order = range->Order();
  order.printer = NameOf(*printer).toStdString();
  order.paper = std::make_unique<PrinterPaper>(std::move(printer));
  return order;
}

}  // namespace

std::optional<PrintOrder> ShowPrintDialog(const PrintRequest& request) {
  const PrintAnswerer answerer = Answerer();  // a copy: an answer may put another one in its place
  return answerer ? answerer(request) : AskOnTheDesktop(request);
}

PrintAnswerer SetPrintAnswerer(PrintAnswerer answerer) {
  return std::exchange(Answerer(), std::move(answerer));
}
