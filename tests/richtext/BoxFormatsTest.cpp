// Every format of a page through the text box's document and back.
#include "platform/files/InputFile.h"
#include "richtext/document/Limits.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/Labels.h"
#include "richtext/textdocument/Pictures.h"
#include "tests/richtext/BoxFixture.h"

namespace richtext {
namespace {

using BoxFormatsTest = BoxTest;

// The pages are among those that the fuzz targets begin with: each look between letters of another, and
// alone.
TEST_F(BoxFormatsTest, HoldsEveryLook) {
  for (const std::string page : {"looks.rtf", "paragraph-looks.rtf"})
    ExpectHeld(platform::ReadFile(fixture::PathOfSample("../../fuzz/seeds/rtf/" + page)));
}

class TableTest : public BoxTest {
 protected:
  TableTest() { Set(Page("x\\par " + row_ + row_ + R"(\pard y)")); }
  const std::string row_ =
      R"(\trowd\trrh-600\trbrdrh\brdrs\brdrw45\cellx900\clcbpat2\cellx2500\pard\intbl a long cell\cell b\cell\row )";
};

TEST_F(TableTest, IsDrawnInItsCells) {
  box.show();
  const QImage shot = box.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
  const auto isAt = [&](QRgb color, int x) {
    int pixels = 0;
    for (int y = 0; y < shot.height(); ++y) pixels += shot.pixel(x, y) == color;
    return pixels;
  };
  QTextCursor b(box.document()->find(QStringLiteral("b")));
  b.setPosition(b.selectionStart());
  const QRect cell = box.cursorRect(b);
  EXPECT_NEAR(cell.left(), 4 + 900 / 15 + 3, 2);
  EXPECT_GT(isAt(qRgb(1, 0, 0), 130), 2 * 2 * cell.height())
      << "the ground of both rows, two lines high each";
  EXPECT_EQ(isAt(qRgb(1, 0, 0), 30), 0);
  EXPECT_EQ(isAt(qRgb(0, 0, 0), 130), 3) << "one border between the rows";
}

// A tab ends a cell and a line a row; the brackets are what is selected.
TEST_F(TableTest, KeysKeepItsCells) {
  const auto all = Qt::ControlModifier;
  struct {
    int start, length;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* left;
  } cases[] = {{14, 0, Qt::Key_Backspace, {}, "x\na long cell[]\tb\t\na long cell\tb\t\ny"},
               {14, 0, Qt::Key_Backspace, all, "x\na long cell[]\tb\t\na long cell\tb\t\ny"},
               {13, 0, Qt::Key_Delete, all, "x\na long cell\t[]b\t\na long cell\tb\t\ny"},
               {1, 0, Qt::Key_Delete, {}, "x\n[]a long cell\tb\t\na long cell\tb\t\ny"},
               {17, 0, Qt::Key_Backspace, {}, "x\na long cell\tb\t[]\na long cell\tb\t\ny"},
               {14, 0, Qt::Key_Down, {}, "x\na long cell\tb\t\na long cell\t[]b\t\ny"},
               {5, 10, Qt::Key_Delete, {}, "x\n[\t]\t\na long cell\tb\t\ny"},
               {5, 20, Qt::Key_Delete, {}, "x[]\ny"},
               {30, 0, Qt::Key_Tab, {}, "x\na long cell\tb\t\na long cell\tb\t\n[]\t\t\ny"}};
  for (const auto& [start, length, key, modifiers, left] : cases) {
    Set(Page("x\\par " + row_ + row_ + R"(\pard y)"));
    Select(start, length);
    Press(key, modifiers);
    QString text = box.Text();
    text.insert(box.SelStart() + box.SelLength(), u']').insert(box.SelStart(), u'[');
    EXPECT_EQ(text.toStdString(), left) << start;
    while (box.document()->isUndoAvailable()) box.undo();
    EXPECT_EQ(Text(), "x\na long cell\tb\t\na long cell\tb\t\ny");
  }
}

// Of cells that are copied a row is made; in a cell they are its paragraphs.
// A selection that reaches over a border would be the toolkit's whole row.
TEST_F(TableTest, DeleteTakesOneLetterWhereverHiddenTextStands) {
  const std::string page = Page(
      R"(before{\v a}\par\trowd\cellx2000\cellx4000\cellx6000\intbl one{\v b}\cell {\v c}\cell two\cell\row after)");
  const auto letters = [&] {
    const std::string text = Text();
    return std::count_if(text.begin(), text.end(),
                         [](char letter) { return letter >= 'a' && letter <= 'z'; });
  };
  Set(page);
  const auto all = letters();
  const int length = static_cast<int>(box.Text().size());
  for (int place = 0; place <= length; ++place) {
    Set(page);
    box.SetSelStart(place);
    for (int pressed = 1; pressed <= 3; ++pressed) {
      Press(Qt::Key_Delete);
      EXPECT_GE(letters(), all - pressed) << place;
    }
  }
}

TEST_F(TableTest, CellsAreCutAndPasted) {
  Select(5, 10);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a long cell\tb\t"));
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains(u"<tr style=\"height: 30pt\">"_qs));
  Select(0, 0);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(), "a long cell\tb\t\nx\na long cell\tb\t\na long cell\tb\t\ny");
  Type("z");
  EXPECT_EQ(Text().substr(0, 17), "a long cell\tb\t\nzx");
  Select(12, 0);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text().substr(0, 27), "a long cell\ta long cell\nbb\t");
  ExpectKept();
}

