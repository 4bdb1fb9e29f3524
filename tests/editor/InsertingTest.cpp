// The font of the text, and the emoticons that go into it.
#include <filesystem>
#include <sys/stat.h>

#include <QtGui/QClipboard>

#include "editor/frmEmoticons.h"
#include "tests/editor/OpenBook.h"

namespace {

using platform::FontValues;
using Inserting = fixture::OpenBook;

TEST_F(Inserting, AMixedFontGoesInAsDefaultsAndComesBackPlainInItsOwnFonts) {
  FontValues asked;
  platform::DialogResult<FontValues> answer{{-7, "no fonts"}};
  platform::SetFontChooser([&](const platform::FontQuestion& question) {
    asked = question.start;
    if (answer.end.number == 0) answer.choice = asked;
    return answer;
  });
  Begin({"{\\f0\\fs25 one }{\\b\\i\\ul\\strike\\fs40\\cf0 two}", "one"});
  const FontValues two{u"Verdana"_qs, 20, true, true, true, true, 0};
  text().SetSelStart(4);
  text().SetSelLength(3);
  Press("btnFont");
  EXPECT_EQ(asked, two);
  EXPECT_EQ(answers.texts(), fixture::Texts{"Error-7 selecting font.\r\nno fonts"});
  EXPECT_EQ(PageDirty, False);
  answer.end = {};
  text().SetSelStart(2);
  text().SetSelLength(4);
  window().SelectFont();
  EXPECT_EQ(asked, (FontValues{u"Verdana"_qs, 0, false, false, false, false, 0}));
  EXPECT_EQ(PageDirty, True);
  EXPECT_EQ(FontAt(2), (FontValues{u"Verdana"_qs, 12.5}));
  EXPECT_EQ(FontAt(4), (FontValues{u"Verdana"_qs, 20})) << "plain, but of its own size";
  EXPECT_EQ(FontAt(6), two);
  text().undo();
  EXPECT_EQ(FontAt(4), two) << "one step back undoes it all";
  platform::SetFontChooser({});
}

class EmoticonTest : public fixture::OpenBook {
 protected:
  // Blue pictures of 10 x 10 whose first column is transparent.
  void Put(int count) {
    const QString path = QString::fromStdString(folder.PathOf("emoticons"));
    QDir().mkpath(path);
    QImage picture(10, 10, QImage::Format_ARGB32);
    picture.fill(Qt::blue);
    for (int y = 0; y < 10; ++y) picture.setPixelColor(0, y, Qt::transparent);
    for (int i = 0; i < count; ++i) picture.save(u"%1/e%2.gif"_qs.arg(path).arg(1000 + i), "PNG");
  }
  void InPicker(const std::function<void(frmEmoticons&)>& act) { In("btnInsertEmoticon", act); }
  // "Page 01/02: 60", the number of visible buttons behind it.
  static std::string Screen(const frmEmoticons& picker) {
    const auto& buttons = picker.cmdEmoticons;
    const auto shown =
        std::count_if(buttons.begin(), buttons.end(), [](const auto* button) { return button->isVisible(); });
    const std::string page = picker.cmdPage->text().toStdString();
    return page + (picker.cmdPage->isVisible() ? ": " : " hidden: ") + std::to_string(shown);
  }
};

TEST_F(EmoticonTest, SixtyToAScreenAndAFullLastScreenHasAnEmptyOneBehindIt) {
  Begin({"cover", "one"});
  Put(60);
  InPicker([](frmEmoticons& picker) {
    EXPECT_EQ(Screen(picker), "Page 01/02 hidden: 60");
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
  Put(120);
  InPicker([](frmEmoticons& picker) {
    for (const char* screen : {"Page 01/03: 60", "Page 02/03: 60", "Page 03/03: 0", "Page 01/03: 60"}) {
      EXPECT_EQ(Screen(picker), screen);
      Click(picker.cmdPage);
    }
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
}

TEST_F(EmoticonTest, ShowsNoneThatIsNoPictureAndPutsOneOnThePapersColour) {
  const auto row = Begin({"cover", "one"});
  Press("btnInsertEmoticon");
  EXPECT_NE(answers.last().find(folder.PathOf("emoticons")), std::string::npos) << answers.last();
  Put(2);
  for (const char* name : {"B.GIF", "c.png"}) folder.Write("emoticons/" + std::string(name), "no picture");
  EXPECT_EQ(mkfifo(folder.PathOf("emoticons/z.gif").c_str(), 0600), 0);
  const std::string undecodable = folder.PathOf("\xE9t\xE9");
  std::filesystem::create_directory(undecodable);
  std::filesystem::rename(folder.PathOf("emoticons"), undecodable + "/emoticons");
  platform::SetProgramFolder(undecodable);
  text().SetBackColor(0x99CCFF);
  text().SetSelStart(1);
  text().SetSelLength(3);
  InPicker([](frmEmoticons& picker) {
    EXPECT_EQ(Screen(picker), "Page 01/01 hidden: 2");
    EXPECT_EQ(picker.cmdEmoticons[1]->accessibleName(), u"e1000") << "in the order of their bytes";
    QTest::keyClick(picker.focusWidget(), Qt::Key_Right);
    QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
  });
  platform::SetProgramFolder(folder.path());
  std::filesystem::remove_all(undecodable);
  EXPECT_EQ(QApplication::clipboard()->image().pixelColor(0, 0), QColor(0xFF, 0xCC, 0x99));
  Press("btnFirstPage");
  EXPECT_EQ(TextsIn(row)[0], "c\uFFFCr");
}

}  // namespace
