// The text box as a person uses it: shown, with real keys and clicks.

#include "platform/Contrast.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/SmallPng.h"
#include "tests/richtext/BoxFixture.h"

namespace richtext {
namespace {

using RichTextBoxTest = BoxTest;

TEST_F(RichTextBoxTest, EverySetAndEveryEditIsOneChange) {
  for (const char* rtf : {"", "", "{\\rtf1 a}", "{\\rtf1 a}", "plain", ""}) {
    box.SetTextRTF(rtf);
    EXPECT_EQ(Changes(), 1) << rtf;
  }
  EXPECT_EQ(ReadRtf(box.TextRTF()), EmptyDocument());
  Set(Page("one two three"));
  const std::pair<const char*, std::function<void()>> edits[] = {
      {"letter", [&] { Type("x"); }},
      {"over a selection", [&] { Select(1, 3), Type("y"); }},
      {"enter", [&] { Press(Qt::Key_Return); }},
      {"undo", [&] { Press(Qt::Key_Z, Qt::ControlModifier); }},
      {"redo", [&] { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }},
      {"cut", [&] { Select(0, 2), Press(Qt::Key_X, Qt::ControlModifier); }},
      {"paste", [&] { Press(Qt::Key_V, Qt::ControlModifier); }},
      {"bitmap", [&, image = Checkers({4, 4})] { box.InsertBitmap(image); }},
      {"attribute", [&] { Select(0, 2), box.SetSelItalic(true); }},
      {"same attribute", [&] { box.SetSelItalic(true); }},
  };
  for (const auto& [name, edit] : edits) {
    edit();
    EXPECT_EQ(Changes(), 1) << name;
  }
}

TEST_F(RichTextBoxTest, WhatIsNoEditIsNoChange) {
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  for (const std::string& page : {Page("one two three"), std::string()}) {
    Set(page);
    GiveJournalFont();
    box.SetSelFontName({});
    box.SetSelFontSize(0);
    box.resize(200, 500);
    box.SetBackColor(0xccffff);
    box.selectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    Press(Qt::Key_Home, Qt::ControlModifier);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&box, 'x', Qt::AltModifier);  // somebody's mnemonic
    QApplication::sendEvent(&box, &repeated);
    QTest::mouseClick(box.viewport(), Qt::LeftButton);
    box.clearFocus();
    box.setFocus();
    QInputMethodEvent composing(QStringLiteral("ni"), {}), givenUp;
    QApplication::sendEvent(&box, &composing);
    QApplication::sendEvent(&box, &givenUp);
    box.TextRTF();
    EXPECT_EQ(Changes(), 0) << Text();
  }
  EXPECT_EQ(presses, 2);
  QTest::keyPress(&box, Qt::Key_Return);
  QApplication::sendEvent(&box, &repeated);
  EXPECT_EQ(Changes(), 2) << "a key that is held has gone down here";
}

TEST_F(RichTextBoxTest, CaretFormatGovernsWhatIsTyped) {
  for (const std::string& page : {std::string(), Page("before")}) {
    Set(page);
    GiveJournalFont();
    box.clearFocus();
    box.setFocus();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, QPoint(300, 10));
    const int start = box.SelStart();
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    Type("ab");
    EXPECT_EQ(FormatAt(start + 3), Journal);
    EXPECT_EQ(FormatAt(start + 4), Journal);
    if (start > 0) {
      EXPECT_EQ(FormatAt(start), Plain);
    }
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Type("c");
    EXPECT_EQ(FormatAt(start + 3), Journal) << "all letters of the paragraph were deleted before";
  }
}

TEST_F(RichTextBoxTest, SelectionReadsAsMixedAndTakesAttributes) {
  Set(Page("plain" + InLoud("loud")));
  const auto attributes = [this] {
    return std::tuple(box.SelFontName(), box.SelFontSize(), box.SelBold(), box.SelItalic(),
                      box.SelUnderline(), box.SelStrikeThru(), box.SelColor());
  };
  const std::tuple plain(u"Arial"_qs, 10.0, false, false, false, false, 0u);  // automatic is black
  const std::tuple loud(u"No Such Font"_qs, 18.5, true, true, true, true, 0x0000ffu);
  EXPECT_EQ(attributes(), plain);
  box.SetSelStart(9);
  EXPECT_EQ(attributes(), loud) << "of the letter before the caret";
  Select(5, 100);
  EXPECT_EQ(box.SelLength(), 4);
  EXPECT_EQ(attributes(), loud);
  Select(4, 2);
  EXPECT_EQ(attributes(), decltype(attributes())());
  Select(3, 4);
  box.SetSelFontName(QStringLiteral("Courier"));
  box.SetSelFontSize(8.25);
  box.SetSelBold(true);
  box.SetSelItalic(false);
  box.SetSelUnderline(false);
  box.SetSelStrikeThru(false);
  box.SetSelColor(0x00ff0000);
  EXPECT_EQ(Changes(), 7);
  EXPECT_EQ(Dump(Taken()), Plain + "pla" + Journal + "inlo" + Loud + "ud" + Plain);
}

