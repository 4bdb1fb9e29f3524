#include <gtest/gtest.h>

#include <QtTest/QTest>

#include "bookcase/JournalIcons.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmNewJournal.h"
#include "editor/frmJournal.h"
#include "state/State.h"
#include "store/JournalIndex.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/support/Fixtures.h"

namespace {

class BookcaseTest : public testing::Test {
 protected:
  BookcaseTest() {
    ResetState();
    MasterPassword = ScrambleText("Rosebud7");
    PageShift = '7';
  }
  ~BookcaseTest() override {
    look::UnloadAllForms();
    ResetState();
  }

  void Show(const std::vector<std::string>& names) {
    for (const std::string& name : names) MakeJournal(name);
    Window().ShowModeless();
  }
  static frmBookcase& Window() { return look::The<frmBookcase>(); }
  static frmJournal& Book() { return look::The<frmJournal>(); }
  static QListWidget& List() { return *Window().ListView1; }
  static void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
  static QStringList Names() {
    QStringList names;
    for (int i = 0; i < List().count(); ++i) names.append(List().item(i)->text());
    return names;
  }
  static QPoint MiddleOf(int item) { return List().visualItemRect(List().item(item)).center(); }
  // As a mouse does it: the two clicks, and the double click between their releases.
  static void DoubleClick(const QPoint& point) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, point);
  }
  static QPoint BesideTheItems() { return List().viewport()->rect().bottomRight() - QPoint(3, 3); }

  fixture::Folder folder;
  fixture::Answers answers;
  fixture::End end;
};

TEST_F(BookcaseTest, CaptionsAreAsTold) {
  Show({});
  const frmBookcase& w = Window();
  EXPECT_EQ(w.windowTitle(), QStringLiteral("Thornquill"));
  EXPECT_EQ(w.Label2->text(), QStringLiteral("My Journals:"));
  EXPECT_EQ(w.Image2->toolTip(), QStringLiteral("About Thornquill"));
  const std::pair<QPushButton*, const char*> captions[] = {
      {w.cmdOpen, "Open"},     {w.cmdAdd, "Add"},         {w.cmdDelete, "Delete"},
      {w.cmdExport, "Export"}, {w.cmdProp, "Properties"}, {w.cmdHelp, "Help"},
      {w.cmdAbout, "About"},   {w.cmdOptions, "Options"}, {w.cmdClose, "Exit"}};
  for (const auto& [button, caption] : captions) {
    EXPECT_EQ(button->text(), QLatin1String(caption));
    EXPECT_EQ(button->font().bold(), button == w.cmdOpen) << caption;
  }
}

TEST_F(BookcaseTest, ListsTheLiveRowsWhereverTheyComeFrom) {
  MakeJournal("before the window");
  MakeJournal("removed");
  Journals[2].Deleted = True;
  Show({"after", "<b>&1 [*]"});
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("before the window"), QStringLiteral("after"),
                                  QStringLiteral("<b>&1 [*]")}));
  EXPECT_EQ(Window().SelectedRow(), 1);
  Journals[1].Deleted = True;
  Journals[3].Name = "renamed";
  RefreshBookcaseList();
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("renamed"), QStringLiteral("<b>&1 [*]")}));
  EXPECT_EQ(Window().SelectedRow(), 3);
  EXPECT_TRUE(List().item(0)->isSelected());
}

TEST_F(BookcaseTest, AnEmptyListDoesNothing) {
  Show({});
  for (auto* button : {Window().cmdOpen, Window().cmdDelete, Window().cmdExport, Window().cmdProp}) {
    EXPECT_TRUE(button->isEnabled());
    Click(button);
  }
  DoubleClick(BesideTheItems());
  EXPECT_EQ(CurrentJournal, 0);
  EXPECT_TRUE(answers.messages.empty());
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Window().SelectedRow(), 0);
}

