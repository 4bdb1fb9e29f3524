// Printing a journal: joining its pages, and the whole way to a PDF file with the memory that it takes.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QPdfWriter>

#include "editor/frmJournal.h"
#include "look/Progress.h"
#include "output/JoinedPages.h"
#include "output/PrintDialog.h"
#include "output/modPrint.h"
#include "store/PageCipher.h"
#include "tests/support/Staging.h"

namespace {

// 3 KB of RTF, as a page of a diary has.
std::string Page() {
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Verdana;}}\\f0\\fs24 ";
  for (int line = 0; line < 35; ++line)
    rtf += "The quick brown fox jumps over the lazy dog and is \\b back\\b0  before it rains.\\par\r\n";
  return rtf + "}";
}

void OneJournal(std::int32_t pages) {
  ResetState();
  JournalCount = Staged().CurrentJournal = 1;
  Journals.resize(2);
  Journals[1].FontName = "DejaVu Sans";
  Journals[1].FontSize = 12;
  Journals[1].PageCount = PageCount = pages;
  const std::string plain = Page();
  std::string body(plain.size() * 2, '\0');
  store::Encipher(plain, PageShift, body.data());
  Pages.assign(static_cast<std::size_t>(pages) + 1, JournalPage{body, 40000.5});
}

void JoinThePages(benchmark::State& state) {
  const auto pages = static_cast<std::int32_t>(state.range(0));
  OneJournal(pages);
  look::Progress progress;
  for ([[maybe_unused]] auto iteration : state) benchmark::DoNotOptimize(JoinedPages(0, pages, progress));
  state.SetComplexityN(pages);
}
BENCHMARK(JoinThePages)
    ->Arg(500)
    ->Arg(1000)
    ->Arg(2000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

class PdfPaper : public richtext::Paper {
 public:
  PdfPaper(const QString& path, int resolution) : pdf_(path) { pdf_.setResolution(resolution); }
  QPaintDevice& Device() override { return pdf_; }
  QSizeF Area() const override { return pdf_.pageLayout().paintRect(QPageLayout::Point).size(); }
  bool NextSheet() override { return ++sheets, pdf_.newPage(); }

  static inline int sheets = 0;

 private:
  QPdfWriter pdf_;
};

void PrintAllToPdf(benchmark::State& state) {
  look::The<frmJournal>();
  OneJournal(static_cast<std::int32_t>(state.range(0)));
  const QTemporaryDir folder;
  SetPrintAnswerer([&](const PrintRequest&) {
    PrintOrder order;
    order.paper = std::make_unique<PdfPaper>(folder.filePath(QStringLiteral("all.pdf")), 600);
    return order;
  });
  PdfPaper::sheets = 1;
  for ([[maybe_unused]] auto iteration : state) PrintJournal();
  SetPrintAnswerer({});
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["sheets"] = PdfPaper::sheets;
  state.counters["peak_mb"] = static_cast<double>(usage.ru_maxrss) / 1024;
}
BENCHMARK(PrintAllToPdf)->Arg(1000)->Arg(10000)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

}  // namespace
