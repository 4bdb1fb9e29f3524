// The font of the text, and the emoticons that go into it.
#include <QtGui/QClipboard>
#include <QtGui/QPainter>

#include "editor/SelectFont.h"
#include "editor/frmEmoticons.h"
#include "platform/FontDialog.h"
#include "tests/editor/OpenBook.h"

namespace {

using platform::FontQuestion;
using platform::FontValues;

class FontTest : public fixture::OpenBook {
 protected:
  FontTest() {
    Open(AddJournal({"{\\f0\\fs25 one }{\\b\\i\\ul\\strike\\fs40\\cf0 two}", "one"}));
    platform::SetFontChooser([this](const FontQuestion& question) {
      asked = question.start;
      return answer(question.start);
    });
  }
  ~FontTest() override { platform::SetFontChooser({}); }
  void Select(int start, int length) {
    text().SetSelStart(start);
    text().SetSelLength(length);
    PageDirty = False;
  }
  FontValues At(int position) {
    PageDirty = False;
    return FontAt(position);
  }

  FontValues asked;
  std::function<platform::DialogResult<FontValues>(FontValues)> answer;
};

TEST_F(FontTest, AMixedSelectionGoesInAsDefaultsAndComesBackPlainInItsOwnFonts) {
  Select(4, 3);
  answer = [](FontValues) {
    return platform::DialogResult<FontValues>{{platform::DialogEnd::Cancelled, {}}};
  };
  Press("btnFont");
  EXPECT_EQ(asked, (FontValues{u"Verdana"_qs, 20, true, true, true, true, 0}));
  EXPECT_EQ(PageDirty, False);
  answer = [](FontValues) { return platform::DialogResult<FontValues>{{-7, "no fonts"}}; };
  Press("btnFont");
  EXPECT_EQ(answers.texts(), fixture::Texts{"Error-7 selecting font.\r\nno fonts"});
  Select(2, 4);
  answer = [](FontValues start) { return platform::DialogResult<FontValues>{{}, start}; };
  window().SelectFont();
  EXPECT_EQ(asked, (FontValues{u"Verdana"_qs, 0, false, false, false, false, 0}));
  EXPECT_EQ(PageDirty, True);
  EXPECT_EQ(At(2), (FontValues{u"Verdana"_qs, 12.5}));
  EXPECT_EQ(At(4), (FontValues{u"Verdana"_qs, 20})) << "plain, but of its own size";
  EXPECT_TRUE(At(6).bold);
  text().undo();
  EXPECT_EQ(At(4), (FontValues{u"Verdana"_qs, 20, true, true, true, true, 0}))
      << "one step back undoes it all";
}

TEST_F(FontTest, AtABareCaretItHoldsForWhatIsTypedNext) {
  text().SetSelStart(7);
  answer = [](FontValues) {
    return platform::DialogResult<FontValues>{
        {}, {u"Not Installed"_qs, 30.5, false, true, false, false, 0x0000FF}};
  };
  PageDirty = False;
  Press("btnFont");
  EXPECT_EQ(PageDirty, False);
  Type("!");
  EXPECT_EQ(At(7), (FontValues{u"Not Installed"_qs, 30.5, false, true, false, false, 0x0000FF}));
  EXPECT_EQ(At(6).size, 20);
}

class EmoticonTest : public fixture::OpenBook {
 protected:
  // Files of these names: a blue picture of 10 x 10 whose first column is transparent.
  void Put(int count) {
    QDir().mkpath(QString::fromStdString(folder.PathOf("emoticons")));
    QImage picture(10, 10, QImage::Format_ARGB32);
    picture.fill(Qt::blue);
    for (int y = 0; y < 10; ++y) picture.setPixelColor(0, y, Qt::transparent);
    QBuffer bytes;
    picture.save(&bytes, "PNG");
    for (int i = 0; i < count; ++i)
      folder.Write("emoticons/e" + std::to_string(1000 + i) + (i % 2 ? ".gif" : ".JPG"),
                   bytes.data().toStdString());
  }
  void InPicker(const std::function<void(frmEmoticons&)>& act) {
    QTimer::singleShot(0, [act] { act(look::The<frmEmoticons>()); });
    Press("btnInsertEmoticon");
    EXPECT_FALSE(look::IsLoaded<frmEmoticons>());
    QCoreApplication::processEvents();
  }
  // "Page 01/02: 60", the number of visible buttons behind it.
  static std::string Screen(const frmEmoticons& picker) {
    const auto shown = std::count_if(picker.cmdEmoticons.begin(), picker.cmdEmoticons.end(),
                                     [](const QPushButton* button) { return button->isVisible(); });
    return picker.cmdPage->text().toStdString() + (picker.cmdPage->isVisible() ? ": " : " hidden: ") +
           std::to_string(shown);
  }
};

TEST_F(EmoticonTest, SixtyToAScreenAndAFullLastScreenHasAnEmptyOneBehindIt) {
  const struct {
    int files;
    fixture::Texts screens;
  } cases[] = {{0, {"Page 01/01 hidden: 0"}},
               {60, {"Page 01/02 hidden: 60"}},
               {61, {"Page 01/02: 60", "Page 02/02: 1", "Page 01/02: 60"}},
               {120, {"Page 01/03: 60", "Page 02/03: 60", "Page 03/03: 0", "Page 01/03: 60"}}};
  Open(AddJournal({"cover", "one"}));
  for (const auto& [files, screens] : cases) {
    Put(files);
    InPicker([screens = screens](frmEmoticons& picker) {
      for (std::size_t i = 0; i < screens.size(); ++i) {
        if (i > 0) Click(picker.cmdPage);
        EXPECT_EQ(Screen(picker), screens[i]);
      }
      QTest::keyClick(&picker, Qt::Key_Escape);
    });
  }
}

TEST_F(EmoticonTest, ListsPicturesInTheOrderOfTheirBytesAndHidesTheButtonOfWhatIsNone) {
  Open(AddJournal({"cover", "one"}));
  Put(1);
  for (const char* name : {"B.GIF", "a.gif", "c.png", ".hidden.gif"})
    folder.Write("emoticons/" + std::string(name), "no picture");
  InPicker([](frmEmoticons& picker) {
    EXPECT_EQ(Screen(picker), "Page 01/01 hidden: 1");
    EXPECT_EQ(picker.cmdEmoticons[2]->accessibleDescription(), u"e1000.JPG");
    Click(picker.cmdCancel);
  });
  EXPECT_TRUE(QDir(QString::fromStdString(folder.PathOf("emoticons"))).removeRecursively());
  Press("btnInsertEmoticon");
  EXPECT_FALSE(look::IsLoaded<frmEmoticons>());
  EXPECT_NE(answers.last().find(folder.PathOf("emoticons")), std::string::npos) << answers.last();
}

TEST_F(EmoticonTest, TakesThePlaceOfTheSelectionOnThePapersColour) {
  const std::int32_t row = AddJournal({"cover", "one"});
  Open(row);
  Put(2);
  text().SetBackColor(0x99CCFF);
  text().SetSelStart(1);
  text().SetSelLength(3);
  PageDirty = False;
  InPicker([](frmEmoticons& picker) {
    QTest::keyClick(picker.focusWidget(), Qt::Key_Right);
    QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(Text(), "c\uFFFCr");
  EXPECT_EQ(PageDirty, True);
  const QImage kept = QApplication::clipboard()->image();
  EXPECT_EQ(kept.size(), QSize(10, 10));
  EXPECT_EQ(kept.pixelColor(0, 0), QColor(0xFF, 0xCC, 0x99));
  EXPECT_EQ(kept.pixelColor(5, 5), QColor(Qt::blue));
  Press("btnFirstPage");
  EXPECT_EQ(TextsIn(row)[0], "c\uFFFCr");
}

}  // namespace
