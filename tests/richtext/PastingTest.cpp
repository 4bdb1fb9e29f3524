// What comes into the text box from other programs, and what goes out to them.
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtWidgets/QMenu>

#include "BoxFixture.h"
#include "RtfDump.h"
#include "richtext/HtmlReader.h"

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
  static void OfferWords(QMimeData& data) {
    data.setData(QStringLiteral("text/rtf"), "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs20\\b rtf}");
    data.setHtml(QStringLiteral("<i>html</i>"));
    data.setText(QStringLiteral("text"));
  }
};

TEST_F(PastingTest, TakesTheRichestOffer) {
  Paste(OfferWords);
  EXPECT_EQ(box.Text(), QStringLiteral("rtf"));
  EXPECT_TRUE(FormatAt(3).bold);
  box.selectAll();
  Paste([](QMimeData& data) { data.setData(QStringLiteral("text/rtf"), "\r\n {\\urtf1 old\\u233?}"); });
  EXPECT_EQ(box.Text(), QStringLiteral("old\u00e9"));
  box.selectAll();
  Paste([](QMimeData& data) {
    data.setData(QStringLiteral("text/rtf"), "no rtf at all");
    data.setHtml(QStringLiteral("<i>html</i>"));
    data.setText(QStringLiteral("text"));
    data.setImageData(Checkers({2, 2}));
  });
  EXPECT_EQ(box.Text(), QStringLiteral("html"));
  EXPECT_TRUE(FormatAt(4).italic);
  box.selectAll();
  Paste([](QMimeData& data) { data.setText(QStringLiteral("a\u0001b\r\nc\ufffcd\ufffe") + QChar(0xd800)); });
  EXPECT_EQ(box.Text(), QStringLiteral("ab\ncd\ufffd"));
  ExpectKept();
}

TEST_F(PastingTest, PlainPasteTakesTheCaretsFormat) {
  GiveJournalFont();
  Copy(OfferWords);
  Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  PickFromMenu(QStringLiteral("Paste without formatting"));
  EXPECT_EQ(box.Text(), QStringLiteral("texttext"));
  EXPECT_EQ(Taken().runs.size(), 1u);
  EXPECT_EQ(FormatAt(8), Journal);
}

TEST_F(PastingTest, AParagraphThatIsPartedKeepsItsFormat) {
  for (const auto& [place, paragraphs] : {std::pair{2, "[right]abone|[right]twocd"},
                                          {0, "[center]one|[right]twoabcd"},
                                          {4, "[right]abcdone|two"}}) {
    SCOPED_TRACE(paragraphs);
    box.SetTextRTF("{\\rtf1\\qr abcd\\par}");
    box.SetSelStart(place);
    Paste([](QMimeData& data) {
      data.setData(QStringLiteral("text/rtf"), "{\\rtf1\\qc one\\par\\pard two\\par}");
    });
    EXPECT_EQ(Dump(Taken()), paragraphs);
  }
}

TEST_F(PastingTest, CutFromTheMenuKeepsTheCaretsFormat) {
  Set(Page({{u"loud", Loud}}));
  box.selectAll();
  PickFromMenu(QStringLiteral("Cut"));
  Type("x");
  EXPECT_EQ(box.Text(), QStringLiteral("x"));
  EXPECT_EQ(FormatAt(1), Loud);
}

TEST_F(PastingTest, HtmlBecomesWhatAPageKeeps) {
  const struct {
    const char* html;
    const char* page;
  } cases[] = {
      {"a<b>b</b><i>c</i><u>d</u><s>e</s>",
       "(20 Arial)a(b 20 Arial)b(i 20 Arial)c(u 20 Arial)d(s 20 Arial)e"},
      {"<del>a</del><ins>b</ins><strike>c</strike> <b style='text-decoration-line:underline'>d</b>",
       "(s 20 Arial)a(u 20 Arial)b(s 20 Arial)c(20 Arial) (b u 20 Arial)d"},
      {"<a name=x>a</a><a href=y>b</a>", "(20 Arial)a(u 20 Arial #0000ee -> y)b"},
      {"a < b", "(20 Arial)a < b"},
      {"<h1>big</h1>", "(b 40 Arial)big"},
      {"<p style='font-size:16px'>px</p>", "(Arial)px"},
      {"<p style='font-family:\"No Such Font\",sans-serif;font-size:9pt'>x</p>", "(18 Arial)x"},
      {"<p align=center>x<br>y</p><p>z", "[center](20 Arial)x/y|z"},
      {"<table><tr><td>a<td>b<tr><td><p>c<p>d<td>e</table>", "(20 Arial)a>b|c|d>e"},
      {"<font color=#ff0000>x</font><hr>", "(20 Arial #ff0000)x"},
      {"<style>@import 'http://example.invalid/';</style><script>x</script>a", "(20 Arial)a"},
  };
  for (const auto& [html, expected] : cases) {
    Document page = ReadHtml(QString::fromUtf8(html), Plain, {});
    for (ParagraphFormat& format : page.paragraphFormats) format.spaceBefore = format.spaceAfter = 0;
    EXPECT_EQ(Dump(page), expected) << html;
  }
}

