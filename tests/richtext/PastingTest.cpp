// What comes into the text box from other programs, and what goes out to them.

#include "richtext/box/Pasting.h"
#include "richtext/html/Reader.h"
#include "richtext/html/Writer.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/SmallPng.h"
#include "tests/richtext/BoxFixture.h"

namespace richtext {
namespace {

class PastingTest : public BoxTest {
 protected:
  // Takes an action from the menu that a right click opens.
  void PickFromMenu(const QString& text) {
    QTimer::singleShot(0, [text] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      for (QAction* action : menu->actions())
        if (action->text().remove(u'&').startsWith(text)) action->trigger();
      menu->close();
    });
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5), box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(box.viewport(), &click);
  }
  static auto Offering(const QByteArray& rtf, const char* html = "", const char* text = "") {
    return [=](QMimeData& data) {
      if (!rtf.isEmpty()) data.setData(QStringLiteral("text/rtf"), rtf);
      if (*html) data.setHtml(QString::fromUtf8(html));
      if (*text) data.setText(QString::fromUtf8(text));
    };
  }
  static Document Read(const QString& html, const QImage& carried = {}) {
    Document page = ReadHtml(html, {}, [&] { return FromImage(carried); });
    for (ParagraphFormat& format : page.paragraphFormats) format.spaceBefore = format.spaceAfter = 0;
    return page;
  }
};

TEST_F(PastingTest, TakesTheRichestOffer) {
  const std::tuple<QByteArray, const char*, const char*, std::string> offers[] = {
      {"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs20\\b rtf}", "<i>html</i>", "text", "(b 20 Arial)rtf"},
      {"\r\n {\\urtf1\\fs20 old\\u233?}", "", "", "(20)oldé"},
      {"{\\rtf1{\\colortbl;\\red250\\green255\\blue255;}\\fs20\\cf1 white\\highlight1 x}", "", "",
       "(20)white(20 #faffff on #faffff)x"},
      {"no rtf at all", "<i>html</i>", "text", "(i)html"},
      {"{\\rtf1 }", "", "a\1b\r\nc\uFFFCd\uFFFE", "ab|cd"},
  };
  for (const auto& [rtf, html, text, page] : offers) {
    box.SetTextRTF("");
    Paste(Offering(rtf, html, text));
    EXPECT_EQ(Dump(Taken()).substr(0, page.size()), page);
    ExpectKept();
  }
}

TEST_F(PastingTest, PlainPasteAndCuttingKeepTheCaretsFormat) {
  GiveJournalFont();
  Copy(Offering("{\\rtf1 rtf}", "<i>html</i>", "text"));
  Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  PickFromMenu(QStringLiteral("Paste without formatting"));
  EXPECT_NE(Dump(Taken()).find(Journal + "texttext"), std::string::npos);
  Set(Page(InLoud("loud")));
  box.selectAll();
  PickFromMenu(QStringLiteral("Cut"));
  Type("x");
  EXPECT_EQ(Text() + FormatAt(1), "x" + Loud);
}

TEST_F(PastingTest, EachExampleOfHtmlBecomesWhatAPageKeeps) {
  for (const auto& [html, dump] : ExamplesOf("html.txt"))
    EXPECT_EQ(Dump(Read(QString::fromStdString(html))), dump) << html;
  EXPECT_EQ(
      Dump(Read(
          u"<!DOCTYPE html>\n<html>\n<body>\n<!--StartFragment--><p>a</p><!--EndFragment-->\n</body>"_qs)),
      "a");
}

TEST_F(PastingTest, ListsAreCopiedWithTheirNumbers) {
  const auto page = QStringLiteral("<ol><li>a<ol><li>b</ol><li>c</ol>x<ol><li>d<li>e</ol><ol><li>f</ol>");
  const QRegularExpression start(QStringLiteral("start=\"(\\d+)\""));
  QString numbers;
  for (const auto& item : start.globalMatch(WriteHtml(Read(page)))) numbers += item.captured(1);
  EXPECT_EQ(numbers, QStringLiteral("112121"));
}

