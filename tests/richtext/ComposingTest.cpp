// Words that an input method is composing when the text is read, or goes.
#include "tests/richtext/BoxFixture.h"
#include "tests/support/InputMethod.h"

namespace richtext {
namespace {

using fixture::InputMethod;
using fixture::Manner;

class Composing : public BoxTest, public testing::WithParamInterface<Manner> {
 protected:
  Composing() { EXPECT_TRUE(QTest::qWaitForWindowActive(&box)); }

  InputMethod method{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Manners, Composing, testing::ValuesIn(fixture::AllManners));

TEST_P(Composing, AWordComesIntoTheTextOnceAndInTheCaretsFormat) {
  Set(Page("a\\b b"));
  Select(1, 0);
  method.Compose(u"word"_qs);
  const std::string copied = WriteRtf(Join(box.Copy()));
  EXPECT_EQ(Text() + std::to_string(Changes()), "ab0") << "nothing has changed yet";
  EXPECT_FALSE(box.document()->isUndoAvailable());
  box.CommitComposition();
  EXPECT_EQ(copied, box.TextRTF()) << "a copy has it beforehand";
  EXPECT_EQ(Text() + std::to_string(Changes()), "awordb1");
  EXPECT_EQ(FormatAt(5), Plain);
  EXPECT_EQ(box.SelStart(), 5);
  box.CommitComposition();
  method.DeliverLate();
  EXPECT_EQ(Text() + std::to_string(Changes()), "awordb0");
  method.Compose(u"word"_qs);
  method.Commit(u"word"_qs);
  EXPECT_EQ(Text(), "awordwordb") << "the same word, composed once more";
  box.undo();
  box.undo();
  EXPECT_EQ(Text(), "ab");
  Select(1, 1);
  method.Compose(u"word"_qs);
  box.CommitComposition();
  EXPECT_EQ(Text() + FormatAt(2), "aword(b 20 Arial)") << "over a selection in its format";
}

TEST_P(Composing, ItNeverComesIntoTheNextText) {
  for (const bool committed : {true, false}) {
    Set(Page("one "));
    box.SetSelStart(4);
    method.Compose(u"word"_qs);
    if (committed) box.CommitComposition();
    EXPECT_EQ(Text(), committed ? "one word" : "one ");
    box.SetTextRTF(Page("two"));
    method.DeliverLate();
    box.CommitComposition();
    EXPECT_EQ(Text(), "two");
  }
}

TEST_P(Composing, AWordIsKeptWhereTheFocusHasLeftItOrTheMouseMovesTheCaret) {
  Set(Page("one two"));
  box.SetSelStart(3);
  method.Compose(u"word"_qs);
  QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, {390, 5});
  method.DeliverLate();
  EXPECT_EQ(Text(), "oneword two");
  EXPECT_EQ(box.SelStart(), 11);
  QInputMethodEvent composing(u"!"_qs, {});
  QCoreApplication::sendEvent(&box, &composing);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  box.CommitComposition();
  EXPECT_EQ(Text(), "oneword two!");
}

}  // namespace
}  // namespace richtext
