// The log is a row of sections. A section's head has a check of its own: where only the payload is damaged,
// the next section is found by the length, and where the head is, by looking for the next head that is sound.
#include "store/UnstoredLog.h"

#include <algorithm>
#include <limits>
#include <map>

#include "platform/Failure.h"
#include "state/State.h"
#include "store/BookcaseIndex.h"
#include "store/Bytes.h"

namespace store {
namespace {

constexpr std::string_view magic = "ZANDOLK UNSTORED PAGES FILE V00001";
static_assert(magic.size() == 34);

constexpr std::size_t tagSize = 4;
constexpr std::size_t checkedHeadSize = tagSize + 4 + 4;  // tag, length and check of the payload
constexpr std::size_t headSize = checkedHeadSize + 4;     // and their own check

constexpr std::string_view indexTag = "INDX";
constexpr std::string_view picturesTag = "PICS";
constexpr std::string_view pageTag = "PAGE";
constexpr std::string_view alsoTag = "ALSO";
constexpr std::string_view endTag = "DONE";

void AppendFlag(std::string& bytes, bool isSo) {
  AppendNumber(bytes, isSo ? True : False);
}
bool TakeFlag(Reader& reader, const char* field) {
  return reader.TakeNumber<Flag>(field) != False;
}

void AppendCheck(std::string& bytes, const FileCheck& check) {
  AppendNumber(bytes, check.size);
  AppendNumber(bytes, check.crc);
}
FileCheck TakeCheck(Reader& reader) {
  const auto size = reader.TakeNumber<std::uint64_t>("length before");
  return {size, reader.TakeNumber<std::uint32_t>("check of what was before")};
}

double TakeDate(Reader& reader) {
  return LoadDouble(reader.Take(8, "date").data());
}

// Appends a section whose payload `append` appends.
template <class Append>
void AppendSection(std::string& bytes, std::string_view tag, Append&& append) {
  const std::size_t head = bytes.size();
  bytes.append(headSize, '\0');
  append();
  const std::string_view payload = std::string_view(bytes).substr(head + headSize);
  if (payload.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw platform::Failure(platform::FailureKind::InvalidArgument, "a part is too long for the log");
  }
  std::string fields(tag);
  AppendNumber(fields, static_cast<std::uint32_t>(payload.size()));
  AppendNumber(fields, Crc32(payload));
  AppendNumber(fields, Crc32(fields));
  bytes.replace(head, headSize, fields);
}

void AppendFile(std::string& bytes, std::string_view tag, const std::optional<UnstoredFile>& file) {
  if (!file) return;
  AppendSection(bytes, tag, [&] {
    AppendFlag(bytes, file->began.has_value());
    AppendCheck(bytes, file->began.value_or(FileCheck()));
    bytes += file->bytes;
  });
}

UnstoredFile TakeFile(Reader& reader) {
  UnstoredFile file;
  const bool wasThere = TakeFlag(reader, "whether there was a file");
  const FileCheck began = TakeCheck(reader);
  if (wasThere) file.began = began;
  file.bytes = reader.Take(reader.left(), "bytes");
  return file;
}

void AppendPage(std::string& bytes, const std::string& fileName, const UnstoredPage& page) {
  AppendCountedString(bytes, fileName);
  AppendNumber(bytes, page.row);
  AppendFlag(bytes, page.isNew);
  AppendCheck(bytes, page.began);
  AppendDouble(bytes, page.beganDate);
  AppendDouble(bytes, page.PageDate);
  AppendFlag(bytes, page.Body.has_value());
  if (page.Body) bytes += *page.Body;
}

void AppendOnItsWay(std::string& bytes, const std::string& fileName, std::int32_t row,
                    const RowOnItsWay& onItsWay) {
  AppendCountedString(bytes, fileName);
  AppendNumber(bytes, row);
  AppendCheck(bytes, onItsWay.body);
  AppendDouble(bytes, onItsWay.PageDate);
}

UnstoredPage TakePage(Reader& reader) {
  UnstoredPage page;
  page.row = reader.TakeNumber<std::int32_t>("row");
  page.isNew = TakeFlag(reader, "whether it is new");
  page.began = TakeCheck(reader);
  page.beganDate = TakeDate(reader);
  page.PageDate = TakeDate(reader);
  if (TakeFlag(reader, "whether it has a body"))
    page.Body = reader.Take(reader.left(), "body");
  else if (reader.left() > 0)
    throw MissingField("body");
  return page;
}

void AppendPageSections(std::string& bytes, const std::string& fileName, const UnstoredPage& page) {
  AppendSection(bytes, pageTag, [&] { AppendPage(bytes, fileName, page); });
  for (const RowOnItsWay& onItsWay : page.orBegan)
    AppendSection(bytes, alsoTag, [&] { AppendOnItsWay(bytes, fileName, page.row, onItsWay); });
}

// Pages by row, of journals by file name. However many there are, each is found at once.
using PagesFound = std::map<std::string, std::map<std::int32_t, UnstoredPage>, std::less<>>;

void TakeJournalPage(Reader& reader, PagesFound& found) {
  const std::string_view fileName = reader.TakeCountedString("file name");
  if (IsAbsurdFileName(fileName)) throw MissingField("file name");
  UnstoredPage page = TakePage(reader);
  if (page.row < 0) throw MissingField("row");
  found[std::string(fileName)][page.row] = std::move(page);
}

// It stands behind its page, and says nothing without it.
void TakeOnItsWay(Reader& reader, PagesFound& found) {
  const auto journal = found.find(reader.TakeCountedString("file name"));
  const auto row = reader.TakeNumber<std::int32_t>("row");
  const FileCheck body = TakeCheck(reader);
  const double date = TakeDate(reader);
  if (journal == found.end() || !journal->second.contains(row)) return;
  journal->second[row].orBegan.push_back({body, date});
}

std::vector<UnstoredJournal> JournalsOf(PagesFound found) {
  std::vector<UnstoredJournal> journals;
  for (auto& [fileName, pages] : found) {
    journals.push_back({fileName, {}});
    for (auto& [row, page] : pages) journals.back().pages.push_back(std::move(page));
  }
  return journals;
}

const char* NameOf(std::string_view tag) {
  if (tag == indexTag) return "the bookcase";
  if (tag == picturesTag) return "the pictures";
  if (tag == pageTag || tag == alsoTag) return "a page";
  return "a part";
}

struct Section {
  std::string_view tag;
  std::size_t length = 0;
  std::uint32_t check = 0;
};

// None when no head can be there.
std::optional<Section> SectionAt(std::string_view bytes) {
  if (bytes.size() < headSize) return std::nullopt;
  const char* const head = bytes.data();
  if (Crc32(bytes.substr(0, checkedHeadSize)) != LoadNumber<std::uint32_t>(head + checkedHeadSize))
    return std::nullopt;
  return Section{bytes.substr(0, tagSize), LoadNumber<std::uint32_t>(head + tagSize),
                 LoadNumber<std::uint32_t>(head + tagSize + 4)};
}

// The sections of a log, one after the other.
class LogReader {
 public:
  explicit LogReader(std::string_view bytes) : rest_(bytes) {}

