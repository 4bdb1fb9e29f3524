#include "output/modPrint.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <malloc.h>
#include <optional>

#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>

#include "editor/PageFace.h"
#include "editor/SavingPages.h"
#include "look/Progress.h"
#include "output/JoinedPages.h"
#include "output/PrintDialog.h"
#include "output/frmPrintRTF.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/ReportFailure.h"
#include "state/State.h"

namespace {

template <class Statement>
void Guarded(Statement&& statement) {
  platform::Guarded("Error:", statement);
}

const JournalEntry& OpenEntry() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}

// The windows are alive while a long text goes to the printer, but take no commands.
class LivelyPaper : public richtext::Paper {
 public:
  LivelyPaper(richtext::Paper& paper, look::Progress& progress) : paper_(paper), progress_(progress) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  }
  ~LivelyPaper() override { QGuiApplication::restoreOverrideCursor(); }
  QPaintDevice& Device() override { return paper_.Device(); }
  QSizeF Area() const override { return paper_.Area(); }
  bool IsWhole() const override { return paper_.IsWhole(); }
  bool NextSheet() override {
    const QString printing = QStringLiteral("Printing sheet %1").arg(++sheets_);
    if (progress_.GoOn(printing, 0, 0)) return paper_.NextSheet();
    paper_.GiveUp();
    return false;
  }

 private:
  richtext::Paper& paper_;
  look::Progress& progress_;
  int sheets_ = 1;
};

// Who cancels wants no half of it.
void PrintSelectionOf(const richtext::RichTextBox& box, const PrintOrder& order, look::Progress& progress) {
  LivelyPaper lively(*order.paper, progress);
  const bool printed = box.PrintSelection(lively);
  if (progress.IsCancelled()) return order.paper->Withdraw();
  if (!printed) throw platform::Failure(platform::FailureKind::DeviceError, order.printer);
}

// The dialog's bounds and the range of all pages come from the bookcase's row, which knows the pages that the
// journal had when it was opened.
std::int32_t LastPage() {
  return std::min(OpenEntry().PageCount, PageCount);  // fewer are there if the journal's file has gone
}

PrintRequest RequestOf() {
  PrintRequest request;
  request.selection = Face().txtM->SelLength() != 0;
  request.highest = LastPage();
  request.from = request.to = CurrentPage;
  return request;
}

void SetJournalFont() {
  QFont font(platform::FromCodePage(OpenEntry().FontName));
  if (OpenEntry().FontSize > 0) font.setPointSize(OpenEntry().FontSize);
  look::The<frmPrintRTF>().txtM->setFont(font);
}

// Selects all of `text` in the journal's font. Each step of it takes its time over a long text.
void Prepare(const QString& text, richtext::RichTextBox& box, look::Progress& progress) {
  const std::function<void()> steps[] = {&SetJournalFont, [&] { box.SetText(text); },
                                         [&] { box.SetSelStart(0); },
                                         [&] { box.SetSelLength(static_cast<int>(box.Text().size())); }};
  int done = 0;
  for (const auto& step : steps) {
    if (!progress.GoOn(QStringLiteral("Preparing the pages to print"), done++, std::size(steps))) return;
    Guarded(step);
  }
}

void PrintPages(std::int32_t first, std::int32_t last, const PrintOrder& order) {
  richtext::RichTextBox& box = *look::The<frmPrintRTF>().txtM;
  look::Progress progress;
  Guarded([&] { box.SetTextRTF({}); });
  const QString joined = JoinedPages(first, last, progress);
  if (!progress.IsCancelled()) Prepare(joined, box, progress);
  if (!progress.IsCancelled()) Guarded([&] { PrintSelectionOf(box, order, progress); });
}

// Nobody sees the box, and the diary must not lie there in plain words when its journal is closed. The
// allocator would keep the words too.
void ForgetPrintedText() {
  if (!look::IsLoaded<frmPrintRTF>()) return;
  look::The<frmPrintRTF>().txtM->SetTextRTF({});
  malloc_trim(0);
}

void PrintSelection(const PrintOrder& order) {
  const richtext::RichTextBox& box = *Face().txtM;
  if (box.SelLength() == 0) {
    platform::ShowMessage(
        "No text selected -- When using the Print Selection feature, you must first select some text to "
        "print.");
    return;
  }
  look::Progress progress;
  Guarded([&] { PrintSelectionOf(box, order, progress); });
}

}  // namespace

// A cancelled dialog is no failure, and without a printer there is nothing to go on with.
void PrintJournal() {
  AwaitSaving();
  const auto forget = qScopeGuard(&ForgetPrintedText);
  std::optional<PrintOrder> order;
  Guarded([&] { order = ShowPrintDialog(RequestOf()); });
  if (!order) return;
  Guarded(SetJournalFont);
  switch (order->choice) {
    case PrintChoice::Pages:
      return PrintPages(order->from, order->to, *order);
    case PrintChoice::Selection:
      return PrintSelection(*order);
    case PrintChoice::All:
      return PrintPages(0, LastPage(), *order);
  }
}
