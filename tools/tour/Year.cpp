#include "pictures/modPictures.h"
#include "store/BookcaseFile.h"
#include "store/JournalSaving.h"
#include "store/NewJournals.h"
#include "store/PageCipher.h"
#include "tests/support/Staging.h"
#include "tools/tour/Steps.h"

namespace {

constexpr std::uint32_t Paper = 0xEAF8FF;
constexpr double SaturdayInAugust = 46249;  // 15 August 2026
constexpr std::size_t LastPage = 214;

const char* const Names[] = {
    "My Diary",       "Garden & house",    "Letters never sent", "Grandmother's recipes",
    "Dreams",         "Winter in Lisbon",  "Books I have read",  "Songs",
    "The cat, daily", "Birds of the lake", "A year of walks",    "First snow"};
constexpr std::int32_t Icons[] = {15, 25, 19, 59, 22, 49, 13, 40, 31, 35, 50, 62};

void LayPhotograph(const char* name, const char* frame, QRect place) {
  Pictures.push_back({ASSETS "/year/" + std::string(name), place.width(), place.height(), 0, "", 1,
                      ASSETS "/frames/" + std::string(frame), LastPage, Journals[1].Name,
                      Journals[1].FileName, place.top(), place.left(), False});
  ++PictureCount;
}

}  // namespace

void StageAYear() {
  for (const char* name : Names) {
    JournalCount == 0 ? MakeFirstJournal(name, "p") : MakeJournal(name);
    Journals.back().Icon = Icons[JournalCount - 1];
    Journals.back().PaperColor = Paper;
  }
  Staged().CurrentJournal = Staged().PagesJournal = 1;
  Pages.resize(LastPage + 1, {{}, SaturdayInAugust});
  PageCount = LastPage;
  const std::string text = platform::ReadFile(ASSETS "/year/page.rtf");
  std::string body(text.size() * 2, '\0');
  store::Encipher(text, PageShift, body.data());
  Pages.back().Body = body;
  SaveJournalFile(Journals[1].FileName);
  Pictures.resize(1);
  LayPhotograph("lake.jpg", "Photo corners.gif", {324, 106, 220, 165});
  LayPhotograph("meadow.jpg", "Instant photo.gif", {80, 356, 220, 165});
  SavePictureStore();
  SaveJournalIndex();
}
