// The copy that is kept of a page: the same bytes as a copy made at once, of what was copied before.
#include <random>

#include "richtext/document/Document.h"
#include "tests/richtext/BoxFixture.h"

namespace richtext {
namespace {

class DocumentCopyTest : public BoxTest {
 protected:
  DocumentCopyTest() {
    std::string body;
    for (int i = 0; i < 2000; ++i)
      body += "a{\\b b}" + (i % 600 == 0 ? PictureGroup("") + "{\\v hidden}" : std::string("c")) + "\\par ";
    Set(Page(body));
  }
  void ExpectTheSame(const char* when) { EXPECT_TRUE(WriteRtf(Join(box.Copy())) == box.TextRTF()) << when; }
};

TEST_F(DocumentCopyTest, IsThePageAfterEveryKindOfChange) {
  ExpectTheSame("at first");
  const std::pair<const char*, std::function<void()>> edits[] = {
      {"letter", [&] { Type("x"); }},
      {"new paragraph", [&] { Press(Qt::Key_Return); }},
      {"joined paragraphs", [&] { Press(Qt::Key_Home), Press(Qt::Key_Backspace); }},
      {"attribute", [&] { box.SetSelLength(3000), box.SetSelItalic(true); }},
      {"deletion", [&] { box.SetSelLength(2500), Press(Qt::Key_Delete); }},
      {"undo", [&] { box.undo(), box.undo(), box.undo(); }},
      {"redo", [&] { box.redo(); }},
      {"paste", [&] { Press(Qt::Key_C, Qt::ControlModifier), Press(Qt::Key_V, Qt::ControlModifier); }},
      {"bitmap",
       [&] {
         box.InsertBitmap(Checkers({4, 4}));
       }},
  };
  std::mt19937 random(7);
  for (int i = 0; i < 40; ++i) {
    const auto& [name, edit] = edits[random() % std::size(edits)];
    box.SetSelStart(static_cast<int>(random() % 8000));
    edit();
    ExpectTheSame(name);
  }
  box.selectAll();
  Press(Qt::Key_Delete);
  ExpectTheSame("nothing left");
  box.SetTextRTF(Page("\\deftab900 other"));
  ExpectTheSame("another page");
}

TEST_F(DocumentCopyTest, HoldsAComposedWordOnlyWhereItIsBeingComposed) {
  const auto copyWith = [&](const QString& word) {
    QInputMethodEvent composing(word, {});
    QApplication::sendEvent(&box, &composing);
    return Join(box.Copy()).text;
  };
  for (const bool byKey : {true, false}) {
    box.SetSelStart(1);
    EXPECT_EQ(copyWith(QStringLiteral("ni")).find(u"ni"), 1u);
    byKey ? Press(Qt::Key_End, Qt::ControlModifier) : box.SetSelStart(6000);
    Type("x");
    const std::u16string copied = copyWith(QStringLiteral("hao"));
    EXPECT_EQ(copied.find(u"ni"), std::u16string::npos) << byKey;
    EXPECT_NE(copied.find(u"hao"), std::u16string::npos) << byKey;
    copyWith({});
    ExpectTheSame("given up");
  }
}

TEST_F(DocumentCopyTest, IsMadeInStepsAndOnlyAnewWhereSomethingChanged) {
  EXPECT_FALSE(box.CopyUntil(QDeadlineTimer(0)));
  const PageParts before = box.Copy();
  EXPECT_EQ(box.Copy(), before);
  box.SetSelStart(5000);
  Type("x");
  EXPECT_FALSE(box.CopyUntil(QDeadlineTimer(0))) << "the changed part";
  const PageParts after = box.Copy();
  std::size_t kept = 0;
  for (const auto& part : after) kept += std::ranges::count(before, part) == 1;
  EXPECT_GE(before.size(), 4u);
  EXPECT_GE(kept + 2, before.size());
  const std::string large = "{\\pict\\pngblip " + std::string(6'000'000, 'a') + "}\\par ";
  Set(Page(large + large + large));
  EXPECT_GE(box.Copy().size(), 3u) << "large pictures";
}

}  // namespace
}  // namespace richtext
