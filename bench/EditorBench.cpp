// What a person waits for at the open book: opening it, turning a page, a letter on the screen.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

#include <QtTest/QTest>

#include "app/KeptLog.h"
#include "bench/Beside.h"
#include "bench/Diary.h"
#include "bench/Memory.h"
#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/SavingPages.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"
#include "tests/support/Staging.h"

namespace {

using bench::Diary;

const char* const JournalName = "j00000.tqf";

void OpenJournal(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  for ([[maybe_unused]] auto iteration : state) {
    diary.Open();
    state.PauseTiming();
    state.counters["resident_mb"] = bench::MegabytesInUse();
    diary.Close();
    state.counters["closed_mb"] = bench::MegabytesInUse();
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

// A letter typed, and then the turn, with the log as the program has it, beside a bare write of one small
// file: so long the log takes. The journal's file is waited for behind it.
void TurnFromAChangedPage(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  diary.Open();
  BookcaseLoaded = true;
  KeptLog log(false);
  const std::string path = platform::PathOf("small"), page(2 * 3150, 'q');
  const auto turned = [&] {
    QTest::keyClick(Face().txtM, Qt::Key_A);
    const double seconds = bench::SecondsOf([&] {
      StoreCurrentPage();
      CurrentPage > 0 ? GoBackPage() : GoLastPage();
      diary.Draw();
    });
    AwaitSaving();
    if (PagesUnsaved || !log.LookAndWait()) std::abort();
    return seconds;
  };
  bench::RunBeside(state, turned, [&] { return bench::WritePlain(path, page); });
  BookcaseLoaded = false;
}
BENCHMARK(TurnFromAChangedPage)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A letter typed, and then the closing, beside a bare write of as many bytes.
void CloseAChangedJournal(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(10000);
  const std::string path = platform::PathOf(JournalName);
  const std::string bytes = platform::ReadFile(path);
  const auto closed = [&] {
    diary.Open();
    QTest::keyClick(Face().txtM, Qt::Key_A);
    return bench::SecondsOf([&] { look::The<frmJournal>().CloseBox(); });
  };
  bench::RunBeside(state, closed, [&] { return bench::WritePlain(path, bytes); });
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
