// The settings from their file to the windows and back, and the help.
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include "app/Help.h"
#include "app/HelpWindow.h"
#include "app/Settings.h"
#include "app/frmOptions.h"
#include "bookcase/frmBookcase.h"
#include "lock/frmPassChange.h"
#include "look/Theme.h"
#include "look/frmPicSource.h"
#include "store/Scrambler.h"
#include "tests/support/Windows.h"

namespace {

class OptionsTest : public fixture::Windows {
 protected:
  static frmOptions& Dialog() { return look::The<frmOptions>(); }
  // The number of the theme whose picture the windows wear; -1 for none.
  static int ThemeOn() {
    int index = 2;
    while (index >= 0 && look::CurrentTheme().large.toImage() != frmPicSource::picLarge(index).toImage())
      --index;
    return index;
  }
  // The help after F1 on a control; none when it did not come.
  static HelpWindow* HelpOn(QWidget* control) {
    QTest::keyClick(control, Qt::Key_F1);
    for (QWidget* window : QApplication::topLevelWidgets())
      if (auto* help = qobject_cast<HelpWindow*>(window)) return help;
    return nullptr;
  }
  std::string Settings() const { return std::to_string(chkGotoLastPage) + std::to_string(optColor); }
};

TEST_F(OptionsTest, ABadValueCostsOneMessageAndNoMore) {
  const std::string name = folder.PathOf("journal.ini");
  const struct {
    const char *goTo, *color;
    const char* settings;
    int theme;
    fixture::Texts messages;
  } cases[] = {
      {"", "7", "10", 1, {"GetIniError: Invalid property value: optColor=7 in " + name}},
      {"", "", "10", 0, {}},
      {"0", "2", "02", 2, {}},
      {"abc", "-99999999999", "00", 0, {}},
      {" 1 and more", "1.9", "11", 1, {}},
      {"5", "-1", "10", 0, {"GetIniError: Invalid property value: chkGotoLastPage=5 in " + name}},
      {"\" 0\"", "99999999999", "00", 0, {"GetIniError: Overflow: optColor=99999999999 in " + name}},
  };
  look::PutOnTheme(1);
  for (const auto& each : cases) {
    answers.messages.clear();
    ResetState();
    folder.Write("journal.ini",
                 "[options]\nchkgotolastpage=" + std::string(each.goTo) + "\noptcolor=" + each.color + "\n");
    LoadSettings();
    EXPECT_EQ(Settings(), each.settings) << each.color;
    EXPECT_EQ(answers.texts(), each.messages);
    EXPECT_EQ(ThemeOn(), each.theme) << each.color;
  }
}

// The file is right, but the next touch of a control finds the design's values, and the next close writes
// them.
TEST_F(OptionsTest, TheCloseBoxBringsTheDesignValuesBack) {
  const std::string chosen = "[Options]\r\nchkGotoLastPage=0\r\noptColor=2\r\n";
  LoadSettings();
  Dialog().show();
  Dialog().optColor[2]->click();
  Dialog().chkGotoLastPage->click();
  EXPECT_EQ(Dialog().Frame1->palette().window().color(), QColor(0xFF, 0xC0, 0xFF));
  Click(Dialog().cmdClose);
  EXPECT_EQ(folder.Read("journal.ini"), chosen);
  look::UnloadAllForms();
  ResetState();
  LoadSettings();
  EXPECT_EQ(Settings(), "02");
  Dialog().show();
  Dialog().chkGotoLastPage->setFocus();
  QTest::keyClick(Dialog().chkGotoLastPage, Qt::Key_Tab);
  EXPECT_EQ(Dialog().focusWidget(), Dialog().optColor[2]) << "and not the first button";
  Dialog().close();
  EXPECT_EQ(folder.Read("journal.ini"), chosen);
  EXPECT_EQ(Settings(), "10");
  EXPECT_EQ(ThemeOn(), 2) << "what the windows wear stays";
  Dialog().show();
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  EXPECT_TRUE(look::IsLoaded<frmOptions>()) << "Escape is the button and not the close box";
  EXPECT_EQ(folder.Read("journal.ini"), "[Options]\r\nchkGotoLastPage=1\r\noptColor=0\r\n");
}

TEST_F(OptionsTest, WhatCannotBeSavedStaysAndTheSecondRefusalAsks) {
  LoadSettings();
  folder.Block("journal.ini");
  Dialog().show();
  Click(Dialog().cmdClose);
  EXPECT_NE(answers.last().find("nothing new to save"), std::string::npos) << answers.last();
  EXPECT_FALSE(Dialog().isVisible());
  Dialog().show();
  Dialog().optColor[1]->click();
  Dialog().close();
  EXPECT_NE(answers.last().find("close the options once more"), std::string::npos) << answers.last();
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  EXPECT_NE(answers.last().find("Close them without saving?"), std::string::npos) << answers.last();
  EXPECT_TRUE(Dialog().isVisible());
  answers.yes = 1;
  Dialog().close();
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(Settings(), "11") << "they hold until the program ends";
  EXPECT_EQ(answers.messages.size(), 4u);
  folder.Unblock("journal.ini");
  Dialog().show();
  Click(Dialog().cmdClose);
  EXPECT_EQ(folder.Read("journal.ini"), "[Options]\r\nchkGotoLastPage=1\r\noptColor=1\r\n");
}

TEST_F(OptionsTest, KeepsAFileThatAnotherProgramPutThere) {
  folder.Write("journal.ini", "[Options]\n");
  LoadSettings();
  folder.Write("journal.ini", "[Others]\nkey=1\n");
  SaveSettings();
  EXPECT_EQ(folder.Read("journal.ini.1.other"), "[Others]\nkey=1\n");
  EXPECT_NE(folder.Read("journal.ini").find("key=1"), std::string::npos) << "and its lines stay";
  EXPECT_EQ(answers.messages.size(), 1u);
}

TEST_F(OptionsTest, TellsOfAFileThatCannotBeRead) {
  folder.Block("journal.ini");
  LoadSettings();
  ASSERT_EQ(answers.messages.size(), 1u) << "once for the file";
  EXPECT_EQ(answers.last().substr(0, 13), "GetIniError: ");
}

TEST_F(OptionsTest, F1LeadsToTheChapterOfTheWindow) {
  AnswerF1();
  look::The<frmBookcase>().ShowModeless();
  QWidget* const list = look::The<frmBookcase>().ListView1;
  EXPECT_FALSE(HelpOn(list));
  EXPECT_NE(answers.last().find("THORNQUILL.HLP"), std::string::npos);
  const std::string much = "<p>" + QString(u"words "_qs).repeated(3000).toStdString();
  folder.Write("THORNQUILL.HLP",
               "<h2><a name=\"frmAbout\">About</a></h2>needle <a href=\"#frmAbout\">first</a>" + much +
                   "<h2><a name=\"frmBookcase\">Books</a></h2>needle <a href=\"#frmAbout\">second</a>" +
                   much);
  HelpWindow* const help = HelpOn(list);
  ASSERT_TRUE(help);
  EXPECT_EQ(help->lstContents->currentItem()->text(), u"Books");
  for (const int width : {600, 1100}) {
    help->resize(width, help->height());
    EXPECT_EQ(help->Browser->cursorForPosition({}).block().text().left(9), u"Books")
        << "at the top, " << width;
  }
  QPlatformAccessibility& bridge = *QGuiApplicationPrivate::platformIntegration()->accessibility();
  bridge.setActive(true);
  static int listsTold = 0;
  static QString told;
  const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    listsTold += event->type() == QAccessible::Focus && qobject_cast<QListWidget*>(event->object());
    if (event->type() == QAccessible::ObjectShow)
      told = event->accessibleInterface()->text(QAccessible::Name);
  });
  help->Browser->setSource(QUrl(u"#frmAbout"_qs));  // as a link in the text does
  EXPECT_EQ(listsTold, 0) << "the keys are in the text";
  EXPECT_EQ(help->lstContents->currentItem()->text(), u"About");
  EXPECT_EQ(HelpOn(list)->lstContents->currentItem()->text(), u"Books") << "the key leads back";
  QTest::keyClick(help->Browser, Qt::Key_Tab);
  EXPECT_EQ(help->Browser->textCursor().selectedText(), u"second") << "the chapter's first link";
  QTest::keyClick(help->Browser, Qt::Key_Return);
  EXPECT_LT(help->Browser->textCursor().position(), 10) << "reading goes on where the link led";
  help->Browser->backward();
  EXPECT_TRUE(QTest::qWaitForWindowActive(help));
  help->txtFind->setText(u"NEEDLE"_qs);
  for (int i = 0; i < 3; ++i) Click(help->cmdFindNext);
  EXPECT_EQ(help->Browser->textCursor().selectedText(), u"needle");
  EXPECT_EQ(told, u"needle second") << "the line that it stands in";
  help->txtFind->setText(u"hay"_qs);
  Click(help->cmdFindNext);
  EXPECT_EQ(help->Browser->textCursor().selectedText(), u"needle") << "what is not found keeps the place";
  EXPECT_EQ(told, u"These words do not stand in the help.");
  QAccessible::installUpdateHandler(before);
  bridge.setActive(false);
  QTest::keyClick(help->Browser, Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
}

}  // namespace
