#include "store/BookcaseIndex.h"

#include <algorithm>
#include <array>

#include "store/Bytes.h"

namespace store {
namespace {

constexpr std::string_view magic = "ZANDOLK JOURNAL INDEX FILE V00003";
static_assert(magic.size() == 33);

// The longest name that a folder can hold. A longer one could be written, but never saved to.
constexpr std::size_t longestFileName = 255;

// Each fault of a scrambled text costs its reader a message box. What has more of them than a person would
// click away is noise and no text.
constexpr std::size_t mostFaults = 8;

bool IsNoise(std::string_view scrambled) {
  std::size_t faults = scrambled.size() % 2;
  for (std::size_t i = 1; i < scrambled.size(); i += 2)
    faults += static_cast<unsigned char>(scrambled[i]) < 4;
  return faults > mostFaults;
}

// A name of an odd length as long as the length field allows grows beyond it when it is scrambled again.
bool IsAbsurd(const JournalEntry& entry) {
  return IsAbsurdFileName(entry.FileName) || entry.Name.size() == LongestCountedString || IsNoise(entry.Name);
}

JournalEntry TakeRecord(Reader& reader) {
  JournalEntry entry;
  entry.Name = reader.TakeCountedString("name");
  entry.Reserved = reader.TakeCountedString("reserved text");
  entry.PageCount = reader.TakeNumber<std::int32_t>("page count");
  entry.FileName = reader.TakeCountedString("file name");
  entry.Deleted = reader.TakeNumber<Flag>("removed flag");
  entry.Icon = reader.TakeNumber<std::int32_t>("icon");
  entry.FontName = reader.TakeCountedString("font name");
  entry.FontColor = reader.TakeNumber<std::uint32_t>("font colour");
  entry.FontSize = reader.TakeNumber<std::int32_t>("font size");
  entry.FontBold = reader.TakeNumber<Flag>("bold flag");
  entry.FontItalic = reader.TakeNumber<Flag>("italic flag");
  entry.FontUnderline = reader.TakeNumber<Flag>("underline flag");
  entry.FontStrikethru = reader.TakeNumber<Flag>("strikethrough flag");
  entry.PaperColor = reader.TakeNumber<std::uint32_t>("paper colour");
  return entry;
}

void AppendRecord(std::string& bytes, const JournalEntry& entry) {
  AppendCountedString(bytes, entry.Name);
  AppendCountedString(bytes, entry.Reserved);
  AppendNumber(bytes, entry.PageCount);
  AppendCountedString(bytes, entry.FileName);
  AppendNumber(bytes, entry.Deleted);
  AppendNumber(bytes, entry.Icon);
  AppendCountedString(bytes, entry.FontName);
  AppendNumber(bytes, entry.FontColor);
  AppendNumber(bytes, entry.FontSize);
  AppendNumber(bytes, entry.FontBold);
  AppendNumber(bytes, entry.FontItalic);
  AppendNumber(bytes, entry.FontUnderline);
  AppendNumber(bytes, entry.FontStrikethru);
  AppendNumber(bytes, entry.PaperColor);
}

// Returns the number of records that follow; throws MissingField when a field is not there or cannot be.
std::int32_t TakeHeader(Reader& reader, BookcaseIndex& index) {
  reader.Take(magic.size(), "first 33 bytes");
  const auto count = reader.TakeNumber<std::int32_t>("number of journals");
  if (count < 0) throw MissingField("number of journals");
  const auto length = reader.TakeNumber<std::int32_t>("length of the password");
  if (length < 0) throw MissingField("length of the password");
  index.masterPassword = reader.Take(static_cast<std::size_t>(length), "password");
  if (IsNoise(index.masterPassword)) throw MissingField("password");
  index.pageShift = reader.TakeNumber<std::int32_t>("key of the pages");
  if (index.pageShift < 0 || index.pageShift > 255) throw MissingField("key of the pages");
  return count;
}

// The first damage is the one that is told.
void MarkDamaged(DecodedBookcaseIndex& decoded, const std::string& problem) {
  if (decoded.health == BookcaseIndexHealth::Sound) decoded.problem = problem;
  decoded.health = BookcaseIndexHealth::Damaged;
}

void TakeRecords(Reader& reader, std::int32_t count, DecodedBookcaseIndex& decoded) {
  for (std::int32_t i = 1; i <= count; ++i) {
    const std::string which = " of journal " + std::to_string(i);
    try {
      JournalEntry entry = TakeRecord(reader);
      if (IsAbsurd(entry)) {
        MarkDamaged(decoded, (IsAbsurdFileName(entry.FileName) ? "file name" : "name") + which);
      } else {
        decoded.index.journals.push_back(std::move(entry));
      }
    } catch (const MissingField& field) {
      return MarkDamaged(decoded, field.what() + which);
    }
  }
  if (reader.left() > 0) MarkDamaged(decoded, "bytes behind the last journal");
}

}  // namespace

bool IsAbsurdFileName(std::string_view name) {
  constexpr std::array<std::string_view, 10> taken = {
      ".",          "..",        "journal.tqt", "journal.tql",    "journal.ini",
      "tqpics.bin", "jpics.bin", "thornquill",  "THORNQUILL.HLP", "LICENSE"};
  return name.size() > longestFileName ||
         name.find_first_of(std::string_view("/\\\0", 3)) != std::string_view::npos ||
         name.ends_with(".damaged") || name.ends_with(".other") ||
         std::find(taken.begin(), taken.end(), name) != taken.end();
}

DecodedBookcaseIndex DecodeBookcaseIndex(std::string_view bytes) {
  DecodedBookcaseIndex decoded;
  Reader reader(bytes);
  try {
    TakeRecords(reader, TakeHeader(reader, decoded.index), decoded);
  } catch (const MissingField& field) {
    decoded = {{}, BookcaseIndexHealth::Headless, field.what()};
  }
  return decoded;
}

std::string EncodeBookcaseIndex(const BookcaseIndex& index) {
  std::string bytes(magic);
  AppendNumber(bytes, static_cast<std::int32_t>(index.journals.size()));
  AppendNumber(bytes, static_cast<std::int32_t>(index.masterPassword.size()));
  bytes += index.masterPassword;
  AppendNumber(bytes, index.pageShift);
  for (const JournalEntry& entry : index.journals) AppendRecord(bytes, entry);
  return bytes;
}

}  // namespace store
