#include "store/JournalFile.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <set>
#include <utility>

#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/TellKept.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/ReplaceFile.h"
#include "state/State.h"
#include "store/Bytes.h"
#include "store/JournalPieces.h"
#include "store/PieceReader.h"

namespace store {
namespace {

using platform::Failure;
using platform::FailureKind;

using namespace journalformat;

constexpr std::size_t smallestPage = 2 + dateSize;

// An open journal has at least its title page and page 1.
constexpr std::size_t fewestRows = 2;

// How far a count is believed that the bytes do not bear out: a page a day for 2,700 years, and still only
// 40 MB of blank rows. A larger one is noise.
constexpr std::int32_t mostPromisedPages = 1'000'000;

template <std::integral Number>
bool ReadNumber(PieceReader& reader, Number& number) {
  char raw[sizeof(Number)];
  if (!reader.Read(raw, sizeof raw)) return false;
  number = LoadNumber<Number>(raw);
  return true;
}

bool ReadLength(PieceReader& reader, std::uint32_t& length) {
  std::uint16_t shortLength = 0;
  if (!ReadNumber(reader, shortLength)) return false;
  length = shortLength;
  return shortLength != longBodyMark || ReadNumber(reader, length);
}

bool ReadPage(PieceReader& reader, JournalPage& page) {
  std::uint32_t length = 0;
  std::string body;
  char date[dateSize];
  if (!ReadLength(reader, length) || !reader.ReadText(body, length) || !reader.Read(date, dateSize)) {
    return false;
  }
  page.Body = std::move(body);
  page.PageDate = LoadDouble(date);
  return true;
}

// A file that is cut within its magic, an empty one too, is a damaged journal and holds nothing else of
// anybody's.
bool CouldBeJournal(std::string_view start) {
  return start.starts_with(magic) || magic.starts_with(start);
}

// Reads pages until there are `most` of them or the next one is not whole.
std::vector<JournalPage> ReadPages(PieceReader& reader, std::uint64_t most) {
  std::vector<JournalPage> pages;
  if (most <= mostPromisedPages) pages.reserve(std::min(most, reader.left() / smallestPage));
  while (pages.size() < most && reader.left() > 0) {
    if (!ReadPage(reader, pages.emplace_back())) {
      pages.pop_back();
      break;
    }
  }
  return pages;
}

DecodedJournal DecodePages(PieceReader& reader, std::int32_t count) {
  const bool countCanBe = count >= 1;
  const std::uint64_t most =
      countCanBe ? std::uint64_t(count) + 1 : std::uint64_t(std::numeric_limits<std::int32_t>::max()) + 1;
  DecodedJournal journal;
  journal.pages = ReadPages(reader, most);
  journal.wholePages = static_cast<std::int32_t>(journal.pages.size());
  const bool isSound = countCanBe && journal.pages.size() == most && reader.left() == 0;
  if (isSound) return journal;
  journal.health = JournalHealth::Damaged;
  const std::size_t promised = countCanBe && count <= mostPromisedPages ? most : 0;
  journal.pages.resize(std::max({journal.pages.size(), promised, fewestRows}));
  return journal;
}

// Reads in pieces, straight into the pages' own memory. `size` is the file's length in bytes, beyond which no
// count or length is believed.
DecodedJournal DecodeJournal(const ByteSource& source, std::uint64_t size) {
  PieceReader reader(source, size);
  std::array<char, headerSize> header;
  const std::string_view start(header.data(), reader.ReadUpTo(header.data(), header.size()));
  if (!CouldBeJournal(start)) return {{}, JournalHealth::Alien, 0};
  if (start.size() < headerSize) return {std::vector<JournalPage>(fewestRows), JournalHealth::Damaged, 0};
  return DecodePages(reader, LoadNumber<std::int32_t>(header.data() + countOffset));
}

bool StartsAsJournal(platform::InputFile& file) {
  std::array<char, magic.size()> start{};
  return CouldBeJournal({start.data(), file.Read(start.data(), start.size())});
}

// The count as it stands in the file; 0 when the file is no journal, or is cut before it.
std::int32_t PeekCount(const std::string& path) {
  platform::InputFile file(path);
  if (!StartsAsJournal(file)) return 0;
  std::array<char, headerSize - magic.size()> rest{};
  if (file.Read(rest.data(), rest.size()) < rest.size()) return 0;
  return LoadNumber<std::int32_t>(rest.data() + passwordBlockSize);
}

// The paths of the files that hold more than what was read from them.
std::set<std::string>& DamagedFiles() {
  static std::set<std::string> paths;
  return paths;
}

void RefuseAlienFile(const std::string& path) {
  if (!platform::FileExists(path) || IsJournal(path)) return;
  throw Failure(FailureKind::PermissionDenied, path + " (this is no journal, and is never written over)");
}

// One copy, even when the writing has to be tried again. A damaged file that another program has replaced is
// kept as the other's.
void KeepFile(const std::string& path) {
  if (platform::KeepChanged(path)) DamagedFiles().erase(path);
  if (!DamagedFiles().contains(path)) return;
  if (platform::FileExists(path)) platform::KeepDamaged(path);
  DamagedFiles().erase(path);
}

std::string Compared(std::int32_t more) {
  if (more == 0) return "as many as";
  return std::to_string(std::abs(more)) + (more > 0 ? " more than" : " fewer than");
}

std::string DescribeKept(const std::string& path) {
  const std::int32_t pages = PeekCount(path);
  if (pages < 1) return {};
  return "It has " + std::to_string(pages) + (pages == 1 ? " page, " : " pages, ") +
         Compared(pages - PageCount) +
         " the open journal. To read it, leave Thornquill and give a copy of it a name that ends in .tqf, "
         "such "
         "as other.tqf: the next start shows it as a recovered journal.";
}

}  // namespace

DecodedJournal ReadJournalFile(const std::string& fileName) {
  const std::string path = platform::PathOf(fileName);
  platform::InputFile file(path);
  const auto source = [&file](char* buffer, std::size_t size) { return file.Read(buffer, size); };
  DecodedJournal journal = DecodeJournal(source, file.size());
  file.Remember();
  if (journal.health == JournalHealth::Damaged) {
    DamagedFiles().insert(path);
  } else {
    DamagedFiles().erase(path);
  }
  return journal;
}

void WriteJournalFile(const std::string& fileName, const std::vector<JournalPage>& pages) {
  WritePieces(fileName, JournalPieces(pages, MasterPassword));
}

void WritePieces(const std::string& fileName, const JournalPieces& file) {
  KeepWhatIsThere(fileName);
  platform::ReplaceDataFile(platform::PathOf(fileName), file.pieces());
}

void KeepWhatIsThere(const std::string& fileName) {
  const std::string path = platform::PathOf(fileName);
  RefuseAlienFile(path);
  KeepFile(path);
}

void TellKeptJournal(const std::string& fileName) {
  platform::TellKept(platform::PathOf(fileName), DescribeKept);
}

bool IsJournal(const std::string& path) {
  platform::InputFile file(path);
  return StartsAsJournal(file);
}

}  // namespace store

std::string& WithFallbackName(std::string& fileName) {
  if (fileName.empty()) {
    platform::ShowMessage("error: filename blank?");
    fileName = "journal.journalfile";
  }
  return fileName;
}

std::int32_t PeekJournalPageCount(std::string& fileName) {
  const std::string path = platform::PathOf(WithFallbackName(fileName));
  if (!platform::FileExists(path)) return 0;
  PageCount = std::max(store::PeekCount(path), 0);
  return PageCount;
}