// Neighbours stand in one frame, which the last of them ends when Enter finds it empty.
TEST_F(BoxFormatsTest, FramesAreDrawnAroundNeighbours) {
  Set(Page(R"(x\par\sa200\brdrl\brdrs\brdrw45\brdrcf1\brsp60\brdrb\brdrs\brdrcf1 a\par b\par\pard y)"));
  const auto inked = [&](int x) {
    const QImage shot = box.viewport()->grab().toImage();
    std::vector<int> rows;
    for (int y = 0; y < shot.height(); ++y)
      if (shot.pixelColor(x, y) == QColor(255, 0, 0)) rows.push_back(y);
    return rows;
  };
  QTextCursor b(box.document()->find(QStringLiteral("b")));
  const std::vector<int> left = inked(5), below = inked(200);
  ASSERT_FALSE(left.empty());
  EXPECT_EQ(left.back() - left.front() + 1, static_cast<int>(left.size())) << "the space between them too";
  EXPECT_NEAR(left.back(), box.cursorRect(b).bottom(), 3);
  EXPECT_EQ(below.size(), 1U) << "below the second alone";
  Select(2, 3);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->mimeData()->html().count(QStringLiteral("border-left: 2.25pt solid")),
            1);
  Select(5, 0);
  Press(Qt::Key_Return);
  EXPECT_GT(inked(5).size(), left.size());
  Press(Qt::Key_Return);
  EXPECT_EQ(inked(5), left);
  EXPECT_EQ(Text(), "x\na\nb\n\ny");
  ExpectKept();
  Set(Page(R"(\brdrl\brdrs\brdrw45\brdrcf1\brsp60 a\par{\*\pn\pnlvlblt{\pntxtb\'b7}}\fi-360\li720 b)"));
  QTextCursor item(box.document()->find(QStringLiteral("b")));
  EXPECT_NEAR(inked(5).back(), box.cursorRect(item).bottom(), 3) << "beside an item of a list too";
  Set(Page(R"(\rtlpar\box\brdrs\brdrw30\brsp75{\*\pn\pnlvlblt{\pntxtb\'b7}}\fi-360\li720 b)"));
  EXPECT_LE(FrameOf(box.document()->begin()).place.right() + 1, box.viewport()->width());
}

