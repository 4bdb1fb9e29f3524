// What a person waits for at the open book: opening it, turning a page, a letter on the screen.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "app/KeptLog.h"
#include "bench/Beside.h"
#include "bench/BigDiary.h"
#include "editor/OpenJournal.h"
#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/UnstoredPages.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"
#include "store/UnstoredLog.h"
#include "tests/support/Staging.h"

namespace {

const char* const JournalName = "j00000.tqf";

// Resident memory of this process.
double MegabytesInUse() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// A program folder with one journal of so many pages of 3.15 KB of RTF: 10,000 of them make 63 MB.
class Diary {
 public:
  explicit Diary(std::int32_t pages, std::size_t pageBytes = 3150) {
    platform::SetProgramFolder(folder_.path().toStdString());
    bench::OneJournal();
    // By a child, so that what the making leaves behind in the memory is not counted to the opening.
    const pid_t child = fork();
    if (child == 0) {
      bench::WriteJournal(pages, pageBytes);
      _exit(0);
    }
    waitpid(child, nullptr, 0);
  }
  ~Diary() {
    Close();
    platform::SetProgramFolder({});
  }

  void Open() {
    LoadJournalFile(Journals[1].FileName);
    look::The<frmJournal>().ShowModeless();
    if (!QTest::qWaitForWindowExposed(&look::The<frmJournal>())) std::abort();
    Draw();
  }
  void Draw() {
    QCoreApplication::processEvents();
    look::The<frmJournal>().repaint();
  }
  void Close() {
    look::The<frmJournal>().hide();
    Face().txtM->SetTextRTF({});
    PageInHand::PagesForgotten();
  }

