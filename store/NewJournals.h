// Creating and removing journals: rows of Journals and files of the program's folder.
#pragma once

#include <cstdint>
#include <string>

// j00000.tqf to j99999.tqf: the first name that neither a file nor a row has, removed rows included. After
// the last one a message and the empty string.
std::string FindFreeJournalFile();

// Fills row JournalCount, which the caller has made, with a new journal's values and tells JournalAdded.
void AddJournalEntry(const std::string& name);

// The first journal and the password, which also settles PageShift for good: the code of its last character.
// Throws platform::Failure (InvalidArgument), with nothing changed, when the password is empty or longer than
// MaxPasswordLength.
void MakeFirstJournal(const std::string& name, const std::string& password);
// One more row and AddJournalEntry.
void MakeJournal(const std::string& name);

// The longest password whose journal files have room for it.
inline constexpr std::size_t MaxPasswordLength = 128;
// Whether it is longer than that, which a message then tells.
bool IsPasswordTooLong(const std::string& password);

// Whether another journal of the bookcase has the same file, under the same name or one that the disk takes
// for the same.
bool IsFileShared(std::int32_t row);

// Deletes the journal's file, if it has one of its own, and marks its row. Throws platform::NotYetOnDisk when
// a power cut could bring the file back, and any other platform::Failure, with nothing changed, when it
// cannot be deleted.
void RemoveJournal(std::int32_t row);