TEST_F(BoxFormatsTest, LeadersAreDrawnAlongTheirTabs) {
  const auto inked = [&](int line) {
    const QRect letters = box.cursorRect(QTextCursor(box.document()->findBlockByNumber(line)));
    const QImage shot = box.viewport()->grab(QRect(40, letters.top(), 90, letters.height())).toImage();
    QImage blank = shot;
    blank.fill(Qt::white);
    return shot != blank;
  };
  const std::string stops = R"(\tx200\tqr\tldot\tx3000)", plain = R"(\tldot\tx200\tqr\tx3000)";
  Set(Page(stops + R"( abc\tab 1\par\pard\fi-300\li300)" + stops + R"( abc\tab 2\par\pard)" + plain +
           R"( abc\tab 3)"));
  EXPECT_TRUE(inked(0) && inked(1));
  EXPECT_FALSE(inked(2)) << "not the leader of the stop that the tab goes to";
  box.SetSelStart(5);
  Press(Qt::Key_Return);
  for (const Qt::Key key : {Qt::Key_W, Qt::Key_W, Qt::Key_Tab}) {
    EXPECT_FALSE(inked(1));
    Press(key);
  }
  EXPECT_TRUE(inked(1)) << "typed behind it";
  Select(0, 6);
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_FALSE(inked(2));
  box.SetSelStart(0);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(inked(0) && inked(1) && inked(2)) << "and pasted";
  Set(Page(R"(\tx300\tqr\tldot\tx9350\li150 abc\tab 12\par x)"));
  EXPECT_EQ(box.document()->firstBlock().layout()->lineCount(), 1) << "a stop beyond the page";
  ExpectKept();
  for (const char* leader : {"dot", "mdot", "hyph", "ul", "th", "eq"})
    ExpectHeld(Page(std::string(R"(\fi-100\li300\tx200\tl)") + leader + R"(\tx900 abc\tab b)"));
}

// Above its first paragraph and below its last one, whatever these are. The first one can leave it, too.
TEST_F(BoxFormatsTest, FramesHaveRoomForTheirBorders) {
  const int room = 6;  // pixels: 5 within the border, and its own
  Set(Page(R"(x\par\sb150\box\brdrs\brdrw15\brsp75 a\par\sb0 b\par\pard y)"));
  const auto gaps = [&] {
    std::vector<int> found;
    for (QTextBlock block = box.document()->begin().next(); block.isValid(); block = block.next())
      found.push_back(box.cursorRect(QTextCursor(block)).top() -
                      box.cursorRect(QTextCursor(block.previous())).bottom() - 1);
    return found;
  };
  const std::string before = box.TextRTF();
  EXPECT_EQ(gaps(), (std::vector{10 + room, 0, room}));
  Select(5, 0);
  Press(Qt::Key_Return);
  EXPECT_EQ(gaps(), (std::vector{10 + room, 0, 0, room}));
  Select(4, 2);
  Press(Qt::Key_Backspace);
  Select(2, 2);
  Press(Qt::Key_Delete);
  EXPECT_EQ(gaps(), (std::vector{room, room}));
  while (box.document()->isUndoAvailable()) Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(gaps(), (std::vector{10 + room, 0, room}));
  EXPECT_EQ(box.TextRTF(), before);
  for (int press = 0; press < 2; ++press) {
    Select(2, 0);
    Press(Qt::Key_Return);
  }
  EXPECT_EQ(gaps(), (std::vector{10, 10 + room, 0, room})) << "out of the frame above it";
  ExpectKept();
}

// Each paragraph between its room above and below; what gives or takes some is one step of undo with it.
class FrameRoomTest : public BoxTest {
 protected:
  std::string Rooms() const {
    QStringList rooms;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
      rooms += QString::number(block.blockFormat().topMargin()) + block.text() +
               QString::number(block.blockFormat().bottomMargin());
    return rooms.join(u' ').toStdString();
  }
  void ExpectUndone(const std::string& rooms) {
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rooms(), rooms);
  }
  const std::string plain = R"(\pard )", frame = R"(\pard\box\brdrs\brdrw15\brsp75 )";
};

TEST_F(FrameRoomTest, BelongsToTheKeyThatChangesIt) {
  for (const int begin : {2, 4}) {
    Set(Page(plain + R"(a\par)" + frame + R"(b\par c)"));
    Select(begin, 0);
    Press(Qt::Key_Backspace);
    ExpectUndone("0a0 6b0 0c6");
  }
  Set(Page(frame + R"(aa\par)" + plain + R"(cc\par)" + frame + "bb"));
  Select(2, 0);
  Press(Qt::Key_Return);
  Type("uv");
  for (int press = 0; press < 3; ++press) Press(Qt::Key_Backspace);
  EXPECT_EQ(Rooms(), "6aa6 0cc0 6bb6");
  ExpectUndone("6aa0 06 0cc0 6bb6");
  ExpectUndone("6aa0 0uv6 0cc0 6bb6");
}