 private:
  QTemporaryDir folder_;
};

void OpenJournal(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  for ([[maybe_unused]] auto iteration : state) {
    diary.Open();
    state.PauseTiming();
    state.counters["resident_mb"] = MegabytesInUse();
    diary.Close();
    state.counters["closed_mb"] = MegabytesInUse();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenJournal)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

void TurnToAnUnchangedPage(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  diary.Open();
  bool forward = false;
  for ([[maybe_unused]] auto iteration : state) {
    StoreCurrentPage();
    if (forward)
      GoNextPage();
    else
      GoBackPage();
    forward = !forward;
    diary.Draw();
  }
}
BENCHMARK(TurnToAnUnchangedPage)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

// A letter typed, and then the turn or the closing, beside bare writes of as many bytes: a turn stores the
// page, and a closing stores it and then writes the file once more.
template <class Work>
void LeaveAChangedPage(benchmark::State& state, int writes, Work&& work) {
  look::The<frmJournal>();
  Diary diary(10000);
  const std::string path = platform::PathOf(JournalName);
  const std::string bytes = platform::ReadFile(path);
  const auto changed = [&] {
    if (PagesJournal == 0) diary.Open();
    QTest::keyClick(Face().txtM, Qt::Key_A);
    return bench::SecondsOf([&] { work(diary); });
  };
  bench::RunBeside(state, changed, [&] {
    double seconds = 0;
    for (int write = 0; write < writes; ++write) seconds += bench::WritePlain(path, bytes);
    return seconds;
  });
}

void TurnFromAChangedPage(benchmark::State& state) {
  LeaveAChangedPage(state, 1, [](Diary& diary) {
    StoreCurrentPage();
    CurrentPage > 0 ? GoBackPage() : GoLastPage();
    diary.Draw();
  });
}
BENCHMARK(TurnFromAChangedPage)->UseManualTime()->Unit(benchmark::kMillisecond);

void CloseAChangedJournal(benchmark::State& state) {
  LeaveAChangedPage(state, 2, [](Diary&) { look::The<frmJournal>().CloseBox(); });
}
BENCHMARK(CloseAChangedJournal)->UseManualTime()->Unit(benchmark::kMillisecond);

// Rows of a store that lie on other pages, and on the same pages of other journals.
void LayPicturesElsewhere(std::int32_t rows) {
  Pictures.assign(static_cast<std::size_t>(rows) + 1, {});
  PictureCount = rows;
  for (std::int32_t row = 1; row <= rows; ++row) {
    PagePicture& picture = Pictures[static_cast<std::size_t>(row)];
    picture.PictureFile = "/home/someone/Pictures/2010/" + std::to_string(row) + ".jpg";
    picture.JournalFile = "j00001.tqf";
    picture.PageNumber = row % 12;
  }
}

// A turn without its drawing, which walks over a store of so many rows.
void TurnBesideAStore(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(10);
  LayPicturesElsewhere(static_cast<std::int32_t>(state.range(0)));
  diary.Open();
  bool forward = false;
  for ([[maybe_unused]] auto iteration : state) {
    if (forward)
      GoNextPage();
    else
      GoBackPage();
    forward = !forward;
  }
}
BENCHMARK(TurnBesideAStore)->Arg(0)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void TypeALetter(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(1, static_cast<std::size_t>(state.range(0)));
  diary.Open();
  for ([[maybe_unused]] auto iteration : state) {
    QTest::keyClick(Face().txtM, Qt::Key_A);
    diary.Draw();
  }
  PageInHand::TextIsAsStored();
}
BENCHMARK(TypeALetter)->Arg(3000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void MustBe(bool isSo) {
  if (!isSo) std::abort();
}

std::string LogFile() {
  return platform::ReadFile(platform::PathOf("journal.tql"));
}

// A letter on a page whose log is being made and written by its thread meanwhile, beside one without a log.
// With `behindTheLook` the key has come before the window thread copied the page for it, and waits for that.
void TypeBesideTheLog(benchmark::State& state, bool behindTheLook) {
  look::The<frmJournal>();
  Diary diary(1, 100'000);
  diary.Open();
  BookcaseLoaded = true;
  const auto type = [&] {
    QTest::keyClick(Face().txtM, Qt::Key_A);
    diary.Draw();
  };
  std::string before;
  const auto logged = [&] {
    KeptLog log(false);
    MustBe(log.LookAndWait());
    type();
    const double look = bench::SecondsOf([&] { MustBe(log.Look()); });
    const double letter = bench::SecondsOf(type);
    MustBe(log.LookAndWait() && before != LogFile());
    before = LogFile();
    return behindTheLook ? look + letter : letter;
  };
  bench::RunBeside(state, logged, [&] {
    type();
    return bench::SecondsOf(type);
  });
  BookcaseLoaded = false;
  PageInHand::TextIsAsStored();
}

void TypeALetterBesideTheLog(benchmark::State& state) {
  TypeBesideTheLog(state, false);
}
BENCHMARK(TypeALetterBesideTheLog)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

void TypeALetterBehindTheLook(benchmark::State& state) {
  TypeBesideTheLog(state, true);
}
BENCHMARK(TypeALetterBehindTheLook)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

// Paragraphs of a text that is repeated.
std::string Paragraphs(int paragraphs, int pieces, const std::string& piece) {
  std::string rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Verdana;}}\\f0\\fs32 ";
  for (int paragraph = 0; paragraph < paragraphs; ++paragraph) {
    for (int i = 0; i < pieces; ++i) rtf += piece;
    rtf += "\\par\r\n";
  }
  return rtf + "}";
}

// A page of 6 KB, and three of 1 MB: as it is written, in 102,000 pieces of two looks, of a word in each
// line.
std::string PageOfKind(std::int64_t kind) {
  const std::string line = "the quick brown fox jumps over the lazy dog and is back before it rains ";
  if (kind == 0) return Paragraphs(10, 8, line);
  if (kind == 1) return Paragraphs(1800, 8, line);
  if (kind == 2) return Paragraphs(3000, 17, "\\b abcd \\b0 efgh ");
  return Paragraphs(85'000, 1, "words");
}

// What the window thread does for the log of a page, and what its thread then makes of that, up to the log's
// bytes. `first_ms` is the copy of a page that has just come, `step_ms` its longest step; `again_ms` the copy
// when a letter was typed; `whole_ms` that with the bytes.
void LogThePage(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(1);
  diary.Open();
  const std::string rtf = PageOfKind(state.range(0));
  std::vector<double> steps, firsts, agains, wholes;
  for ([[maybe_unused]] auto iteration : state) {
    Face().txtM->SetTextRTF(rtf);
    double step = 0, first = 0;
    for (bool isCopied = false; !isCopied;) {
      const double seconds = bench::SecondsOf(
          [&] { isCopied = CopyUnstoredText(QDeadlineTimer(std::chrono::milliseconds(6))); });
      step = std::max(step, seconds);
      first += seconds;
    }
    QTest::keyClick(Face().txtM, Qt::Key_A);
    UnstoredPages pages;
    const double again = bench::SecondsOf([&] { pages = PagesUnstored(); });
    std::string bytes;
    const double made = bench::SecondsOf([&] { bytes = store::EncodeLog({0, {}, {}, WithText(pages)}); });
    MustBe(bytes.size() > rtf.size());
    steps.push_back(step * 1e3);
    firsts.push_back(first * 1e3);
    agains.push_back(again * 1e3);
    wholes.push_back((again + made) * 1e3);
    state.SetIterationTime(again + made);
  }
  state.counters["step_ms"] = bench::MedianOf(steps);
  state.counters["first_ms"] = bench::MedianOf(firsts);
  state.counters["again_ms"] = bench::MedianOf(agains);
  state.counters["whole_ms"] = bench::MedianOf(wholes);
  PageInHand::TextIsAsStored();
}
BENCHMARK(LogThePage)->DenseRange(0, 3)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

// The pages of 27 years, up to the window that shows the years.
void OpenTheIndex(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(1);
  diary.Open();
  const auto pages = static_cast<double>(state.range(0));
  for (double day = 36526; Pages.size() <= static_cast<std::size_t>(pages); day += 27 * 365.25 / pages)
    Pages.push_back({{}, day});
  for ([[maybe_unused]] auto iteration : state) {
    ShowJournalIndex();
    look::The<frmIndex>().repaint();
    state.PauseTiming();
    look::Unload<frmIndex>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(OpenTheIndex)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