TEST_F(BookcaseTest, OpensTheRowAndNotThePosition) {
  Show({"one", "two", "three"});
  Journals[2].Deleted = True;
  RefreshBookcaseList();
  Journals[3].PaperColor = 0x99CCFF;
  Journals[3].Icon = 9;
  List().setCurrentRow(1);
  Click(Window().cmdOpen);
  EXPECT_EQ(CurrentJournal, 3);
  EXPECT_EQ(PagesJournal, 3);
  EXPECT_EQ(Book().Caption(), QStringLiteral("Thornquill [three]"));
  EXPECT_EQ(Book().face->txtM->BackColor(), 0x99CCFFu);
  EXPECT_EQ(Book().face->picBinding->BackColor(), 0x99CCFFu);
  EXPECT_EQ(Book().windowIcon().cacheKey(), JournalIcon(9).cacheKey());
  EXPECT_TRUE(Book().isVisible());
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(BookcaseTest, OneWindowServesEveryJournalAndTheBookcaseComesBack) {
  Show({"*", "two"});
  for (const char16_t* caption : {u"Thornquill [*]", u"Thornquill [two]"}) {
    Click(Window().cmdOpen);
    EXPECT_EQ(Book().Caption(), QString::fromUtf16(caption));
    EXPECT_EQ(Book().face->txtM->Text(), QString());
    QTest::keyClicks(Book().face->txtM, QStringLiteral("text"));
    Book().close();
    EXPECT_FALSE(Book().isVisible());
    EXPECT_TRUE(Window().isVisible());
    List().setCurrentRow(1);
  }
}

TEST_F(BookcaseTest, EveryWayOfOpeningOpensOnce) {
  const std::function<void()> ways[] = {
      [] { DoubleClick(MiddleOf(1)); },
      [] { DoubleClick(BesideTheItems()); },
      [] { QTest::keyClick(&List(), Qt::Key_Return); },
      [] { QTest::keyClick(&List(), Qt::Key_Enter, Qt::KeypadModifier); },
  };
  Show({"one", "two"});
  List().setCurrentRow(1);
  for (const auto& open : ways) {
    folder.Write("j00001.tqf", "no journal at all, so that each opening shows");
    answers.messages.clear();
    open();
    EXPECT_EQ(answers.texts(), std::vector<std::string>{"Journal load -- file unknown or corrupt!"});
    EXPECT_EQ(CurrentJournal, 2);
  }
}

TEST_F(BookcaseTest, AnAlienFileLeavesTheBookcaseInFrontAndNothingOpen) {
  Show({"alien"});
  folder.Write("j00000.tqf", "something else");
  Click(Window().cmdOpen);
  EXPECT_TRUE(Window().isVisible());
  EXPECT_FALSE(Book().isVisible());
  EXPECT_EQ(PagesJournal, 0);
  EXPECT_EQ(folder.Read("j00000.tqf"), "something else");
}

TEST_F(BookcaseTest, AClickBesideTheItemsKeepsTheSelection) {
  Show({"one", "two"});
  List().setCurrentRow(1);
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, BesideTheItems());
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, MiddleOf(1));
  EXPECT_EQ(Window().SelectedRow(), 2);
  EXPECT_TRUE(List().item(1)->isSelected());
}

TEST_F(BookcaseTest, NoToDeletingChangesNothing) {
  Show({"one", "two"});
  folder.Write("j00000.tqf", "bytes");
  Click(Window().cmdDelete);
  ASSERT_EQ(answers.texts(), std::vector<std::string>{"Are you sure you want to delete j00000.tqf"});
  EXPECT_EQ(answers.messages[0].buttons, platform::Buttons::YesNo);
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Stop);
  EXPECT_TRUE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Journals[1].Deleted, False);
  EXPECT_EQ(List().count(), 2);
}

