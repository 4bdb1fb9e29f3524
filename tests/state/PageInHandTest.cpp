#include <type_traits>

#include "tests/support/Fixtures.h"

namespace {

template <class... Told>
constexpr bool AreReadOnly = (!std::is_assignable_v<Told, std::remove_cvref_t<Told>> && ...);
static_assert(AreReadOnly<decltype((CurrentJournal)), decltype((PagesJournal)), decltype((CurrentPage)),
                          decltype((TextPage)), decltype((PageDirty)), decltype((PagesUnsaved))>);

class InHand : public fixture::Desk {
 protected:
  InHand() { Journals.resize(3); }
  // Journal 1 of two pages, the second of which is on show and changed, and is being saved.
  void Fill() {
    PageInHand::JournalChosen(1);
    Pages.resize(2);
    PageCount = 1;
    PageInHand::PagesRead();
    PageInHand::TurnedTo(1);
    PageInHand::TextIsIn();
    PageInHand::TextChanged();
    PageInHand::SaveBegins();
  }
  static auto Six() {
    return std::tuple(int(CurrentJournal), int(PagesJournal), int(CurrentPage), int(TextPage),
                      PageDirty != False, bool(PagesUnsaved));
  }
};

TEST_F(InHand, HoldsAJournalsPagesUntilTheyAreForgotten) {
  Fill();
  EXPECT_EQ(Six(), std::tuple(1, 1, 1, 1, true, true));
  PageInHand::TurnedTo(0);
  PageInHand::JournalChosen(2);
  EXPECT_EQ(Six(), std::tuple(2, 1, 0, 1, true, true)) << "the text is still page 1 of journal 1";
  PageInHand::PagesForgotten();
  EXPECT_EQ(Six(), std::tuple(2, 0, 0, -1, false, false));
  EXPECT_TRUE(Pages.empty() && PageCount == 0);
}

TEST_F(InHand, TakesNoStepOutOfOrder) {
  EXPECT_DEATH(PageInHand::PagesRead(), "PagesRead") << "nothing was read";
  EXPECT_DEATH(PageInHand::TextIsIn(), "TextIsIn") << "there is no page";
  EXPECT_DEATH(PageInHand::SaveBegins(), "SaveBegins") << "the pages are nobody's";
  EXPECT_DEATH(PageInHand::PagesSaved(), "PagesSaved") << "no save has begun";
  EXPECT_DEATH(PageInHand::JournalChosen(3), "JournalChosen") << "no such journal";
  Fill();
  EXPECT_DEATH(PageInHand::PagesRead(), "PagesRead") << "over pages that are still here";
  for (const int page : {-1, 2}) EXPECT_DEATH(PageInHand::TurnedTo(page), "TurnedTo") << page;
  Pages.clear();
  EXPECT_DEATH(PageInHand::TextChanged(), "RuleHolds") << "erased by another way than PagesForgotten";
}

}  // namespace