TEST_F(PastingTest, TablesAreCopiedWithTheirMergedCells) {
  const QString spans = QStringLiteral(
      "<table><col width=40 span=3><tr><td>a<td>b<td rowspan=2>c<tr><td colspan=2 "
      "rowspan=2>d<tr><td>e</table>f");
  const std::string page = Dump(Read(spans));
  EXPECT_EQ(page, "{0 600 1200 1800^}a&b&c$|{0 1200^ 1800v}d&$|{0 1200v 1800}&e$|f");
  EXPECT_EQ(Dump(Read(WriteHtml(Read(spans)))), page);
  EXPECT_TRUE(WriteHtml(Read(spans)).contains(QLatin1String("<td colspan=\"2\" rowspan=\"2\"")));
  const QString words =
      WriteHtml(ReadRtf("{\\rtf1\\trowd\\clvmgf\\cellx900\\intbl a\\cell\\row"
                        "\\trowd\\clvmrg\\cellx900\\intbl b\\cell\\row}"));
  EXPECT_EQ(words.count(QLatin1String("<td")), 2);
}

TEST_F(PastingTest, PicturesComeFromTheClipboardAlone) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write(SignedPng());
  file.flush();
  const QString named = QStringLiteral("a<img src='file://%1' alt='words'>b").arg(file.fileName());
  const QString held = QStringLiteral("<img src='data:image/png;base64,%1' width=30>")
                           .arg(QLatin1String(SignedPng().toBase64()));
  EXPECT_EQ(Dump(Read(named)), "awordsb");
  const std::vector<Picture> pictures = Read(named + held, Checkers({4, 4})).pictures;
  EXPECT_EQ(pictures.at(0).widthTwips, 60) << "the clipboard's own bitmap";
  EXPECT_EQ(pictures.at(1).bytes, SignedPng().toStdString());
  EXPECT_EQ(pictures[1].widthTwips, 450);
  const QString styled = QString(held).replace(QLatin1String("width=30"),
                                               QLatin1String("height=9 style='width:80.5px; height:auto'"));
  EXPECT_TRUE(Dump(Read(styled)).ends_with(" 1200x0>")) << "as wide";
  Document high = ReadRtf("{\\rtf1{\\pict\\pngblip\\pichgoal150 00}}");
  high.pictures[0].bytes = SmallPng(Checkers({64, 32}));
  FillDocument(high, *box.document());
  box.SetSelStart(1);
  EXPECT_EQ(box.textCursor().charFormat().toImageFormat().width(), 20) << "in its shape";
}

// Each element costs the toolkit a look at all that is open.
TEST_F(PastingTest, DeepMarkupIsReadQuickly) {
  const int deep = 20'000;
  const Document page = Read(QStringLiteral("<div><p>x</p>").repeated(deep) +
                             QStringLiteral("</div>").repeated(deep) + QStringLiteral("<b>y</b>"));
  EXPECT_EQ(page.text.size(), 20001u);
  EXPECT_EQ(page.formats.size(), 2u) << "what follows is read as ever";
}

// However many there are, those that come in are those that the file gives back.
TEST_F(PastingTest, FramesArePastedAsTheyAreStored) {
  QString html;
  for (int i = 0; i < 4000; ++i)
    html += QStringLiteral("<p style='border: %1px solid red; padding: %2px %3px'>x")
                .arg(i / 1600 + 1)
                .arg(i / 40 % 40)
                .arg(i % 40);
  const Document page = Read(html);
  EXPECT_NE(page.paragraphFormats.at(3700).borders, ParagraphBorders());
  EXPECT_EQ(page.paragraphFormats.back().borders, ParagraphBorders());
  EXPECT_EQ(ReadRtf(WriteRtf(page)), page);
  EXPECT_EQ(Dump(Read(WriteHtml(page))), Dump(page));
}

