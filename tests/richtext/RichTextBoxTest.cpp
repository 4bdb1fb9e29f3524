// The text box as a person uses it: shown, with real keys and clicks.
#include <QtCore/QTemporaryFile>
#include <QtWidgets/QScrollBar>

#include "BoxFixture.h"
#include "richtext/BoxPictures.h"
#include "richtext/SmallPng.h"

namespace richtext {
namespace {

using RichTextBoxTest = BoxTest;

TEST_F(RichTextBoxTest, EverySetIsOneChange) {
  for (const char* rtf : {"", "", "{\\rtf1 a}", "{\\rtf1 a}", "plain", ""}) {
    box.SetTextRTF(rtf);
    EXPECT_EQ(Changes(), 1) << rtf;
  }
}

TEST_F(RichTextBoxTest, EveryEditIsOneChange) {
  Set(Page({{u"one two three", Plain}}));
  const std::vector<std::pair<const char*, std::function<void()>>> edits = {
      {"letter", [&] { Type("x"); }},
      {"over a selection", [&] { Select(1, 3), Type("y"); }},
      {"enter", [&] { Press(Qt::Key_Return); }},
      {"tab", [&] { Press(Qt::Key_Tab); }},
      {"backspace", [&] { Press(Qt::Key_Backspace); }},
      {"undo", [&] { Press(Qt::Key_Z, Qt::ControlModifier); }},
      {"redo", [&] { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }},
      {"cut", [&] { Select(0, 2), Press(Qt::Key_X, Qt::ControlModifier); }},
      {"paste", [&] { Press(Qt::Key_V, Qt::ControlModifier); }},
      {"bitmap",
       [&] {
         box.InsertBitmap(Checkers({4, 4}));
       }},
      {"attribute", [&] { Select(0, 2), box.SetSelItalic(true); }},
      {"same attribute", [&] { box.SetSelItalic(true); }},
  };
  for (const auto& [name, edit] : edits) {
    edit();
    EXPECT_EQ(Changes(), 1) << name;
  }
}

TEST_F(RichTextBoxTest, WhatIsNoEditIsNoChange) {
  for (const Document& page : {Page({{u"one two three", Plain}}), EmptyDocument()}) {
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
    QTest::mouseClick(box.viewport(), Qt::LeftButton);
    box.clearFocus();
    box.setFocus();
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QApplication::sendEvent(&box, &composing);
    QInputMethodEvent givenUp;
    QApplication::sendEvent(&box, &givenUp);
    box.TextRTF();
    EXPECT_EQ(Changes(), 0) << box.Text().toStdString();
  }
  EXPECT_EQ(presses, 2);
}

TEST_F(RichTextBoxTest, EmptyBoxIsTheEmptyDocument) {
  EXPECT_EQ(ReadRtf(box.TextRTF()), EmptyDocument());
  Set(Page({{u"x", Plain}}));
  box.SetTextRTF("");
  EXPECT_EQ(box.Text(), QString());
  EXPECT_EQ(ReadRtf(box.TextRTF()), EmptyDocument());
}

TEST_F(RichTextBoxTest, CaretFormatGovernsWhatIsTyped) {
  for (const Document& page : {EmptyDocument(), Page({{u"before", Plain}})}) {
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

TEST_F(RichTextBoxTest, CaretTakesTheFormatWhereItGoes) {
  Set(Page({{u"plain", Plain}, {u"loud", Loud}}));
  box.SetSelStart(9);
  EXPECT_EQ(box.SelFontSize(), 18.5);
  box.SetSelStart(3);
  EXPECT_EQ(box.SelFontName(), QStringLiteral("Arial"));
  Press(Qt::Key_End, Qt::ControlModifier);
  Type("x");
  EXPECT_EQ(FormatAt(10), Loud);
}

TEST_F(RichTextBoxTest, TypingBesideALinkIsNoPartOfIt) {
  CharacterFormat link = Font("Arial", 20, 0xff0000);
  link.link = "http://example.invalid/";
  const auto linked = [&] {
    QString letters;
    const Document page = Taken();
    std::size_t at = 0;
    for (const auto& run : page.runs) {
      if (page.formats[run.format].link == link.link)
        letters += QString::fromStdU16String(page.text.substr(at, run.length));
      at += run.length;
    }
    return letters;
  };
  for (const Document& page :
       {Page({{u"link", link}}), Page({{u"a", Loud}, {u"link", link}, {u"b", Loud}})}) {
    Set(page);
    const int start = static_cast<int>(box.Text().indexOf(u'l'));
    for (const auto& [place, letters] : {std::pair{0, "link"}, {5, "link"}, {3, "lixnk"}}) {
      box.SetSelStart(start + place);
      Type("x");
      EXPECT_EQ(linked(), QLatin1String(letters)) << place;
    }
    if (start > 0) {
      EXPECT_EQ(FormatAt(start + 1), Loud) << "as the text around it";
    }
    box.SetSelStart(static_cast<int>(box.Text().indexOf(u'k')) + 1);
    Press(Qt::Key_Return);
    Type("y");
    EXPECT_EQ(linked(), QLatin1String("lixnk"));
  }
}

TEST_F(RichTextBoxTest, SelectionReadsAsMixed) {
  Set(Page({{u"plain", Plain}, {u"loud", Loud}}));
  Select(4, 2);
  EXPECT_FALSE(box.SelFontName() || box.SelFontSize() || box.SelBold() || box.SelItalic() ||
               box.SelUnderline() || box.SelStrikeThru() || box.SelColor());
  Select(5, 100);
  EXPECT_EQ(box.SelLength(), 4);
  EXPECT_EQ(box.SelFontName(), QStringLiteral("No Such Font"));
  EXPECT_EQ(box.SelFontSize(), 18.5);
  EXPECT_EQ(box.SelBold(), true);
  EXPECT_EQ(box.SelItalic(), true);
  EXPECT_EQ(box.SelUnderline(), true);
  EXPECT_EQ(box.SelStrikeThru(), true);
  EXPECT_EQ(box.SelColor(), 0x0000ffu);
  Select(0, 5);
  EXPECT_EQ(box.SelBold(), false);
  EXPECT_EQ(box.SelColor(), 0u) << "automatic is black";
}

TEST_F(RichTextBoxTest, SelectionTakesAttributes) {
  Set(Page({{u"plain", Plain}, {u"loud", Loud}}));
  Select(3, 4);
  box.SetSelFontName(QStringLiteral("Courier"));
  box.SetSelFontSize(8.25);
  box.SetSelBold(true);
  box.SetSelItalic(false);
  box.SetSelUnderline(false);
  box.SetSelStrikeThru(false);
  box.SetSelColor(0x00ff0000);
  EXPECT_EQ(Changes(), 7);
  const Document page = TakeDocument(*box.document());
  EXPECT_EQ(page.runs, (std::vector<richtext::Run>{{3, 0}, {4, 1}, {2, 2}}));
  EXPECT_EQ(page.formats, (std::vector<CharacterFormat>{Plain, Journal, Loud}));
}

TEST_F(RichTextBoxTest, UndoStopsAtThePage) {
  Set(Page({{u"first", Plain}}));
  Type("typed");
  Set(Page({{u"second", Plain}}));
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text(), QStringLiteral("second"));
  EXPECT_EQ(Changes(), 0);
  Type("x");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.Text(), QStringLiteral("second"));
}

// Every format and every kind of letter, in paragraphs of every kind, with a picture of each way to be sized.
Document FullPage() {
  Document page = Page({{u"a\tb\u2028\u00a0\U0001F600", Plain},
                        {u"\ufffc", Loud},
                        {u"\ufffc\ufffc\ufffc", Plain},
                        {u"tail", Font("Tim\xc3\xb6s", 3, 0)}});
  page.formats.push_back(Font("", 96));  // of an empty paragraph, with no font named
  const std::string png = SignedPng();
  page.pictures = {{PictureKind::Png, png, {}, 301, 77},
                   {PictureKind::Png, png, {}, 0, 0},
                   {PictureKind::Png, "no picture", {}, 0, 300},
                   {PictureKind::Png, png, {}, 147, 90, {0, 0, -10, 30}}};
  page.paragraphFormats = {Indented(Alignment::Left, 0, 0, 0), Indented(Alignment::Right, 1, 719, -360),
                           Indented(Alignment::Center, -15, 0, 7),
                           Indented(Alignment::Justify, 1440, 20, 360)};
  page.paragraphs = {{3, 0, 0}, {5, 1, 1}, {0, 2, 4}, {7, 3, 3}};
  page.runs = {{3, 0}, {4, 0}, {1, 1}, {3, 2}, {4, 3}};
  page.formats[2] = Font("Arial", 21);
  page.tabDistance = 300;
  return page;
}

TEST_F(RichTextBoxTest, HoldsWhatThePageHolds) {
  const Document page = FullPage();
  FillDocument(page, *box.document());
  const Document taken = Taken();
  ExpectSame(taken, page);
  EXPECT_EQ(taken.tabDistance, page.tabDistance);
  EXPECT_EQ(box.tabStopDistance(), 20);
  QApplication::processEvents();
  EXPECT_EQ(TakeDocument(*box.document()), taken) << "drawing it changed it";
  box.SetTextRTF(WriteRtf(taken));
  EXPECT_EQ(TakeDocument(*box.document()), taken);
}

TEST_F(RichTextBoxTest, ShowsThePartThatACropLeaves) {
  Picture picture{PictureKind::Png, SmallestPng(Checkers({8, 6})), {}, 60, 75, {30, 30, 30, -15}};
  const QImage shown = DecodedPicture(picture);
  EXPECT_EQ(shown.size(), QSize(4, 5));
  EXPECT_EQ(shown.copy(0, 0, 4, 4), Checkers({8, 6}).copy(2, 2, 4, 4));
  EXPECT_EQ(shown.pixelColor(0, 4).alpha(), 0) << "a margin";
}

TEST_F(RichTextBoxTest, ShowsLargePhotos) {
  QImage photo(7000, 5200, QImage::Format_RGB32);
  photo.fill(Qt::red);
  QByteArray file;
  QBuffer buffer(&file);
  photo.save(&buffer, "JPEG", 10);
  EXPECT_EQ(DecodedPicture({PictureKind::Jpeg, file.toStdString(), {}, 1500, 0}).size(), photo.size());
}

TEST_F(RichTextBoxTest, ForeignSignsStayWithinTheirParagraph) {
  Document page = Page({{u"a\u2029b\nc\ufdd0d\ufffce", Plain}});
  FillDocument(page, *box.document());
  page.text = u"a\u2028b\u2028c\ufffdd\ufffde";
  EXPECT_EQ(TakeDocument(*box.document()), page);
}

TEST_F(RichTextBoxTest, TextCountsAsTheSelectionDoes) {
  FillDocument(FullPage(), *box.document());
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

TEST(SmallPngTest, KeepsEveryPixel) {
  QImage manyColors(40, 40, QImage::Format_ARGB32);
  for (int i = 0; i < 1600; ++i) manyColors.setPixel(i % 40, i / 40, 0xff000000u + unsigned(i) * 977);
  QImage clear = Checkers({9, 9});
  clear.setPixel(4, 4, 0x40102030);
  clear.setPixel(5, 4, 0);
  for (const QImage& image : {manyColors, clear, Checkers({1, 1}), Checkers({7, 3})}) {
    const QImage stored = QImage::fromData(QByteArray::fromStdString(SmallestPng(image)));
    EXPECT_EQ(stored.convertToFormat(QImage::Format_ARGB32), image);
  }
  EXPECT_EQ(SmallestPng({}), "");
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

TEST_F(RichTextBoxTest, PaperAndInkAreNotTheDesktops) {
  QPalette dark;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  const QPalette before = QApplication::palette();
  QApplication::setPalette(dark);
  Set(Page({{u"MMMMMMMMMMMM", Font("Arial", 60)}}));
  box.SetBackColor(0x00ccffee);
  const QImage drawn = box.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QApplication::setPalette(before);
  EXPECT_EQ(box.BackColor(), 0x00ccffeeu);
  EXPECT_EQ(drawn.pixelColor(390, 290), QColor(0xee, 0xff, 0xcc));
  int black = 0;
  for (int x = 0; x < drawn.width(); ++x) black += drawn.pixelColor(x, 30) == QColor(Qt::black);
  EXPECT_GT(black, 10);
}

}  // namespace
}  // namespace richtext
