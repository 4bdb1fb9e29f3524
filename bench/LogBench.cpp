// What a person who types waits for on behalf of the log, and what the log's thread does.
#include <benchmark/benchmark.h>
#include <cstdlib>

#include <QtTest/QTest>

#include "app/KeptLog.h"
#include "bench/Beside.h"
#include "bench/Diary.h"
#include "editor/UnstoredPages.h"
#include "platform/files/InputFile.h"
#include "state/State.h"
#include "store/UnstoredLog.h"

namespace {

using bench::Diary;

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

}  // namespace
