// make_diary FOLDER PAGES [JOURNALS]: a program folder's data files, with a journal of so many pages of 3 KB
// of RTF and the password "x". Further journals have no file yet, and each its own icon.
#include <cstdio>
#include <cstdlib>

#include "bench/BigDiary.h"
#include "platform/files/Files.h"
#include "store/BookcaseFile.h"

int main(int argc, char** argv) {
  if (argc < 3) return std::fprintf(stderr, "usage: make_diary FOLDER PAGES [JOURNALS]\n"), 2;
  platform::SetProgramFolder(argv[1]);
  bench::OneJournal();
  bench::WriteJournal(std::atoi(argv[2]), 3150);
  bench::MoreJournals(argc > 3 ? std::atoi(argv[3]) : 1);
  SaveJournalIndex();
  return 0;
}
