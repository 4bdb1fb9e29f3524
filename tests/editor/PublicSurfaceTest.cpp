// The window's public operations, which nothing in the program calls: the toolbar's ways, but the page is not
// stored first. CloseBook writes the file without the text that is still in the box.
#include "editor/frmCal.h"
#include "editor/frmIndex.h"
#include "tests/editor/OpenBook.h"

namespace {

using PublicSurface = fixture::OpenBook;

TEST_F(PublicSurface, EachOperationDoesItsWorkAndStoresNothing) {
  std::string asked;
  QObject::connect(&window(), &frmJournal::OptionsRequested, [&] { asked += "options "; });
  QObject::connect(&window(), &frmJournal::JournalPropertiesRequested, [&] { asked += "properties "; });
  chooser.file.reset();
  const struct {
    void (frmJournal::*operation)();
    std::int32_t page;
    const char* shown;
  } cases[] = {{&frmJournal::PageBack, 1, "Page 1: one"},
               {&frmJournal::PageFirst, 0, "Title Page: cover"},
               {&frmJournal::PageLast, 3, "Page 3: three"},
               {&frmJournal::PageNext, 3, "Page 3: three"},
               {&frmJournal::PageNew, 4, "Page 4: "},
               {&frmJournal::OpenIndex, 2, "Page 2: typed two"},
               {&frmJournal::OpenCalendar, 2, "Page 2: typed two"},
               {&frmJournal::InsertPicture, 2, "Page 2: typed two"},
               {&frmJournal::OpenOptions, 2, "Page 2: typed two"},
               {&frmJournal::OpenJournalProperties, 2, "Page 2: typed two"},
               {&frmJournal::CloseBook, 2, "Page 2: typed two"}};
  int number = 0;
  for (const auto& [operation, page, shown] : cases) {
    SCOPED_TRACE(++number);
    const std::int32_t row = AddJournal({"cover", "one", "two", "three"});
    Open(row);
    GoFirstPage();
    GoNextPage();
    GoNextPage();
    text().SetSelStart(0);
    Type("typed ");
    answers.yes = 1;
    QTimer::singleShot(0, &window(), [&asked] {
      if (!look::IsLoaded<frmCal>()) return;
      asked += "day " + std::to_string(look::The<frmCal>().Cal1->Value()) + " ";
      look::The<frmCal>().CloseBox();
    });
    (window().*operation)();
    EXPECT_EQ(CurrentPage, page);
    EXPECT_TRUE(Shown().ends_with(shown)) << Shown();
    EXPECT_EQ(TextsIn(row), (fixture::Texts{"cover", "one", "two", "three"}));
    EXPECT_EQ(window().isVisible(), operation != &frmJournal::CloseBook);
    EXPECT_EQ(look::IsLoaded<frmIndex>(), operation == &frmJournal::OpenIndex);
    look::Unload<frmIndex>();
  }
  EXPECT_EQ(asked, "day 40002.000000 options properties ");
  EXPECT_EQ(chooser.asked.size(), 1U);
}

}  // namespace