TEST_F(RichTextBoxTest, UndoStopsAtThePage) {
  Set(Page("first"));
  Type("typed");
  Set(Page("second"));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "second");
  EXPECT_EQ(Changes(), 0);
  Type("x");
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "second");
}

// Letters of every kind, in paragraphs of every kind, with a picture of each way to be sized.
const std::string FullPage =
    Page(R"(a\tab b\par\qr\li1\ri719\fi-360\line\~\u-10179?\u-8704?)" +
         InLoud(PictureGroup(R"(\picwgoal301\pichgoal77)") + "\\par") +
         R"(\pard\qc\li-15\fi7{\f9\fs96\par}\pard\qj\li1440\ri20\fi360\fs21 )" + PictureGroup("") +
         R"({\pict\pngblip\pichgoal300 00})" +
         PictureGroup(R"(\picwgoal147\pichgoal110\piccropt-10\piccropb30)") + R"({\f1\fs3\cf2 tail}\par)");

TEST_F(RichTextBoxTest, HoldsWhatThePageHolds) {
  ExpectHeld(FullPage);
  EXPECT_EQ(box.tabStopDistance(), 20);
  const std::string kept = box.TextRTF();
  EXPECT_NE(kept.find(SignedPng().toHex().toStdString().substr(0, 64)), std::string::npos);
  QApplication::processEvents();
  EXPECT_EQ(box.TextRTF(), kept) << "drawing it changed it";
  ExpectKept();
}

// Each change of the width lays the page out once more.
TEST_F(RichTextBoxTest, TurningToAnotherTallPageKeepsTheWidth) {
  std::string tall = "{\\rtf1";
  for (int line = 0; line < 60; ++line) tall += " a\\par";
  box.SetTextRTF(tall + "}");
  const int narrow = box.viewport()->width();
  int widest = 0;
  QObject::connect(box.document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
                   [&] { widest = std::max(widest, box.viewport()->width()); });
  box.SetTextRTF(tall + "}");
  EXPECT_EQ(widest, narrow);
  for (int line = 0; line < 60; ++line) Press(Qt::Key_Return);
  EXPECT_TRUE(box.viewport()->rect().contains(box.cursorRect())) << "the caret stays in sight";
  box.SetTextRTF("{\\rtf1 a}");
  EXPECT_GT(box.viewport()->width(), narrow);
}

TEST_F(RichTextBoxTest, TextCountsAsTheSelectionDoes) {
  box.SetTextRTF(FullPage);
  const QString text = QStringLiteral("a\tb\n\n\u00a0\U0001F600\ufffc\n\n\ufffc\ufffc\ufffctail");
  EXPECT_EQ(box.Text(), text);
  box.SetSelStart(1 << 30);
  EXPECT_EQ(box.SelStart(), text.size());
  box.SetSelStart(-1);
  EXPECT_EQ(box.SelStart(), 0);
  Select(static_cast<int>(text.indexOf(u't')), 4);
  Type("x");
  EXPECT_TRUE(box.Text().endsWith(QStringLiteral("\ufffcx")));
}

TEST_F(RichTextBoxTest, ShowsThePartThatACropLeavesAndLargePhotos) {
  const QImage image = Checkers({8, 6});
  const QImage shown = DecodedPicture({PictureKind::Png, SmallPng(image), {}, 60, 75, {30, 15, 30, -15}});
  EXPECT_EQ(shown.size(), QSize(5, 5));
  EXPECT_EQ(shown.copy(0, 0, 5, 4), image.copy(2, 2, 5, 4));
  EXPECT_EQ(shown.pixelColor(0, 4).alpha(), 0) << "a margin";
  QImage photo(7000, 5200, QImage::Format_RGB32);
  photo.fill(Qt::red);
  QBuffer file;
  photo.save(&file, "JPEG", 10);
  EXPECT_EQ(DecodedFile(file.data()).size(), photo.size());
}

