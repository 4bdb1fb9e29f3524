#include "output/JoinedPages.h"

#include "editor/PagePasses.h"
#include "look/Progress.h"
#include "output/frmPrintRTF.h"
#include "platform/Dates.h"
#include "platform/dialogs/ReportFailure.h"
#include "state/State.h"

namespace {

const QString LineEnd = QStringLiteral("\r\n");

// A page is deciphered twice, and the first text is not used: over a long one the wait window comes twice.
void LoadPage(richtext::RichTextBox& box, std::int32_t page) {
  GetPlainPage(page);
  box.SetTextRTF(GetPlainPage(page));
}

QString DateLine(std::int32_t page) {
  if (page == 0) return {};
  return platform::LongDate(Pages.at(static_cast<std::size_t>(page)).PageDate) + LineEnd;
}

}  // namespace

QString JoinedPages(std::int32_t first, std::int32_t last, look::Progress& progress) {
  richtext::RichTextBox& box = *look::The<frmPrintRTF>().txtM;
  const auto guarded = [](auto&& statement) { platform::Guarded("Error:", statement); };
  const QString reading = QStringLiteral("Reading the pages to print");
  QString joined;
  for (std::int32_t page = first; page <= last && progress.GoOn(reading, page - first, last - first + 1);
       ++page) {
    guarded([&] { LoadPage(box, page); });
    guarded([&] { joined += DateLine(page); });
    guarded([&] { joined += box.Text().remove(QChar::ObjectReplacementCharacter) + LineEnd; });
  }
  return joined;
}
