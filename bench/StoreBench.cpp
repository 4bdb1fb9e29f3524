// The pages on their way between the disk and the text box. Each work runs in turn with its floor, the
// plainest program that moves the same bytes.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "bench/Beside.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/LogWriter.h"
#include "store/JournalFile.h"
#include "store/JournalSaving.h"
#include "store/PageCipher.h"
#include "store/Scrambler.h"
#include "store/UnstoredLog.h"
#include "tests/support/Staging.h"

namespace {

constexpr std::size_t megabyte = 1 << 20;
constexpr std::int32_t shift = 65;
const char* const fileName = "j00000.tqf";

using bench::RunBeside;
using bench::SecondsOf;

// Copying as many bytes as the body has.
double CopyBody(const std::string& from, std::string& to) {
  return SecondsOf([&] {
    std::memcpy(to.data(), from.data(), from.size());
    benchmark::ClobberMemory();
  });
}

void DecipherBody(benchmark::State& state) {
  const std::string body(megabyte, 'q');
  std::string copy(megabyte, '\0');
  std::string plain(megabyte / 2, '\0');
  const auto work = [&] {
    return SecondsOf([&] {
      store::Decipher(body, shift, plain.data());
      benchmark::ClobberMemory();
    });
  };
  RunBeside(state, work, [&] { return CopyBody(body, copy); });
}
BENCHMARK(DecipherBody)->UseManualTime()->MinTime(1);

void EncipherText(benchmark::State& state) {
  const std::string plain(megabyte / 2, 'q');
  std::string body(megabyte, '\0');
  std::string copy(megabyte, '\0');
  const auto work = [&] {
    return SecondsOf([&] {
      store::Encipher(plain, shift, body.data());
      benchmark::ClobberMemory();
    });
  };
  RunBeside(state, work, [&] { return CopyBody(body, copy); });
}
BENCHMARK(EncipherText)->UseManualTime()->MinTime(1);

// A program folder with one journal, open.
class OpenJournal {
 public:
  OpenJournal(std::int32_t pageCount, std::size_t bodySize) {
    char name[] = "/tmp/thornquill-bench-XXXXXX";
    if (mkdtemp(name) == nullptr) std::abort();
    platform::SetProgramFolder(name);
    MasterPassword = ScrambleText("a password");
    Journals.assign(2, {});
    JournalCount = Staged().PagesJournal = Staged().CurrentJournal = 1;
    Journals[1].FileName = fileName;
    Pages.assign(static_cast<std::size_t>(pageCount) + 1, {std::string(bodySize, 'q'), 45000.5});
    PageCount = pageCount;
    SaveJournalFile(fileName);
    bytes = platform::ReadFile(Path());
  }
  ~OpenJournal() {
    ResetState();
    std::filesystem::remove_all(platform::ProgramFolder());
    platform::SetProgramFolder({});
  }
  OpenJournal(const OpenJournal&) = delete;
  OpenJournal& operator=(const OpenJournal&) = delete;

  static std::string Path() { return platform::PathOf(fileName); }

  std::string bytes;  // what the file holds
};

void MustBe(bool holds) {
  if (!holds) std::abort();
}

// The file's bytes into fresh memory, a page at a time.
double ReadPlain(std::size_t pageSize) {
  std::vector<std::unique_ptr<char[]>> pieces;
  return SecondsOf([&] {
    const int descriptor = open(OpenJournal::Path().c_str(), O_RDONLY);
    for (;;) {
      pieces.push_back(std::make_unique_for_overwrite<char[]>(pageSize));
      if (read(descriptor, pieces.back().get(), pageSize) <= 0) break;
    }
    close(descriptor);
  });
}

constexpr std::int32_t manyPages = 9999;    // and the title page
constexpr std::size_t manyBodySize = 6290;  // 63 MB in all

void ReadManyPages(benchmark::State& state) {
  const OpenJournal journal(manyPages, manyBodySize);
  PageInHand::PagesForgotten();
  const auto work = [] {
    store::DecodedJournal decoded;
    const double seconds = SecondsOf([&] { decoded = store::ReadJournalFile(fileName); });
    MustBe(decoded.health == store::JournalHealth::Sound);
    return seconds;
  };
  RunBeside(state, work, [] { return ReadPlain(manyBodySize + 10); });
}
BENCHMARK(ReadManyPages)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2);

void SaveManyPages(benchmark::State& state) {
  const OpenJournal journal(manyPages, manyBodySize);
  const auto work = [] { return SecondsOf([] { SaveJournalFile(fileName); }); };
  RunBeside(state, work, [&] { return bench::WritePlain(OpenJournal::Path(), journal.bytes); });
}
BENCHMARK(SaveManyPages)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(4);

// What the turn of a changed page costs: 3 KB of text enciphered, and a year's journal saved.
void TurnChangedPage(benchmark::State& state) {
  const OpenJournal journal(364, 6290);
  const std::string text(std::size_t{3} * 1024, 'q');
  const auto work = [&] {
    return SecondsOf([&] {
      std::string body(2 * text.size(), '\0');
      store::Encipher(text, shift, body.data());
      Pages[200].Body = std::move(body);
      SaveJournalFile(fileName);
    });
  };
  RunBeside(state, work, [&] { return bench::WritePlain(OpenJournal::Path(), journal.bytes); });
}
BENCHMARK(TurnChangedPage)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2);

// What keeps a page that is not left yet from a kill: a log with its body, brought to the disk.
void LogAPage(benchmark::State& state) {
  const OpenJournal journal(1, 0);
  const std::string path = platform::PathOf("journal.tql");
  const std::string body(static_cast<std::size_t>(state.range(0)), 'q');
  platform::LogWriter writer(path, [](const auto&) {});
  const auto log = [&] {
    return store::EncodeLog({45000.5, {}, {}, {{fileName, {{1, false, {}, 1, 2, body}}}}});
  };
  const auto work = [&] {
    return SecondsOf([&] {
      writer.Put(log());
      MustBe(writer.Wait());
    });
  };
  RunBeside(state, work, [&, bytes = log()] { return bench::WritePlain(path, bytes); });
}
BENCHMARK(LogAPage)->Arg(6 << 10)->Arg(1 << 20)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

void CheckTwoMegabytes(benchmark::State& state) {
  const std::string bytes(2 * megabyte, 'q');
  for ([[maybe_unused]] auto iteration : state) benchmark::DoNotOptimize(store::CheckOf(bytes));
}
BENCHMARK(CheckTwoMegabytes)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
