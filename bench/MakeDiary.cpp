// make_diary FOLDER PAGES [JOURNALS [PAGE PHOTO...]]: a program folder's data files, with a journal of so
// many pages of 3 KB of RTF and the password "x". Further journals have no file yet, and each its own icon.
// The photographs, of 4000 by 3000 pixels, lie on that page at 10 % of the dialog.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "bench/BigDiary.h"
#include "platform/files/Files.h"
#include "store/BookcaseFile.h"
#include "store/PictureStore.h"

namespace {

// One a little below the other.
void LayPhotographs(const std::string& folder, std::int32_t page, const std::vector<std::string>& paths) {
  std::vector<PagePicture> rows(1);
  for (const std::string& path : paths) {
    PagePicture& row = rows.emplace_back();
    row.PictureFile = path;
    row.PictureWidth = 706;
    row.PictureHeight = 529;
    row.JournalFile = Journals.at(1).FileName;
    row.PageNumber = page;
    row.Top = row.Left = 40 * static_cast<std::int32_t>(rows.size() - 1);
  }
  const std::string bytes = store::EncodePictureStore(rows);
  std::ofstream(folder + "/tqpics.bin", std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return std::fprintf(stderr, "usage: make_diary FOLDER PAGES [JOURNALS]\n"), 2;
  platform::SetProgramFolder(argv[1]);
  bench::OneJournal();
  bench::WriteJournal(std::atoi(argv[2]), 3150);
  bench::MoreJournals(argc > 3 ? std::atoi(argv[3]) : 1);
  SaveJournalIndex();
  if (argc > 4) LayPhotographs(argv[1], std::atoi(argv[4]), {argv + 5, argv + argc});
  return 0;
}
