// What a person waits for at the open book: opening it, turning a page, a letter on the screen.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "editor/OpenJournal.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "platform/Files.h"
#include "store/JournalFile.h"
#include "store/PageCipher.h"

namespace {

constexpr std::int32_t Shift = 55;
const char* const JournalName = "j00000.tqf";

std::string PageOf(std::size_t bytes) {
  std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}}\r\n{\\colortbl "
      ";\\red0\\green0\\blue0;}\r\n\\viewkind4\\uc1\\pard\\cf1\\f0\\fs32 ";
  while (rtf.size() + 90 < bytes)
    rtf += "The quick brown fox jumps over the lazy dog and is \\b back\\b0  before it rains.\\par\r\n";
  return rtf + "}\r\n";
}

std::string Enciphered(const std::string& rtf) {
  std::string body(2 * rtf.size(), '\0');
  store::Encipher(rtf, Shift, body.data());
  return body;
}

void OneJournal() {
  ResetState();
  Journals.resize(2);
  JournalCount = 1;
  JournalEntry& row = Journals[1];
  row.Name = "Bench";
  row.FileName = JournalName;
  row.FontName = "Verdana";
  row.FontSize = 16;
  row.PaperColor = 0xFFFFFF;
  MasterPassword = "xA";
  PageShift = Shift;
  CurrentJournal = 1;
}

// A program folder with one journal of so many pages of 3.15 KB of RTF: 10,000 of them make 63 MB.
class Diary {
 public:
  explicit Diary(std::int32_t pages, std::size_t pageBytes = 3150) {
    platform::SetProgramFolder(folder_.path().toStdString());
    OneJournal();
    const std::string body = Enciphered(PageOf(pageBytes));
    std::vector<JournalPage> rows(static_cast<std::size_t>(pages) + 1, JournalPage{body, 40000.5});
    const std::string bytes = store::EncodeJournal(rows, MasterPassword);
    std::ofstream(platform::PathOf(JournalName), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
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
    ForgetPages();
  }

 private:
  QTemporaryDir folder_;
};

void OpenJournal(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    diary.Open();
    state.PauseTiming();
    diary.Close();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenJournal)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

void TurnToAnUnchangedPage(benchmark::State& state) {
  look::The<frmJournal>();
  Diary diary(static_cast<std::int32_t>(state.range(0)));
  diary.Open();
  bool forward = false;
  for (auto _ : state) {
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
  for (auto _ : state) {
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
  for (auto _ : state) {
    QTest::keyClick(Face().txtM, Qt::Key_A);
    diary.Draw();
  }
  PageDirty = False;
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
  for (auto _ : state) {
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
