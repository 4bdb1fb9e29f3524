// Every format of a page through the text box's document and back.
#include "BoxFixture.h"
#include "richtext/BoxLabels.h"
#include "richtext/BoxPictures.h"
#include "richtext/Limits.h"

namespace richtext {
namespace {

using BoxFormatsTest = BoxTest;

void ExpectHeld(const Document& page, QTextDocument& box) {
  FillDocument(page, box);
  ExpectSame(TakeDocument(box), page);
}

TEST_F(BoxFormatsTest, HoldsEveryLetterFormat) {
  std::vector<std::function<void(CharacterFormat&)>> changes = {
      [](auto& f) { f.capitals = Capitals::All; },
      [](auto& f) { f.capitals = Capitals::Small; },
      [](auto& f) { f.place = VerticalPlace::Superscript; },
      [](auto& f) { f.place = VerticalPlace::Subscript; },
      [](auto& f) { f.highlight = 0x00ff00; },
      [](auto& f) { f.highlight = 0; },
      [](auto& f) { f.link = "https://example.invalid/a?b=\xc3\xa4 c"; },
      [](auto& f) { f.hidden = true; },
  };
  for (int kind = 0; kind <= static_cast<int>(UnderlineKind::Thick); ++kind)
    changes.push_back([kind](auto& f) { f.underline = static_cast<UnderlineKind>(kind); });
  for (const auto& change : changes) {
    CharacterFormat format = Plain;
    change(format);
    ExpectHeld(Page({{u"before", Loud}, {u"it", format}, {u"behind", Loud}}), *box.document());
    Document page = Page({{u"only", format}});
    page.formats.push_back(Plain);
    page.paragraphs[0].markFormat = 1;
    ExpectHeld(page, *box.document());
  }
}

TEST_F(BoxFormatsTest, HoldsEveryParagraphFormat) {
  const std::vector<std::function<void(ParagraphFormat&)>> changes = {
      [](auto& f) { f.direction = Direction::RightToLeft; },
      [](auto& f) { f.direction = Direction::RightToLeft, f.alignment = Alignment::Right; },
      [](auto& f) { f.spaceBefore = 7, f.spaceAfter = 32767; },
      [](auto& f) { f.lineSpacingRule = LineSpacingRule::Multiple, f.lineSpacing = 361; },
      [](auto& f) { f.lineSpacingRule = LineSpacingRule::Multiple, f.lineSpacing = 1; },
      [](auto& f) { f.lineSpacingRule = LineSpacingRule::AtLeast, f.lineSpacing = 401; },
      [](auto& f) { f.lineSpacingRule = LineSpacingRule::Exact, f.lineSpacing = 1; },
      [](auto& f) { f.leftIndent = 720, f.firstLineIndent = -361; },
      [](auto& f) {
        f.leftIndent = 719, f.firstLineIndent = -360;
        f.tabs = {
            {100, TabKind::Left}, {1001, TabKind::Right}, {2000, TabKind::Center}, {3, TabKind::Decimal}};
        std::swap(f.tabs[0], f.tabs[3]), std::swap(f.tabs[1], f.tabs[3]), std::swap(f.tabs[2], f.tabs[3]);
      },
      [](auto& f) {
        f.list = {ListKind::Bullet, 1, 0, u"\u25aa", u""};
      },
      [](auto& f) {
        f.list = {ListKind::UpperRoman, 4, 8, u"(", u")"}, f.leftIndent = 7, f.rightIndent = 9;
      },
      [](auto& f) {
        f.list = {ListKind::Decimal, 0, 1, u"", u"."};
        f.direction = Direction::RightToLeft, f.firstLineIndent = -100, f.tabs = {{500, TabKind::Left}};
      },
  };
  for (const auto& change : changes) {
    Document page = Page({{u"text", Plain}});
    change(page.paragraphFormats[0]);
    page.paragraphFormats.push_back({});
    page.paragraphs.insert(page.paragraphs.end(), {{0, 1, 0}, {0, 0, 0}});
    ExpectHeld(page, *box.document());
  }
}

TEST_F(BoxFormatsTest, UnderlineOfAPersonIsAPlainOne) {
  CharacterFormat thick = Plain;
  thick.underline = UnderlineKind::Thick;
  Set(Page({{u"thick", thick}}));
  EXPECT_EQ(box.SelUnderline(), true);
  box.selectAll();
  box.SetSelUnderline(true);
  EXPECT_EQ(FormatAt(5).underline, UnderlineKind::Single);
  box.SetSelUnderline(false);
  EXPECT_EQ(FormatAt(5).underline, UnderlineKind::None);
}

class HiddenTextTest : public BoxTest {
 protected:
  // "one", something hidden, "two".
  HiddenTextTest() {
    page.pictures = {{PictureKind::Png, SignedPng(), {}, 0, 0}};
    FillDocument(page, *box.document());
  }
  static CharacterFormat Hidden() {
    CharacterFormat format = Loud;
    format.hidden = true;
    return format;
  }
  Document page = Page({{u"one", Plain}, {u"hid\ufffcden", Hidden()}, {u"two", Plain}});
};

TEST_F(HiddenTextTest, IsKeptAndNotShown) {
  EXPECT_EQ(box.Text(), QStringLiteral("onetwo"));
  ExpectSame(Taken(), page);
  box.SetSelStart(100);
  EXPECT_EQ(box.SelStart(), 6);
  Select(2, 2);
  EXPECT_EQ(box.SelLength(), 2);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("et"));
  EXPECT_FALSE(QApplication::clipboard()->mimeData()->html().contains(QStringLiteral("hid")));
}

TEST_F(HiddenTextTest, CaretPassesItInOneStep) {
  box.SetSelStart(2);
  for (const int place : {3, 4}) {
    Press(Qt::Key_Right);
    EXPECT_EQ(box.SelStart(), place);
  }
  for (const int place : {3, 2}) {
    Press(Qt::Key_Left);
    EXPECT_EQ(box.SelStart(), place);
  }
}

TEST_F(HiddenTextTest, StaysWhenLettersBesideItGo) {
  box.SetSelStart(3);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(box.Text(), QStringLiteral("ontwo"));
  Press(Qt::Key_Delete);
  EXPECT_EQ(box.Text(), QStringLiteral("onwo"));
  box.SetSelStart(1);
  Press(Qt::Key_Delete);
  EXPECT_EQ(box.Text(), QStringLiteral("owo"));
  Type("x");
  EXPECT_EQ(box.Text(), QStringLiteral("oxwo"));
  EXPECT_NE(Taken().text.find(u"hid\ufffcden"), std::u16string::npos);
}

TEST_F(HiddenTextTest, LettersTypedBesideItShow) {
  box.SetSelStart(3);
  Type("x");
  EXPECT_EQ(box.Text(), QStringLiteral("onextwo"));
  EXPECT_FALSE(FormatAt(box.textCursor().position()).hidden);
}

class ListsTest : public BoxTest {
 protected:
  static ParagraphFormat Item(ListKind kind, int start = 1, int level = 0, const char16_t* after = u".") {
    ParagraphFormat item;
    item.list = {kind, start, level, kind == ListKind::Bullet ? u"\u2022" : u"",
                 kind == ListKind::Bullet ? u"" : after};
    item.leftIndent = 720;
    item.firstLineIndent = -360;
    return item;
  }
  // Paragraphs "a", "b" and so on.
  void SetItems(const std::vector<ParagraphFormat>& items) {
    Document page;
    page.formats = {Plain};
    for (std::uint32_t i = 0; i < items.size(); ++i) {
      page.text += static_cast<char16_t>(u'a' + i);
      page.runs.push_back({1, 0});
      page.paragraphs.push_back({1, i, 0});
    }
    page.paragraphFormats = items;
    FillDocument(page, *box.document());
  }
  std::string Labels() {
    QStringList labels;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
      labels += LabelOf(block);
    return labels.join(u' ').toStdString();
  }
  const ParagraphFormat number = Item(ListKind::Decimal);
};

TEST_F(ListsTest, CountsOnOverDeeperItemsAlone) {
  const ParagraphFormat deep = Item(ListKind::LowerLetter, 1, 1, u")");
  SetItems(
      {number, deep, deep, number, {}, number, Item(ListKind::Bullet), Item(ListKind::Decimal, 7), number});
  EXPECT_EQ(Labels(), "1. a) b) 2.  1. \u2022 7. 1.");
  SetItems({deep, number, deep, Item(ListKind::UpperRoman, 9), Item(ListKind::UpperRoman, 9)});
  EXPECT_EQ(Labels(), "a) 1. a) IX. X.");
}

TEST_F(ListsTest, EnterGoesOnAndBackspaceLeaves) {
  SetItems({number, number});
  box.SetSelStart(1);
  Press(Qt::Key_Return);
  Type("x");
  EXPECT_EQ(Labels(), "1. 2. 3.");
  Press(Qt::Key_Return);
  Press(Qt::Key_Return);
  EXPECT_EQ(Labels(), "1. 2.  1.") << "Enter in an empty item ends the list";
  box.SetSelStart(0);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Labels(), " 1.  1.");
  EXPECT_EQ(box.Text(), QStringLiteral("a\nx\n\nb"));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Labels(), "1. 2.  1.");
  ExpectKept();
}

