#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/ColorName.h"
#include "platform/dialogs/FontDialog.h"
#include "platform/dialogs/FontPicker.h"
#include "tests/support/Fixtures.h"

namespace {

using platform::FontPicker;
using platform::FontValues;

class FontDialogTest : public fixture::Desk {
 protected:
  // What comes out when this is done in the dialog and Enter pressed at its end.
  static FontValues After(const FontValues& start, const std::function<void(FontPicker&)>& act) {
    QTimer::singleShot(0, [act] {
      auto* picker = qobject_cast<FontPicker*>(QApplication::activeModalWidget());
      ASSERT_NE(picker, nullptr);
      act(*picker);
      QTest::keyClick(picker, Qt::Key_Return);
      if (picker->isVisible()) QTest::keyClick(picker, Qt::Key_Escape);
    });
    const auto announce = [](const QString& text) { told += text; };
    const auto result = platform::AskForFont({start, 0xFFFFFF, false, announce});
    return result.end.number == 0 ? result.choice : FontValues{u"cancelled"_qs};
  }
  static inline QStringList told;
  static void Type(platform::ChoiceList* box, const QString& text) {
    box->edit->selectAll();
    QTest::keyClicks(box->edit, text);
  }
};

TEST_F(FontDialogTest, WhatIsLeftAloneComesBackAsItWentIn) {
  const FontValues cases[] = {{},
                              {u"Not Installed Sans"_qs, 12.5, true, false, true, false, 0x102030},
                              {u"dejavu sans"_qs, 7, false, true, false, true, 0xFFFFFF},
                              {QString(), 16}};
  for (const FontValues& start : cases) {
    const FontValues back = After(start, [](const FontPicker& picker) {
      picker.name->list->setFocus(Qt::TabFocusReason);  // which makes an entry current, but chooses none
      picker.size->list->setFocus(Qt::TabFocusReason);
    });
    EXPECT_EQ(back, start) << start.name.toStdString();
  }
}

TEST_F(FontDialogTest, TypingLeadsTheListAndAnUnknownNameIsNotAccepted) {
  const FontValues start{u"Not Installed Sans"_qs, 16};
  FontValues back = After(start, [](FontPicker& picker) {
    EXPECT_FALSE(picker.note->text().isEmpty());
    EXPECT_TRUE(picker.name->list->findItems(u"]"_qs, Qt::MatchEndsWith).isEmpty()) << "no makers of fonts";
    Type(picker.name, u"vu sans m"_qs);
    picker.size->edit->selectAll();
    picker.size->edit->insert(u"\u06F1\u0660\u066B\u06F5"_qs);  // as a Persian keyboard types them
    EXPECT_EQ(picker.size->edit->text(), u"10.5"_qs);
    QTest::mouseClick(picker.italic, Qt::LeftButton, {}, {8, picker.italic->height() / 2});
  });
  EXPECT_EQ(back, (FontValues{u"DejaVu Sans Mono"_qs, 10.5, false, true}));
  back = After(start, [](FontPicker& picker) {
    Type(picker.name, u"dejavu s"_qs);
    for (int i = 0; i < 2; ++i) QTest::keyClick(picker.name->edit, Qt::Key_Down);
    Type(picker.size, u"9999"_qs);
  });
  EXPECT_TRUE(back.name.startsWith(u"DejaVu S") && QFontDatabase::hasFamily(back.name))
      << back.name.toStdString();
  EXPECT_EQ(back.size, 1638);
  back = After({u"DejaVu Sans"_qs, 16}, [](FontPicker& picker) {
    QListWidget& sizes = *picker.size->list;
    ASSERT_TRUE(sizes.isVisible());
    EXPECT_GT(sizes.y(), picker.size->edit->y());
    sizes.scrollToTop();
    QTest::mouseClick(sizes.viewport(), Qt::LeftButton, {}, sizes.visualItemRect(sizes.item(1)).center());
    EXPECT_EQ(picker.size->edit->text(), sizes.item(1)->text());
  });
  EXPECT_NE(back.size, 16);
  told.clear();
  back = After(start, [](FontPicker& picker) { Type(picker.name, u"no such font"_qs); });
  EXPECT_EQ(back.name, u"cancelled");
  EXPECT_EQ(told, QStringList(u"No installed font has this name."_qs)) << "aloud, and once";
}

// Which the font dialog's colour comes from as well: see the tour.
TEST_F(FontDialogTest, TheColourDialogGivesItsColourUnlessItIsCancelled) {
  for (const auto& [key, number] :
       {std::pair{Qt::Key_Return, 0}, {Qt::Key_Escape, platform::DialogEnd::Cancelled}}) {
    QTimer::singleShot(0, [key = key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    const auto asked = platform::AskForColor({0x123456});
    EXPECT_EQ(asked.end.number, number);
    EXPECT_TRUE(number != 0 || asked.choice == 0x123456u);
  }
}

TEST(ColorName, IsWhatAPersonWouldSay) {
  for (const auto& [color, words] : {std::pair{0x000000u, "black"},
                                     {0xffffffu, "white"},
                                     {0x808080u, "grey"},
                                     {0xa02060u, "dark pink"},
                                     {0x1c2b6eu, "dark blue"},
                                     {0xd8ecd0u, "light green"},
                                     {0x8b4513u, "brown"},
                                     {0xff0000u, "red"},
                                     {0xffd700u, "yellow"}})
    EXPECT_EQ(platform::ColorInWords(QColor(color)).section(u',', 0, 0), QLatin1String(words));
}

}  // namespace