TEST_F(FrameRoomTest, IsMadeForWhatComesIn) {
  const std::string page = Page(frame + R"(aa\par bb\par)" + plain + "c");
  const auto set = [&](int start, int length) {
    Set(page);
    Select(start, length);
  };
  set(0, 6);
  Press(Qt::Key_C, Qt::ControlModifier);
  Select(7, 0);
  Press(Qt::Key_Return);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Rooms(), "6aa0 0bb6 0c0 6aa0 0bb6 00");
  set(1, 0);
  Copy([](QMimeData& data) { data.setText(QStringLiteral("x\ny\nz\nw")); });
  Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Rooms(), "6ax0 0y0 0z0 0wa0 0bb6 0c0");
  set(1, 3);
  QInputMethodEvent word;
  word.setCommitString(QStringLiteral("ni"));
  QApplication::sendEvent(&box, &word);
  EXPECT_EQ(Rooms(), "6anib6 0c0");
  ExpectUndone("6aa0 0bb6 0c0");
  set(1, 3);
  box.InsertBitmap(Checkers({1, 1}));
  EXPECT_EQ(Rooms(), "6a\uFFFCb6 0c0");
  ExpectUndone("6aa0 0bb6 0c0");
}

TEST_F(BoxFormatsTest, UnderlineOfAPersonIsAPlainOne) {
  Set(Page(R"(\ulth thick)"));
  EXPECT_EQ(box.SelUnderline(), true);
  box.selectAll();
  for (const bool on : {true, false}) {
    box.SetSelUnderline(on);
    EXPECT_EQ(FormatAt(5), on ? "(u 20 Arial)" : Plain);
  }
}

class HiddenTextTest : public BoxTest {
 protected:
  HiddenTextTest() { ExpectHeld(Page("one" + InLoud("\\v hid" + PictureGroup("") + "en") + "two")); }
};

TEST_F(HiddenTextTest, IsNotShownAndPassedInOneStep) {
  EXPECT_EQ(Text(), "onetwo");
  box.SetSelStart(100);
  EXPECT_EQ(box.SelStart(), 6);
  Select(2, 2);
  EXPECT_EQ(box.SelLength(), 2);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("et"));
  EXPECT_FALSE(QApplication::clipboard()->mimeData()->html().contains(QStringLiteral("hid")));
  box.SetSelStart(2);
  for (const auto& [key, place] :
       {std::pair{Qt::Key_Right, 3}, {Qt::Key_Right, 4}, {Qt::Key_Left, 3}, {Qt::Key_Left, 2}}) {
    Press(key);
    EXPECT_EQ(box.SelStart(), place);
  }
}

TEST_F(HiddenTextTest, StaysWhenLettersBesideItComeAndGo) {
  box.SetSelStart(3);
  Type("x");
  EXPECT_EQ(Text(), "onextwo");
  EXPECT_EQ(FormatAt(box.textCursor().position()), Loud) << "and not hidden";
  Press(Qt::Key_Backspace);
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int, const char*> keys[] = {
      {Qt::Key_Backspace, Qt::ShiftModifier, 3, "ontwo"},
      {Qt::Key_Delete, Qt::KeypadModifier, 2, "onwo"},
      {Qt::Key_Delete, {}, 1, "owo"},
      {Qt::Key_Backspace, Qt::ControlModifier, 2, "o"},
  };
  for (const auto& [key, modifiers, start, text] : keys) {
    box.SetSelStart(start);
    Press(key, modifiers);
    EXPECT_EQ(Text(), text);
  }
  EXPECT_NE(Taken().text.find(u"hid\ufffcen"), std::u16string::npos);
}

class ListsTest : public BoxTest {
 protected:
  // Paragraphs "a", "b" and so on.
  void SetItems(const std::vector<std::string>& items) {
    std::string body;
    char letter = 'a';
    for (const std::string& item : items) body += "\\pard" + item + ' ' + letter++ + "\\par";
    Set(Page(body));
  }
  std::string Labels() {
    QStringList labels;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
      labels += LabelOf(block);
    return labels.join(u' ').toStdString();
  }
  const std::string number = R"({\*\pn\pnlvlbody\pndec{\pntxta .}}\fi-360\li720)";
};

