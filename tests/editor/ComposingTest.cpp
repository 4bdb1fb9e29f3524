// A word that an input method is still composing when the page is read or left.
#include "editor/UnstoredPages.h"
#include "tests/editor/OpenBook.h"
#include "tests/support/InputMethod.h"

namespace {

using fixture::Texts;

class ComposingOnAPage : public fixture::OpenBook, public testing::WithParamInterface<fixture::Manner> {
 protected:
  std::int32_t Compose() {
    const std::int32_t row = Begin({"cover", "one"});
    method.Compose(u"word "_qs);
    EXPECT_EQ(PageDirty, False);
    return row;
  }
  fixture::InputMethod method{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Manners, ComposingOnAPage, testing::ValuesIn(fixture::AllManners));

TEST_P(ComposingOnAPage, IsStoredWithItsPageAndWithNoOther) {
  for (const char* key : {"btnNext", "btnLastPage", "btnNewPage"}) {
    const auto row = Compose();
    Press(key);
    method.DeliverLate();
    StoreCurrentPage();
    EXPECT_EQ(TextsIn(row), (Texts{"word cover", "one"})) << key;
    window().CloseBox();
  }
}

TEST_P(ComposingOnAPage, IsUnstoredBeforeThePageHasChanged) {
  Compose();
  const UnstoredPages pages = PagesUnstored();
  ASSERT_TRUE(pages.text);
  EXPECT_EQ(PagesUnstored(), pages);
  std::string plain(pages.text->Body().size() / 2, '\0');
  store::Decipher(WithText(pages).at(0).pages.at(0).Body.value(), PageShift, plain.data());
  EXPECT_NE(plain.find("word "), std::string::npos) << plain;
  method.Compose({});
  EXPECT_EQ(PagesUnstored(), UnstoredPages()) << "given up";
  EXPECT_EQ(PageDirty, False);
}

TEST_P(ComposingOnAPage, IsThereForWhatReadsThePageAndIsStoredOnEveryWayOut) {
  std::string printed;
  Compose();
  QObject::connect(&window(), &frmJournal::PrintRequested, &window(), [&] { printed = Text(); });
  Press("btnPrint");
  window().disconnect();
  EXPECT_EQ(printed, "word cover");
  EXPECT_EQ(PageDirty, True) << "printing stores nothing";
  window().CloseBox();
  auto row = Compose();
  StoreOpenPage();
  EXPECT_EQ(TextsIn(row)[0], "word cover");
  window().CloseBox();
  row = Compose();
  window().CloseBox();
  method.DeliverLate();
  EXPECT_EQ(TextsIn(row)[0], "word cover");
  EXPECT_EQ(Text(), "");
}

}  // namespace