TEST_F(ListsTest, AWordPastedIntoAnEmptyItemStaysInTheList) {
  SetItems({number});
  box.SetSelStart(1);
  Press(Qt::Key_Return);
  Paste([](QMimeData& data) { data.setHtml(QStringLiteral("<b>bold</b>")); });
  EXPECT_EQ(Labels(), "1. 2.");
}

TEST_F(ListsTest, LabelsAreDrawn) {
  SetItems({number});
  const auto ink = [this] {
    const QImage drawn = box.viewport()->grab(QRect(4, 0, 46, 40)).toImage();
    int dark = 0;
    for (int i = 0; i < drawn.width() * drawn.height(); ++i)
      dark += qGray(drawn.pixel(i % drawn.width(), i / drawn.width())) < 128;
    return dark;
  };
  EXPECT_GT(ink(), 3);
  box.SetSelStart(0);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(ink(), 0);
}

// The toolkit's layout would not come back from it.
TEST_F(BoxFormatsTest, TooHighAPageIsKeptWhole) {
  Document page = Page({{u"first", Plain}});
  page.formats.push_back(Font("Arial", MaxHalfPoints));
  const std::u16string letters(9000, u'm');
  page.text += letters;
  page.runs.push_back({9000, 1});
  page.paragraphs.push_back({9000, 0, 1});
  Set(page);
  box.grab();
  EXPECT_TRUE(box.Text().endsWith(QString::fromStdU16String(letters)));
  EXPECT_TRUE(box.document()->firstBlock().isVisible());
  EXPECT_LT(box.document()->size().height(), 8e6);
}

// One red pixel, as a bitmap without a file around it.
std::string RedDib() {
  std::string dib(40 + 4, '\0');
  dib[0] = 40, dib[4] = 1, dib[8] = 1, dib[12] = 1, dib[14] = 24, dib[42] = '\xff';
  return dib;
}

TEST_F(BoxFormatsTest, KeepsPicturesOfEveryKind) {
  Document page = Page({{u"\ufffc\ufffc\ufffc", Plain}});
  page.pictures = {{PictureKind::Dib, RedDib(), "\\dibitmap0\\picw1\\pich1", 150, 150},
                   {PictureKind::EnhancedMetafile, "no metafile", "\\emfblip", 300, 150},
                   {PictureKind::Other, RedDib(), "", 15, 15}};
  ExpectHeld(page, *box.document());
  box.document()->clearUndoRedoStacks();
  const QImage drawn = box.viewport()->grab().toImage();
  EXPECT_EQ(drawn.pixelColor(8, 10), QColor(Qt::red));
  EXPECT_EQ(drawn.pixelColor(20, 10), drawn.pixelColor(30, 12)) << "a placeholder is an even field";
  EXPECT_NE(drawn.pixelColor(20, 10), QColor(Qt::white));
}

}  // namespace
}  // namespace richtext