TEST_F(RichTextBoxTest, ForeignSignsStayWithinTheirParagraph) {
  Document page = ReadRtf("{\\rtf1 aabbccdde}");
  page.text = u"a\u2029b\nc\ufdd0d\ufffce";
  FillDocument(page, *box.document());
  EXPECT_EQ(Dump(Taken()), "a/b/c\ufffdd\ufffde");
}

TEST(SmallPngTest, KeepsEveryPixel) {
  QImage manyColors(40, 40, QImage::Format_ARGB32);
  for (int i = 0; i < 1600; ++i) manyColors.setPixel(i % 40, i / 40, 0xff000000u + unsigned(i) * 977);
  QImage clear = Checkers({9, 9});
  clear.setPixel(4, 4, 0x40102030);
  clear.setPixel(5, 4, 0);
  for (const QImage& image : {manyColors, clear, Checkers({1, 1}), Checkers({64, 32})}) {
    const std::string png = SmallPng(image);
    EXPECT_EQ(DecodedFile(QByteArray::fromStdString(png)).convertToFormat(QImage::Format_ARGB32), image);
    EXPECT_LT(png.size(), image.width() == 64 ? 200u : 5000u) << "of two colours a palette";
  }
  EXPECT_EQ(SmallPng({}), "");
}

TEST_F(RichTextBoxTest, NothingIsFetched) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  Checkers({50, 50}).save(&file, "PNG");
  const QUrl url = QUrl::fromLocalFile(file.fileName());
  EXPECT_EQ(qvariant_cast<QPixmap>(box.document()->resource(QTextDocument::ImageResource, url)).size(),
            QSize(1, 1));
  Paste([&](QMimeData& data) { data.setUrls({url}); });
  EXPECT_EQ(box.Text(), url.toString());
}

// Letters that join no other ones are not shaped.
TEST_F(RichTextBoxTest, OneLongParagraphIsSpared) {
  const auto unshaped = [&](int from, int length) {
    int letters = 0;
    for (const auto& range : box.document()->firstBlock().layout()->formats())
      letters +=
          std::max(0, std::min(range.start + range.length, from + length) - std::max(range.start, from));
    return letters;
  };
  const std::string words = QStringLiteral("plain words\\line ").repeated(3000).toStdString();
  Set(Page(words + "of a caf\\u101?\\u769? there " + words));
  const int joined = 36'000 + 5;
  EXPECT_EQ(unshaped(0, joined), joined);
  EXPECT_EQ(unshaped(joined, 5), 0) << "an accent of its own";
  EXPECT_EQ(unshaped(joined + 5, 36'000), 36'000);
  box.SetSelStart(joined - 2);
  QInputMethodEvent composing(QStringLiteral("ni"), {});
  QApplication::sendEvent(&box, &composing);
  box.CommitComposition();
  EXPECT_EQ(unshaped(0, joined + 2), joined + 2);
  EXPECT_EQ(unshaped(joined + 2, 5), 0);
  Select(100, 1 << 30);
  Press(Qt::Key_Delete);
  EXPECT_EQ(unshaped(0, 100), 0);
}

TEST_F(RichTextBoxTest, PaperAndInkAreNotTheDesktops) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(
      QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black));
  Set(Page("\\fs60 MMMMMMMMMMMM"));
  box.SetBackColor(0x00ccffee);
  const QImage drawn = box.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QApplication::setPalette(before);
  EXPECT_EQ(box.BackColor(), 0x00ccffeeu);
  EXPECT_EQ(drawn.pixelColor(390, 290), QColor(0xee, 0xff, 0xcc));
  int black = 0;
  for (int x = 0; x < drawn.width(); ++x) black += drawn.pixelColor(x, 30) == QColor(Qt::black);
  EXPECT_GT(black, 10);
  for (const std::uint32_t paper : {0xffffffu, 0xc0c0c0u, 0x909090u, 0x808080u, 0x903a4au, 0u}) {
    box.SetBackColor(paper);
    const QColor marked = box.palette().color(QPalette::Highlight);
    EXPECT_GE(platform::Contrast(marked, box.palette().color(QPalette::Base)), 3) << paper;
    EXPECT_GE(platform::Contrast(marked, box.palette().color(QPalette::HighlightedText)), 4.5) << paper;
  }
}

}  // namespace
}  // namespace richtext
