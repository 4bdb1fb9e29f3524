// What a person waits for at the open book: opening it, turning a page, a letter on the screen.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

#include <QtTest/QTest>

#include "bench/Beside.h"
#include "bench/Diary.h"
#include "bench/Memory.h"
#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
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