TEST_F(ListsTest, CountsOnOverDeeperItemsAlone) {
  const std::string deep = R"({\*\pn\pnlvl2\pnlcltr{\pntxta )}})", bullet = R"({\*\pn\pnlvlblt})";
  const std::string seventh = R"({\*\pn\pnlvlbody\pndec\pnstart7{\pntxta .}})";
  const std::string ninth = R"({\*\pn\pnlvlbody\pnucrm\pnstart9{\pntxta .}})";
  SetItems({number, deep, deep, number, "", number, bullet, seventh, number});
  EXPECT_EQ(Labels(), "1. a) b) 2.  1. \u2022 7. 1.");
  SetItems({deep, number, deep, ninth, ninth});
  EXPECT_EQ(Labels(), "a) 1. a) IX. X.");
}

// What was counted to draw a long list is counted anew behind a change.
TEST_F(ListsTest, ALongListIsDrawnAsItIsAfterAChangeFarAbove) {
  const auto drawn = [](RichTextBox& shown) {
    shown.verticalScrollBar()->setValue(shown.verticalScrollBar()->maximum());
    return shown.viewport()->grab().toImage();
  };
  std::string items;
  for (int item = 0; item < 200; ++item) items += "\\pard" + number + " a\\par";
  Set(Page(items));
  const QImage before = drawn(box);
  box.SetSelStart(4);  // the third item
  Press(Qt::Key_Backspace);
  RichTextBox fresh;
  fresh.resize(box.size());
  fresh.SetTextRTF(box.TextRTF());
  fresh.show();
  EXPECT_NE(drawn(box), before);
  EXPECT_EQ(drawn(box), drawn(fresh));
}

TEST_F(ListsTest, EnterGoesOnAndBackspaceLeaves) {
  SetItems({number, number});
  box.SetSelStart(1);
  Press(Qt::Key_Return);
  Paste([](QMimeData& data) { data.setHtml(QStringLiteral("<b>x</b>")); });
  EXPECT_EQ(Labels(), "1. 2. 3.") << "a word pasted into an empty item stays in the list";
  Press(Qt::Key_Return);
  Press(Qt::Key_Return);
  EXPECT_EQ(Labels(), "1. 2.  1.") << "Enter in an empty item ends the list";
  box.SetSelStart(0);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Labels(), " 1.  1.");
  EXPECT_EQ(Text(), "a\nx\n\nb");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Labels(), "1. 2.  1.");
  ExpectKept();
}

TEST_F(ListsTest, LabelsAreDrawn) {
  SetItems({number});
  const auto margin = [this] { return box.viewport()->grab(QRect(4, 0, 46, 40)).toImage(); };
  QImage blank = margin();
  blank.fill(Qt::white);
  EXPECT_NE(margin(), blank);
  box.SetSelStart(0);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(margin(), blank);
}

// The toolkit's layout would not come back from any of these.
class TooHighTest : public BoxTest {
 protected:
  static std::string Times(int count, const std::string& part) {
    return QString::fromStdString(part).repeated(count).toStdString();
  }
  void ExpectShown() {
    box.grab();
    EXPECT_LT(box.document()->size().height(), 8e6);
    EXPECT_TRUE(box.document()->firstBlock().isVisible());
  }
  bool IsTold() {
    QApplication::processEvents();
    return box.findChild<QWidget*>(QStringLiteral("lblRest"))->isVisible();
  }
};

