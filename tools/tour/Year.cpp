#include "pictures/modPictures.h"
#include "platform/Files.h"
#include "state/State.h"
#include "store/JournalFile.h"
#include "store/JournalIndex.h"
#include "store/NewJournals.h"
#include "store/PageCipher.h"
#include "tools/tour/Steps.h"

namespace {

constexpr std::uint32_t Paper = 0xEAF8FF;
constexpr double SaturdayInAugust = 46249;  // 15 August 2026
constexpr std::size_t LastPage = 214;

struct Volume {
  const char* name;
  std::int32_t icon;
};

constexpr Volume Volumes[] = {{"My Diary", 15},
                              {"Garden & house", 25},
                              {"Letters never sent", 19},
                              {"Grandmother's recipes", 59},
                              {"Dreams", 22},
                              {"Winter in Lisbon", 49},
                              {"Books I have read", 13},
                              {"Songs", 40},
                              {"The cat, daily", 31},
                              {"Birds of the lake", 35},
                              {"A year of walks", 50},
                              {"First snow", 62}};

void LayPhotograph(const char* name, const char* frame, QRect place) {
  Pictures.push_back({ASSETS "/year/" + std::string(name), place.width(), place.height(), 0, "", 1,
                      ASSETS "/frames/" + std::string(frame), LastPage, Journals[1].Name,
                      Journals[1].FileName, place.top(), place.left(), False});
  ++PictureCount;
}

}  // namespace

void StageAYear() {
  MakeFirstJournal(Volumes[0].name, "p");
  for (const Volume& volume : Volumes) {
    if (&volume != Volumes) MakeJournal(volume.name);
    Journals.back().Icon = volume.icon;
    Journals.back().PaperColor = Paper;
  }
  CurrentJournal = PagesJournal = 1;
  Pages.resize(LastPage + 1, {"", SaturdayInAugust});
  PageCount = LastPage;
  const std::string text = platform::ReadFile(ASSETS "/year/page.rtf");
  Pages.back().Body.resize(text.size() * 2);
  store::Encipher(text, PageShift, Pages.back().Body.data());
  SaveJournalFile(Journals[1].FileName);
  Pictures.resize(1);
  LayPhotograph("lake.jpg", "Photo corners.gif", {330, 105, 220, 165});
  LayPhotograph("meadow.jpg", "Instant photo.gif", {80, 341, 220, 165});
  SavePictureStore();
  SaveJournalIndex();
}