TEST_F(BookcaseTest, DeletesFileAndItemButNoRow) {
  Show({"one", "two"});
  folder.Write("j00000.tqf", "bytes");
  answers.Yes().Yes();
  Click(Window().cmdDelete);
  EXPECT_FALSE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Names(), QStringList{QStringLiteral("two")});
  EXPECT_EQ(Window().SelectedRow(), 2);
  Click(Window().cmdDelete);  // its file never was there
  EXPECT_EQ(answers.last(), "Are you sure you want to delete j00001.tqf");
  EXPECT_EQ(List().count(), 0);
  EXPECT_EQ(JournalCount, 2);
  Click(Window().cmdDelete);
  EXPECT_EQ(answers.messages.size(), 2u);
}

TEST_F(BookcaseTest, AFileThatCannotBeDeletedIsNamedAndKept) {
  Show({"one"});
  QDir(QString::fromStdString(folder.path())).mkpath(QStringLiteral("j00000.tqf/full"));
  answers.Yes();
  Click(Window().cmdDelete);
  EXPECT_NE(answers.last().find("j00000.tqf"), std::string::npos);
  EXPECT_EQ(Journals[1].Deleted, False);
}

TEST_F(BookcaseTest, BothWaysOutSaveTheIndexAndEscapeIsNone) {
  Show({"one"});
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_EQ(end.count, 0);
  Window().close();
  EXPECT_EQ(end.count, 1);
  ASSERT_TRUE(folder.Exists("journal.tqt"));
  QFile::remove(QString::fromStdString(folder.PathOf("journal.tqt")));
  Click(Window().cmdClose);
  EXPECT_EQ(end.count, 2);
  EXPECT_TRUE(folder.Exists("journal.tqt"));
}

TEST_F(BookcaseTest, HelpAsksForTheActiveWindowsHelp) {
  struct Watch : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) ++presses;
      return false;
    }
    int presses = 0;
  } watch;
  Show({});
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  Window().installEventFilter(&watch);
  Click(Window().cmdHelp);
  QTest::qWait(20);
  EXPECT_GE(watch.presses, 1);
}

TEST_F(BookcaseTest, TheListGrowsWithTheWindow) {
  Show({"one"});
  const QSize before = List().size();
  Window().resize(Window().size() + QSize(100, 50));
  QTest::qWait(10);
  EXPECT_EQ(List().size(), before + QSize(100, 50));
}

TEST_F(BookcaseTest, AddsAJournalThroughTheDialog) {
  Show({"one"});
  const auto add = [this](const std::function<void(frmNewJournal&)>& act) {
    QTimer::singleShot(0, [act] {
      EXPECT_EQ(QApplication::activeModalWidget(), &look::The<frmNewJournal>());
      act(look::The<frmNewJournal>());
      if (look::IsLoaded<frmNewJournal>()) look::The<frmNewJournal>().close();
    });
    Click(Window().cmdAdd);
  };
  add([](frmNewJournal& dialog) { Click(dialog.cmdCancel); });
  add([](frmNewJournal& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(JournalCount, 1);
  add([this](frmNewJournal& dialog) {
    Click(dialog.cmdOK);
    EXPECT_EQ(answers.texts(), std::vector<std::string>{"Please enter a name for this journal!"});
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClicks(dialog.txtPass, QStringLiteral("  "));
    QTest::keyClick(dialog.txtPass, Qt::Key_Return);
  });
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("one"), QStringLiteral("  ")}));
  EXPECT_EQ(look::The<frmNewJournal>().txtPass->text(), QString());
}

TEST(JournalIcons, AreSixtyThreeThatDiffer) {
  std::vector<QImage> pictures;
  for (int i = 1; i <= JournalIconCount; ++i) pictures.push_back(JournalIcon(i).pixmap(32).toImage());
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    EXPECT_EQ(pictures[i].size(), QSize(32, 32));
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i + 1 << " and " << j + 1;
  }
  for (const int alien : {0, -1, 64, 1 << 30})
    EXPECT_EQ(JournalIcon(alien).cacheKey(), JournalIcon(1).cacheKey());
}

}  // namespace
