// The index file, journal.tqt: its bytes to a value and back. docs/file-formats.md shows the layout.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "state/State.h"

namespace store {

struct BookcaseIndex {
  std::string masterPassword;          // scrambled
  std::int32_t pageShift = 0;          // 0 to 255
  std::vector<JournalEntry> journals;  // the records in file order; Name as the file holds it, scrambled
};

enum class BookcaseIndexHealth {
  Sound,
  Damaged,   // records are cut or absurd, or bytes are left over: the whole ones are in the value
  Headless,  // count, password or shift are not there or cannot be: nothing is in the value
};

struct DecodedBookcaseIndex {
  BookcaseIndex index;
  BookcaseIndexHealth health = BookcaseIndexHealth::Sound;
  std::string problem;  // the plain name of what could not be read; empty when sound
};

// Whether no journal's file can have the name: it leads out of the program's folder, to a file there that is
// something else, or to none that a folder can hold. It has a path separator or a NUL, ends in ".damaged", is
// ".", "..", or the name of another file of the program, or has more than 255 bytes.
bool IsAbsurdFileName(std::string_view name);

// The first 33 bytes are not looked at. A record that cannot be is left out: an absurd FileName, or a Name
// that is noise.
DecodedBookcaseIndex DecodeBookcaseIndex(std::string_view bytes);

// Writes the records as they are given; Name goes out as it stands. Throws platform::Failure
// (InvalidArgument) when a text is too long for its 16-bit length.
std::string EncodeBookcaseIndex(const BookcaseIndex& index);

}  // namespace store