// The toolkit fills up every row to the longest one.
TEST_F(PastingTest, TablesHaveNoMoreCellsThanTheirMarkupIsWorth) {
  const auto table = [](const char* start, const char* row, int rows) {
    return Dump(Read(QString::fromUtf8(start) + QString::fromLatin1(row).repeated(rows)));
  };
  EXPECT_EQ(
      table("<table><tr><td colspan=2>a<tr><td rowspan=2 width=300>b<td width=300>c<tr><td>d</table>", "", 0),
      "{0 9000}a$|{0 4500^ 9000}b&c$|{0 4500v 9000}&d$");
  for (const char* start : {"<table><tr><td colspan=20000>",
                            "<td colspan=' +20000'>",
                            "<TD COLSPAN=\"&#50;0000\">",
                            "< td colspan=20000>",
                            "<t&#100; colspan=20000>",
                            "<td><table><tr><td colspan=20000></table>",
                            "<style>p{}<td colspan=20000>",
                            "<td \"colspan\"=9000>",
                            "<td 'colspan'=9000>",
                            "<td colspan\u00A0=9000>",
                            "<td colspan\u3000=9000>",
                            "<td colspan='\u00A09000'>",
                            "<td colspan='&nbsp;9000'>",
                            "<p a=it's><td colspan=9000 b='>",
                            "<p a=b\"><td colspan=9000 b=\">",
                            "</p\"><td colspan=9000 b=\">",
                            "<td colspan=9000>a<!</table><!<table>",
                            "<td colspan=9000>a<?</table><?<table>",
                            "<!a<!-- ><td colspan=9000>-->",
                            "<td colspan=9000>a<!--></table>--><!--><table>-->"})
    EXPECT_LT(table(start, "<tr><td>x", 400).size(), 50'000u) << start;
  const std::string sheet = table("<table>", "<tr><td>a</td><td>b</td><td>c</td></tr>", 5000);
  EXPECT_EQ(std::count(sheet.begin(), sheet.end(), '&'), 10'000);
}

TEST_F(PastingTest, CopyOffersTheSelectionThreefold) {
  box.SetTextRTF(Page(InLoud("a<b\\tab " + PictureGroup(R"(\picwgoal300\pichgoal150)")) +
                      R"({\field{\*\fldinst HYPERLINK "x://y?a&b"}{\fldrslt\highlight1 c}}\plain)"));
  const std::string before = Dump(Taken());
  box.selectAll();
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a<b\tc"));
  const QString html = QApplication::clipboard()->mimeData()->html();
  box.SetTextRTF("");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Dump(Taken()), before) << "RTF";
  const Document back = Read(html);
  EXPECT_TRUE(Dump(back).starts_with(
      "(b i u s 37 #ff0000)a<b><png 109 300x150>(u 20 #0000ee on #ff0000 -> x://y?a&b)c"))
      << Dump(back);
  EXPECT_EQ(back.pictures.at(0).bytes, SignedPng().toStdString());
}

TEST_F(PastingTest, ABrowsersPictureComesAsItsFileOrElseAsItsBitmap) {
  for (const char* html : {"<img src='http://example.invalid/a.png' alt='a'>", ""})
    for (const bool hasFile : {false, true}) {
      box.SetTextRTF("");
      Paste([&](QMimeData& data) {
        Offering("", html)(data);
        data.setImageData(Checkers({64, 32}));
        if (hasFile) data.setData(QStringLiteral("image/png"), SignedPng());
      });
      const Picture picture = Taken().pictures.at(0);
      EXPECT_EQ(picture.bytes == SignedPng().toStdString(), hasFile);
      EXPECT_EQ(picture.widthTwips == 960 && picture.heightTwips == 480, !hasFile);
    }
}

TEST_F(PastingTest, TheFileOfALargeBitmapIsMadeWhileOneGoesOnWriting) {
  const QImage large = Checkers({2000, 1500});
  for (const char* html : {"", "<img src='http://example.invalid/a.png' width=300>"}) {
    box.SetTextRTF("");
    Paste([&](QMimeData& data) {
      Offering("", html)(data);
      data.setImageData(large);
    });
    EXPECT_FALSE(AreFilesMade(*box.document()));
    ExpectKept();
    const Picture picture = Taken().pictures.at(0);
    EXPECT_EQ(DecodedPicture(picture).convertToFormat(large.format()), large);
    EXPECT_EQ(picture.widthTwips == 4500 && picture.heightTwips == 3375, *html != 0);
    EXPECT_LE(picture.widthTwips / 15, box.viewport()->width());
    EXPECT_NEAR(picture.widthTwips * 1500.0 / 2000, picture.heightTwips, 1)
        << "as wide as the page, in its shape";
  }
}

TEST_F(PastingTest, ManyPicturesAreLongToMake) {
  Document page = ReadRtf("{\\rtf1 {\\pict\\pngblip\\picwgoal900\\pichgoal900 00}}");
  for (const bool isLong : {false, true}) {
    page.pictures[0].bytes.resize(isLong ? 5'000'000 : 50'000);
    FillDocument(page, *box.document());
    box.selectAll();
    box.copy();
    EXPECT_EQ(IsLongToMake(*QApplication::clipboard()->mimeData()), isLong);
  }
}

}  // namespace
}  // namespace richtext