TEST_F(PastingTest, HtmlListsArePagesLists) {
  const Document page =
      ReadHtml(QStringLiteral("<ol type=a><li>one<ul><li>two</ul><li>three</ol>"), Plain, {});
  const ListFormat letters{ListKind::LowerLetter, 1, 0, u"", u"."};
  ASSERT_EQ(page.paragraphs.size(), 3u);
  EXPECT_EQ(ParagraphsOf(page)[0].list, letters);
  EXPECT_EQ(ParagraphsOf(page)[1].list, (ListFormat{ListKind::Bullet, 1, 1, u"\u2022", u""}));
  EXPECT_EQ(ParagraphsOf(page)[2].list, letters);
  EXPECT_EQ(ParagraphsOf(page)[1].leftIndent, 1440);
}

TEST_F(PastingTest, HtmlListsKeepTheirNumbers) {
  const struct {
    const char* html;
    const char* lists;  // of the paragraphs
  } cases[] = {
      {"<ol start=3><li>a<li>b</ol>", "decimal3 #.|decimal3 #.|"},
      {"<OL type='a' style='margin: 0' START=\"2\"><li>a</ol>", "letter2 #.|"},
      {"<ol><li>a<p>more</p><li>b</ol>x<ol start=4><li>c</ol>", "decimal1 #.||decimal2 #.||decimal4 #.|"},
      {"<ol><li>a<ol><li>b<li>c</ol><li>d<ul><li>e</ul><ol><li>f</ol></ol>",
       "decimal1 #.|>decimal1 #.|>decimal1 #.|decimal1 #.|>bullet \u2022|>decimal1 #.|"},
      {"<ol><li>a</li><ol><li>b</li></ol><li>c</li></ol>", "decimal1 #.|>decimal1 #.|decimal1 #.|"},
      {"<ol start=1><li>a</ol><ol start=2><li>b</ol>", "decimal1 #.|decimal1 #.|"},
  };
  for (const auto& [html, expected] : cases) {
    std::string lists;
    for (const ParagraphFormat& paragraph : ParagraphsOf(ReadHtml(QString::fromUtf8(html), Plain, {})))
      lists += Dump(paragraph.list) + '|';
    EXPECT_EQ(lists, expected) << html;
  }
}

