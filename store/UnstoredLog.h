// The log of what is not stored, journal.tql: its bytes to a value and back. docs/file-formats.md shows the
// layout.
//
// What stands only in memory goes into this one file, so that the next start can bring it to the files it
// belongs to. Each part tells what it began from: where a file holds something else by then, somebody else
// wrote there, and the part is not to go over it. Bodies are enciphered and names and passwords scrambled, as
// in the other files; there is no key here but the one that the bytes of the index hold.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/FileCheck.h"

namespace store {

// What a row is in its file when what is on its way to the disk has got there.
struct RowOnItsWay {
  FileCheck body;
  double PageDate = 0;  // days since 30 December 1899

  bool operator==(const RowOnItsWay&) const = default;
};

// A row of Pages that its file does not have so.
struct UnstoredPage {
  std::int32_t row = 0;                // not negative; 0 is the title page
  bool isNew = false;                  // the file has no such row
  FileCheck began;                     // the body in the file; of an empty text when the row is new
  double beganDate = 0;                // the date in the file; 0 when the row is new
  double PageDate = 0;                 // days since 30 December 1899
  std::optional<std::string> Body;     // enciphered; none where only the date differs
  std::vector<RowOnItsWay> orBegan{};  // what the file may hold by now, and the page begins from as well

  bool operator==(const UnstoredPage&) const = default;
};

struct UnstoredJournal {
  std::string FileName;  // as the index has it
  std::vector<UnstoredPage> pages;

  bool operator==(const UnstoredJournal&) const = default;
};

// A file that is written whole: journal.tqt or tqpics.bin.
struct UnstoredFile {
  std::optional<FileCheck> began;  // what lies on the disk; none where there is no file
  std::string bytes;               // what is to be written

  bool operator==(const UnstoredFile&) const = default;
};

struct UnstoredLog {
  double when = 0;  // days since 30 December 1899
  std::optional<UnstoredFile> index;
  std::optional<UnstoredFile> pictures;
  std::vector<UnstoredJournal> journals;  // none twice

  // Whether everything is stored, so that no log is needed. A journal without pages has nothing unstored.
  bool empty() const;
  bool operator==(const UnstoredLog&) const = default;
};

// Throws platform::Failure (InvalidArgument) when a part is too long for its 32-bit length, or a FileName for
// its 16 bits. Journals without pages are left out.
std::string EncodeLog(const UnstoredLog& log);

enum class LogHealth {
  Sound,
  Damaged,  // the parts whose check does not hold are left out; the others are in the value
  Alien,    // not a log, or one of a later kind: nothing is in the value
};

struct DecodedLog {
  UnstoredLog log;
  LogHealth health = LogHealth::Sound;
  std::string problem;  // the plain name of the first thing that could not be read; empty when sound
};

// A page of an absurd FileName (store/BookcaseIndex.h) or a negative row counts as damaged. Of a part that is
// there twice, the later one counts. Journals come in the order of their names, pages in that of their rows.
DecodedLog DecodeLog(std::string_view bytes);

}  // namespace store