  DecodedLog Decode();

 private:
  void TakeSection(const Section& section);
  void TakePayload(std::string_view tag, std::string_view payload);
  void MarkDamaged(std::string_view problem);

  std::string_view rest_;
  bool hasEnd_ = false;
  PagesFound pages_;
  DecodedLog decoded_;
};

// The first damage is the one that is told.
void LogReader::MarkDamaged(std::string_view problem) {
  if (decoded_.health == LogHealth::Sound) decoded_.problem = problem;
  decoded_.health = LogHealth::Damaged;
}

void LogReader::TakePayload(std::string_view tag, std::string_view payload) {
  Reader reader(payload);
  UnstoredLog& log = decoded_.log;
  if (tag == indexTag) {
    log.index = TakeFile(reader);
  } else if (tag == picturesTag) {
    log.pictures = TakeFile(reader);
  } else if (tag == pageTag) {
    TakeJournalPage(reader, pages_);
  } else if (tag == alsoTag) {
    TakeOnItsWay(reader, pages_);
  } else if (tag == endTag) {
    log.when = TakeDate(reader);
    hasEnd_ = true;
  }
}

// A payload that is cut by the file's end cannot have its check.
void LogReader::TakeSection(const Section& section) {
  const std::string_view payload = rest_.substr(headSize, section.length);
  rest_.remove_prefix(headSize + payload.size());
  if (payload.size() < section.length || Crc32(payload) != section.check)
    return MarkDamaged(NameOf(section.tag));
  try {
    TakePayload(section.tag, payload);
  } catch (const MissingField& field) {
    MarkDamaged(std::string(field.what()) + " of " + NameOf(section.tag));
  }
}

DecodedLog LogReader::Decode() {
  while (!rest_.empty() && !hasEnd_) {
    if (const auto section = SectionAt(rest_)) {
      TakeSection(*section);
    } else {
      MarkDamaged("the beginning of a part");
      rest_.remove_prefix(1);
    }
  }
  if (!hasEnd_) MarkDamaged("the end");
  if (!rest_.empty()) MarkDamaged("bytes behind the end");
  decoded_.log.journals = JournalsOf(std::move(pages_));
  return std::move(decoded_);
}

}  // namespace

bool UnstoredLog::empty() const {
  const auto hasNone = [](const UnstoredJournal& journal) { return journal.pages.empty(); };
  return !index && !pictures && std::all_of(journals.begin(), journals.end(), hasNone);
}

std::string EncodeLog(const UnstoredLog& log) {
  std::string bytes(magic);
  AppendFile(bytes, indexTag, log.index);
  AppendFile(bytes, picturesTag, log.pictures);
  for (const UnstoredJournal& journal : log.journals)
    for (const UnstoredPage& page : journal.pages) AppendPageSections(bytes, journal.FileName, page);
  AppendSection(bytes, endTag, [&] { AppendDouble(bytes, log.when); });
  return bytes;
}

DecodedLog DecodeLog(std::string_view bytes) {
  if (!bytes.starts_with(magic)) return {{}, LogHealth::Alien, "first 34 bytes"};
  return LogReader(bytes.substr(magic.size())).Decode();
}

}  // namespace store