TEST_F(PastingTest, PagesBackgroundsStayHighlightsCome) {
  const struct {
    const char* html;
    std::vector<std::optional<std::uint32_t>> highlights;  // of the runs
  } cases[] = {
      {"a <mark>b</mark> c", {{}, 0x00ffff, {}}},
      {"<mark>b</mark>", {0x00ffff}},
      {"<span style='background-color:rgb(255,200,0)'>b</span>", {0x00c8ff}},
      {"<p style='background:yellow'>a</p>", {{}}},
      {"<p style='background:#eeeeee'>a <span style='background:#eeeeee'>b</span></p>", {{}}},
      {"<body style='background:#112233'>a</body>", {{}}},
      {"<span style='background-color:rgb(255,255,255)'>chrome</span>", {{}}},
      {"<span style='background-color:#112233'>dark page <b style='background-color:#112233'>b</b></span>",
       {{}, {}}},
      {"<span style='background-color:#112233'>dark page </span><mark>b</mark>", {{}, 0x00ffff}},
      {"<table><tr><td bgcolor=red>a</table>", {{}}},
      {"<span style='background:rgba(0,0,0,0)'>a</span>", {{}}},
      // What is hardly seen, and what stands for another's background, is none.
      {"a <code style='background-color: rgba(27,31,35,0.05)'>b</code>", {{}, {}}},
      {"a <code style='background-color:hsl(210deg 8% 90%)'>b</code>", {{}, {}}},
      {"a <b style='background:inherit'>b</b><i style='background-color:var(--x, red)'>c</i>", {{}, {}, {}}},
      {"a <b style='Background-Color:#fff2a8'>b</b>", {{}, 0xa8f2ff}},
      {"a <b style='background-color:#ffff0080'>b</b>", {{}, 0x7fffff}},
      {"a <b style=\"background-color:rgb(255 255 0 / 50%)\">b</b>", {{}, 0x7fffff}},
      {"a <b style='background:none repeat scroll rgb(255 255 0)'>b</b>", {{}, 0x00ffff}},
      {"<style>b { color: inherit; background: url(a;b) #ff08 } </style>a <b>b</b>", {{}, 0x77ffff}},
  };
  for (const auto& [html, highlights] : cases) {
    const Document page = ReadHtml(QString::fromUtf8(html), Plain, {});
    std::vector<std::optional<std::uint32_t>> found;
    for (const auto& run : page.runs) found.push_back(page.formats[run.format].highlight);
    EXPECT_EQ(found, highlights) << html;
  }
}

TEST_F(PastingTest, LettersOfADarkPageCanBeRead) {
  const auto ink = [](const char* html) {
    return ReadHtml(QString::fromUtf8(html), Plain, {}).formats.at(0).color;
  };
  EXPECT_EQ(ink("<span style='color:#e6edf3;background:#0d1117'>a</span>"), std::nullopt);
  EXPECT_EQ(ink("<span style='color:#ffcc00'>a</span>"), 0x00ccffu);
  EXPECT_EQ(ink("<span style='color:rgba(0,0,0,.8)'>a</span>"), 0x333333u);
  for (const char* unknown : {"inherit", "var(--ink)", "oklch(0.5 0.2 20)", "windowtext", "#12345"})
    EXPECT_EQ(ink(qPrintable(QStringLiteral("<p style='color:%1'>a").arg(QLatin1String(unknown)))),
              std::nullopt);
}

TEST_F(PastingTest, WhatWasPastedIsKept) {
  const char* const pages[] = {
      "<h1>Head</h1><p style='line-height:1.6; margin-left:33px; text-indent:7px'>a <sub>b</sub></p>",
      "<ul><li>one<li>two</ul><blockquote dir=rtl>quote</blockquote><pre>a  b\n\tc</pre>",
      "<p style='font-variant:small-caps; line-height:21px'>x <a "
      "href='https://example.invalid/'>link</a></p>",
      "<table><tr><td>a<td>b</table>",
  };
  for (const char* html : pages) {
    box.SetTextRTF("");
    Paste([&](QMimeData& data) { data.setHtml(QString::fromUtf8(html)); });
    EXPECT_NE(box.Text(), QString());
    ExpectKept();
  }
}

TEST_F(PastingTest, PicturesComeFromTheClipboardAlone) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  const std::string png = SignedPng();
  file.write(png.data(), static_cast<qint64>(png.size()));
  file.flush();
  const QString named = QStringLiteral("a<img src='file://%1' alt='words'>b").arg(file.fileName());
  const QString held = QStringLiteral("<img src='data:image/png;base64,%1' width=30>")
                           .arg(QLatin1String(QByteArray::fromStdString(png).toBase64()));
  EXPECT_EQ(Dump(ReadHtml(named, Plain, {})), "(20 Arial)awordsb");
  const Document page = ReadHtml(named + held, Plain, Checkers({4, 4}));
  ASSERT_EQ(page.pictures.size(), 2u);
  EXPECT_EQ(page.pictures[0].widthTwips, 60) << "the clipboard's own bitmap";
  EXPECT_EQ(page.pictures[1].bytes, png);
  EXPECT_EQ(page.pictures[1].widthTwips, 450);
  const QString styled = QString(held).replace(QLatin1String("width=30"),
                                               QLatin1String("height=9 style='width:80.5px; height:auto'"));
  EXPECT_EQ(ReadHtml(styled, Plain, {}).pictures.at(0).widthTwips, 1200);
  EXPECT_EQ(ReadHtml(styled, Plain, {}).pictures.at(0).heightTwips, 0) << "as wide";
}