TEST_F(TooHighTest, IsKeptAndShownAsFarAsItGoes) {
  const std::pair<std::string, bool> pages[] = {
      {"\\fs3276 " + std::string(9000, 'm'), true},
      {"\\li7000\\sl32767\\slmult0 " + Times(4500, "a "), true},
      {"\\deftab32767\\sl32767\\slmult1 " + Times(4500, "\\tab a"), false},
      {"\\fs600\\li7000\\ri-9\\tx8000 " + Times(19'000, "a "), true},
      {"\\fs600 first\\par\\ri7000\\sb32767 " + Times(6000, "a\\par "), true},
  };
  for (const auto& [page, isTold] : pages) {
    ExpectHeld(Page(page));
    ExpectShown();
    EXPECT_EQ(IsTold(), isTold) << page.substr(0, 30);
  }
  box.resize(60, 300);
  ExpectShown();
  box.selectAll();
  Press(Qt::Key_Delete);
  EXPECT_FALSE(IsTold());
}

TEST_F(TooHighTest, ComesOfEditsAsWell) {
  for (const char* text : {"a ", "a\n"}) {
    Set(Page("\\fs2000\\par"));
    Copy([&](QMimeData& data) { data.setText(QString::fromLatin1(text).repeated(4500)); });
    Press(Qt::Key_V, Qt::ControlModifier);
    ExpectShown();
    EXPECT_TRUE(IsTold());
  }
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(IsTold());
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  ExpectShown();
  EXPECT_TRUE(IsTold());
  EXPECT_EQ(Text().size(), 9000u);
}

// A paragraph that alone is too high, in letters that fit; its own are kept.
TEST_F(TooHighTest, IsShownInSmallerLetters) {
  const auto expectLower = [&](bool isLower) {
    ExpectShown();
    EXPECT_EQ(IsTold(), isLower);
    EXPECT_EQ(FormatAt(3000), isLower ? "(800 Arial)" : Plain);
  };
  Set(Page(Times(6400, "m")));
  box.selectAll();
  for (const double size : {400, 10, 400}) {
    box.SetSelFontSize(size);
    expectLower(size > 10);
  }
  box.undo();
  expectLower(false);
  box.redo();
  expectLower(true);
  box.SetSelStart(3000);
  QInputMethodEvent composing(u"ni"_qs, {{QInputMethodEvent::TextFormat, 0, 2, QTextCharFormat()}});
  QApplication::sendEvent(&box, &composing);
  expectLower(true);
  box.CommitComposition();
  Type("x");
  Press(Qt::Key_Return);
  expectLower(true);
  Press(Qt::Key_Backspace);
  box.resize(60, 300);
  expectLower(true);
  box.resize(6000, 300);
  ExpectShown();
  EXPECT_FALSE(IsTold());
}

TEST_F(TooHighTest, ComesOfJoinedParagraphsAsWell) {
  const std::string lines = Times(1500, "a\\line ");
  Set(Page("\\sl-32767\\slmult0 " + lines + "\\par " + lines + "\\par " + lines));
  for (int paragraphs = 3; paragraphs > 1; --paragraphs) {
    ExpectShown();
    EXPECT_TRUE(IsTold());
    box.SetSelStart(box.document()->lastBlock().position());
    Press(Qt::Key_Backspace);
    EXPECT_EQ(box.document()->blockCount(), paragraphs - 1);
  }
  box.grab();
  EXPECT_LT(box.document()->size().height(), 8e6);
  EXPECT_TRUE(IsTold());
  for (const auto& step : {&RichTextBox::undo, &RichTextBox::redo, &RichTextBox::undo}) (box.*step)();
  ExpectShown();
}

// After letters have gone one by one, more would fit.
TEST_F(TooHighTest, AHigherWindowShowsNothingThatIsNotLaidOut) {
  Set(Page("\\fs3276 " + Times(400, "mm\\par ")));
  ExpectShown();
  EXPECT_TRUE(IsTold());
  for (int i = 0; i < 8; ++i) Press(Qt::Key_Delete), Press(Qt::Key_Down);
  box.resize(400, 500);
  ExpectShown();
  for (QTextBlock block = box.document()->begin(); block.isVisible(); block = block.next())
    ASSERT_GT(block.layout()->lineCount(), 0);
}

TEST_F(BoxFormatsTest, KeepsPicturesOfEveryKind) {
  const std::string redPixel = "28000000010000000100000001001800" + std::string(48, '0') + "0000ff00";
  ExpectHeld(Page(R"({\pict\dibitmap0\picw1\pich1\picwgoal150\pichgoal150 )" + redPixel +
                  R"(}{\pict\emfblip\picwgoal300\pichgoal150 00}{\pict\macpict\picwgoal15\pichgoal15 00})"));
  const QImage drawn = box.viewport()->grab().toImage();
  EXPECT_EQ(drawn.pixelColor(8, 10), QColor(Qt::red));
  EXPECT_EQ(drawn.pixelColor(20, 10), drawn.pixelColor(30, 12)) << "a placeholder is an even field";
  EXPECT_NE(drawn.pixelColor(20, 10), QColor(Qt::white));
  const std::string drawing =
      "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9'/></svg>";
  for (const PictureKind kind : {PictureKind::Png, PictureKind::Jpeg}) {
    Picture picture;
    picture.kind = kind;
    picture.bytes = drawing;
    EXPECT_TRUE(DecodedPicture(picture).isNull()) << "a drawing could open files";
  }
}

}  // namespace
}  // namespace richtext
