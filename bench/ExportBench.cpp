// An export: whole pages through the text box, and the writing of lines beside its floor.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QtCore/QTemporaryDir>

#include "bench/Beside.h"
#include "editor/OpenJournal.h"
#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "output/ExportDisplay.h"
#include "output/ExportSettings.h"
#include "output/HtmlSections.h"
#include "output/ReplaceText.h"
#include "output/modExport.h"
#include "platform/files/Files.h"
#include "richtext/box/RichTextBox.h"
#include "store/JournalFile.h"
#include "store/PageCipher.h"
#include "tests/support/Staging.h"

namespace {

constexpr std::int32_t Shift = 55;
const std::string Line = "The quick brown fox jumps over the lazy dog and is back before it rains.";

std::string PageOf(std::size_t textBytes) {
  std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil Verdana;}}\\f0\\fs32 ";
  for (std::size_t size = 0; size < textBytes; size += Line.size()) rtf += Line + "\\par\r\n";
  return rtf + "}\r\n";
}

// A program folder, and a journal of so many pages with 5 KB of text each.
class Diary {
 public:
  explicit Diary(std::int32_t pages) {
    platform::SetProgramFolder(folder_.path().toStdString());
    ResetState();
    Journals.resize(2);
    Journals[1].Name = "Bench";
    Journals[1].FileName = "j00000.tqf";
    Journals[1].FontName = "Verdana";
    Journals[1].FontSize = 16;
    PageShift = Shift;
    Staged().CurrentJournal = 1;
    const std::string rtf = PageOf(5000);
    std::string body(2 * rtf.size(), '\0');
    store::Encipher(rtf, Shift, body.data());
    const std::vector<JournalPage> rows(static_cast<std::size_t>(pages) + 1, JournalPage{body, 40000.5});
    MasterPassword = "xA";
    store::WriteJournalFile(Journals[1].FileName, rows);
    look::The<frmJournal>();
    LoadJournalFile(Journals[1].FileName);
    EnsureExportFolder();
    settings.pageCount = ExportedPageCount();
  }
  ~Diary() {
    Face().txtM->SetTextRTF({});
    PageInHand::PagesForgotten();
    platform::SetProgramFolder({});
  }
  // A fresh file in the folder.
  std::string FreshFile(const char* name) const {
    std::string path = platform::PathOf(name);
    platform::DeleteFile(path);
    return path;
  }

  ExportSettings settings;

 private:
  QTemporaryDir folder_;
};

class NoDisplay : public ExportDisplay {
  void HideResult() override {}
  void ShowStart(std::int32_t) override {}
  void ShowStep(std::int32_t) override {}
  void ShowResult(const std::string&) override {}
};

void Export(benchmark::State& state) {
  Diary diary(1000);
  NoDisplay display;
  diary.settings.showDates = diary.settings.showPageNumbers = true;
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    platform::DeleteFile(platform::PathOf("export") + "/Bench.html");
    platform::DeleteFile(platform::PathOf("export") + "/j00000/index.html");
    state.ResumeTiming();
    state.range(0) == 0 ? ExportSinglePage(diary.settings, display)
                        : ExportMultiPage(diary.settings, display);
  }
  state.counters["pages"] =
      benchmark::Counter(1000.0 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(Export)->ArgName("multi")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void WriteLines(benchmark::State& state) {
  constexpr int count = 20000;
  const Diary diary(1);
  const auto work = [&] {
    const std::string path = diary.FreshFile("work");
    return bench::SecondsOf([&] {
      for (int i = 0; i < count; ++i) WriteHtmlLine(Line, path);
    });
  };
  const auto floor = [&] {
    const std::string path = diary.FreshFile("floor");
    const std::string bytes = Line + "\r\n";
    return bench::SecondsOf([&] {
      for (int i = 0; i < count; ++i) {
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
        benchmark::DoNotOptimize(write(file, bytes.data(), bytes.size()));
        close(file);
      }
    });
  };
  bench::RunBeside(state, work, floor);
}
BENCHMARK(WriteLines)->UseManualTime()->Unit(benchmark::kMillisecond);

// Both grow with the pages alone: the time for each page stays the same.
void LinksOfAllPages(benchmark::State& state) {
  const auto pages = static_cast<std::int32_t>(state.range(0));
  Diary diary(pages);
  for ([[maybe_unused]] auto iteration : state) {
    const std::string path = diary.FreshFile("links");
    WriteHtmlDateIndex(path, diary.settings);
    for (std::int32_t page = 0; page <= pages; ++page) WriteHtmlMenuBar(page, path, diary.settings);
  }
  state.counters["pages"] =
      benchmark::Counter(static_cast<double>(pages * state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(LinksOfAllPages)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

// cppcheck-suppress constParameterCallback  ; every benchmark has this signature
void ReplaceLineEndsInAMegabyte(benchmark::State& state) {
  std::string text;
  while (text.size() < 1 << 20) text += "a line\r\n";
  for ([[maybe_unused]] auto iteration : state) benchmark::DoNotOptimize(ReplaceText(text, "\r\n", "<BR>"));
}
BENCHMARK(ReplaceLineEndsInAMegabyte)->Unit(benchmark::kMillisecond);

}  // namespace