// Each element costs the toolkit a look at all that is open.
TEST_F(PastingTest, DeepMarkupIsReadQuickly) {
  const QString deep =
      QStringLiteral("<div><p>x</p>").repeated(20000) + QStringLiteral("</div>").repeated(20000);
  const Document page = ReadHtml(deep + QStringLiteral("<b>y</b>"), Plain, {});
  EXPECT_EQ(page.text.size(), 20001u);
  EXPECT_EQ(page.formats.size(), 2u) << "what follows is read as ever";
}

// The toolkit fills up every row to the longest one.
TEST_F(PastingTest, TablesHaveNoMoreCellsThanTheirMarkupIsWorth) {
  const auto table = [](const char* start, const char* row, int rows) {
    return Dump(ReadHtml(QLatin1String(start) + QString::fromLatin1(row).repeated(rows), Plain, {}));
  };
  EXPECT_EQ(table("<table><tr><td colspan=2>a<tr><td rowspan=2>b<td>c<tr><td>d</table>", "", 0),
            "(20 Arial)a|b>c|d");
  for (const char* start :
       {"<table><tr><td colspan=20000>", "<td colspan=' +20000'>", "<TD COLSPAN=\"&#50;0000\">",
        "< td colspan=20000>", "<t&#100; colspan=20000>", "<td><table><tr><td colspan=20000></table>"})
    EXPECT_LT(table(start, "<tr><td>x", 400).size(), 50'000u) << start;
  const std::string sheet = table("<table>", "<tr><td>a</td><td>b</td><td>c</td></tr>", 5000);
  EXPECT_EQ(std::count(sheet.begin(), sheet.end(), '>'), 10'000);
}

TEST_F(PastingTest, MeasuresBeyondAllBoundsAreTheLargest) {
  const Document page = ReadHtml(
      QStringLiteral("<p style='line-height:99999999999%; font-size:99999999999pt'>x</p>"), Plain, {});
  EXPECT_EQ(page.paragraphFormats.at(0).lineSpacing, 32767);
  EXPECT_EQ(page.formats.at(0).halfPoints, 3276);
}

TEST_F(PastingTest, CopyOffersTheSelectionThreefold) {
  CharacterFormat link = Plain;
  link.link = "https://example.invalid/?a&b";
  link.highlight = 0x00ffff;
  Document page = Page({{u"a<b\t\ufffc", Loud}, {u"c", link}});
  page.pictures = {{PictureKind::Png, SignedPng(), {}, 300, 150}};
  page.formats.push_back(Plain);
  page.paragraphs[0].markFormat = 2;
  FillDocument(page, *box.document());
  const Document before = Taken();
  box.selectAll();
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a<b\tc"));
  const QString html = QApplication::clipboard()->mimeData()->html();
  box.SetTextRTF("");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(TakeDocument(*box.document()), before) << "RTF";
  const Document back = ReadHtml(html, {}, {});
  EXPECT_EQ(back.text, page.text);
  EXPECT_EQ(back.pictures, page.pictures);
  EXPECT_EQ(back.formats[1].link, link.link);
  EXPECT_EQ(back.formats[1].highlight, link.highlight);
  EXPECT_TRUE(back.formats[0].bold && back.formats[0].italic && back.formats[0].strikethrough);
}

TEST_F(PastingTest, PastedBitmapIsASmallPng) {
  const QImage image = Checkers({64, 32});
  for (const char* html : {"<img src='http://example.invalid/a.png' alt='a'>", ""}) {
    box.SetTextRTF("");
    Paste([&](QMimeData& data) {
      data.setImageData(image);
      if (*html) data.setHtml(QString::fromUtf8(html));
    });
    const Document page = Taken();
    ASSERT_EQ(page.pictures.size(), 1u);
    const Picture& picture = page.pictures[0];
    EXPECT_EQ(std::pair(picture.widthTwips, picture.heightTwips), std::pair(64 * 15, 32 * 15));
    EXPECT_LT(picture.bytes.size(), 200u);
    const QImage stored = QImage::fromData(QByteArray::fromStdString(picture.bytes));
    EXPECT_EQ(stored.convertToFormat(QImage::Format_ARGB32), image);
  }
}

}  // namespace
}  // namespace richtext
