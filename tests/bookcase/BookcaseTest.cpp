#include <QtGui/QWindow>

#include "bookcase/JournalIcons.h"
#include "bookcase/frmAbout.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmNewJournal.h"
#include "editor/frmJournal.h"
#include "output/frmExport.h"
#include "platform/RunUrl.h"
#include "store/NewJournals.h"
#include "store/PictureStore.h"
#include "store/Scrambler.h"
#include "tests/support/Windows.h"

namespace {

class BookcaseTest : public fixture::Windows {
 protected:
  BookcaseTest() {
    MasterPassword = ScrambleText("Rosebud7");
    PageShift = '7';
    Pictures.resize(1);  // as after the loading of a picture store
  }

  void Show(const fixture::Texts& names) {
    for (const std::string& name : names) MakeJournal(name);
    Window().ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }
  static frmBookcase& Window() { return look::The<frmBookcase>(); }
  static frmJournal& Book() { return look::The<frmJournal>(); }
  static QListWidget& List() { return *Window().ListView1; }
  // The names in the list, and behind each the row that its item stands for.
  static std::string Listed() {
    QString all;
    for (int i = 0; i < List().count(); ++i)
      all += List().item(i)->text() + QString::number(List().item(i)->data(Qt::UserRole).toInt()) + u' ';
    return all.toStdString();
  }
  static QPoint MiddleOf(int item) { return List().visualItemRect(List().item(item)).center(); }
  static QPoint BesideTheItems() { return List().viewport()->rect().bottomRight() - QPoint(3, 3); }
  static void ClickList(const QPoint& point, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, modifiers, point);
  }
  // As a mouse does it: the two clicks, and the double click between their releases.
  static void DoubleClick(const QPoint& point) {
    ClickList(point);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, point);
  }
};

TEST_F(BookcaseTest, ListsTheLiveRowsWhereverTheyComeFrom) {
  MakeJournal("before the window ");
  MakeJournal("removed ");
  Journals[2].Deleted = True;
  Show({"after ", "<b>&1 [*] "});
  EXPECT_EQ(Listed(), "before the window 1 after 3 <b>&1 [*] 4 ");
  EXPECT_EQ(Window().SelectedRow(), 1);
  ClickList(BesideTheItems());
  EXPECT_TRUE(List().item(0)->isSelected()) << "no click takes the selection away";
  ClickList(MiddleOf(0), Qt::ControlModifier);
  EXPECT_TRUE(List().item(0)->isSelected());
  const QSize before = List().size();
  Window().resize(Window().size() + QSize(100, 50));
  QCoreApplication::processEvents();
  EXPECT_EQ(List().size(), before + QSize(100, 50));
}

TEST_F(BookcaseTest, OpensTheRowOfTheItemAndComesBackAtItsClosing) {
  Show({"one", "two", "[*]"});
  Journals[3].PaperColor = 0x99CCFF;
  Journals[2].Icon = 64;  // there are 63, and the first stands in for any other
  Journals[3].Icon = 63;
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_EQ(Listed(), "two2 [*]3 ");
  for (const std::int32_t row : {2, 3}) {
    List().setCurrentRow(row - 2);
    Click(Window().cmdOpen);
    EXPECT_EQ(CurrentJournal, row);
    EXPECT_EQ(PagesJournal, row);
    const JournalEntry& entry = Journals.at(static_cast<std::size_t>(row));
    EXPECT_EQ(Book().windowHandle()->title().toStdString(), "Thornquill [" + entry.Name + "]");
    EXPECT_EQ(Book().face->txtM->BackColor(), entry.PaperColor);
    EXPECT_EQ(Book().face->picBinding->BackColor(), entry.PaperColor);
    EXPECT_EQ(Book().windowIcon().cacheKey(), JournalIcon(row == 3 ? 63 : 1).cacheKey());
    EXPECT_EQ(Book().face->txtM->Text(), QString());
    EXPECT_FALSE(Window().isVisible());
    QTest::keyClicks(Book().face->txtM, QStringLiteral("text"));
    Book().close();
    EXPECT_FALSE(Book().isVisible());
    EXPECT_TRUE(Window().isVisible());
  }
}

TEST_F(BookcaseTest, EveryWayOfOpeningOpensOnceAndAnAlienFileOpensNothing) {
  const std::function<void()> ways[] = {[] { DoubleClick(MiddleOf(1)); },
                                        [] { DoubleClick(BesideTheItems()); },
                                        [] { QTest::keyClick(&List(), Qt::Key_Return); },
                                        [] { QTest::keyClick(&List(), Qt::Key_Enter, Qt::KeypadModifier); }};
  Show({"one", "two"});
  List().setCurrentRow(1);
  folder.Write("j00001.tqf", "no journal at all, so that each opening shows");
  for (const auto& open : ways) {
    answers.messages.clear();
    open();
    EXPECT_EQ(answers.texts(), fixture::Texts{"Journal load -- file unknown or corrupt!"});
    EXPECT_EQ(CurrentJournal, 2);
    EXPECT_EQ(PagesJournal, 0);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Book().isVisible());
  }
}

TEST_F(BookcaseTest, DeletesFileAndItemButNoRowAndOnlyOnYes) {
  Show({"one", "two"});
  folder.Write("j00000.tqf", "bytes");
  Click(Window().cmdDelete);
  ASSERT_EQ(answers.texts(), fixture::Texts{"Are you sure you want to delete j00000.tqf"});
  EXPECT_EQ(answers.messages[0].buttons, platform::Buttons::YesNo);
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Stop);
  EXPECT_TRUE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Listed(), "one1 two2 ");
  answers.yes = 3;
  Click(Window().cmdDelete);
  EXPECT_FALSE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Listed(), "two2 ");
  platform::SetProgramFolder("/proc/self");
  Journals[2].FileName = "stat";  // which nobody can delete
  Click(Window().cmdDelete);
  EXPECT_NE(answers.last().find("/stat"), std::string::npos);
  EXPECT_EQ(Listed(), "two2 ");
  platform::SetProgramFolder(folder.path());
  Click(Window().cmdDelete);  // its file is not there
  EXPECT_EQ(Listed(), "");
  EXPECT_EQ(JournalCount, 2);
  answers.messages.clear();
  CurrentJournal = 0;
  for (auto* button : {Window().cmdOpen, Window().cmdDelete, Window().cmdExport, Window().cmdProp}) {
    EXPECT_TRUE(button->isEnabled());
    Click(button);
  }
  DoubleClick(BesideTheItems());
  EXPECT_EQ(CurrentJournal, 0) << "an empty list does nothing";
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(BookcaseTest, DeletesThePicturesOfTheJournalAndNoOthers) {
  Show({"one", "two"});
  Pictures.resize(4);
  PictureCount = 3;
  Pictures[1].JournalFile = Pictures[3].JournalFile = "j00000.tqf";
  Pictures[2].JournalFile = "j00001.tqf";
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_EQ(Pictures[1].Deleted, True);
  EXPECT_EQ(Pictures[2].Deleted, False);
  EXPECT_EQ(store::DecodePictureStore(folder.Read("tqpics.bin")).rows,
            (std::vector<PagePicture>{{}, Pictures[2], {}}));
}

// Kept so for the sake of its order: the file goes first, and the index is not saved.
TEST_F(BookcaseTest, DeletingAJournalInARunWithoutAPictureStoreEndsTheProgram) {
  Show({"one"});
  Pictures.clear();
  folder.Write("j00000.tqf", "bytes");
  answers.yes = 1;
  // Not by a mouse click, whose event the toolkit never frees when a failure flies through it.
  QTimer::singleShot(0, [] { Q_EMIT Window().cmdDelete->clicked(); });
  QCoreApplication::processEvents();
  EXPECT_EQ(answers.last(), "Subscript out of range");
  EXPECT_EQ(end.count, 1);
  EXPECT_EQ(Journals[1].Deleted, True);
  EXPECT_EQ(folder.Names(), fixture::Texts{}) << "neither journal nor index nor store";
  EXPECT_EQ(Listed(), "one1 ");
}

TEST_F(BookcaseTest, BothWaysOutSaveTheIndexAndEscapeIsNone) {
  Show({"one"});
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_EQ(end.count, 0);
  Window().close();
  const std::string first = folder.Read("journal.tqt");
  Click(Window().cmdClose);
  EXPECT_EQ(end.count, 2);
  EXPECT_NE(first, "");
  EXPECT_NE(folder.Read("journal.tqt"), first) << "other fillers";
}

TEST_F(BookcaseTest, AddsAJournalThroughTheDialog) {
  Show({"one"});
  const auto add = [](const std::function<void(frmNewJournal&)>& act) {
    QTimer::singleShot(0, [act] { act(look::The<frmNewJournal>()); });
    Click(Window().cmdAdd);
    EXPECT_FALSE(look::IsLoaded<frmNewJournal>());
  };
  add([](frmNewJournal& dialog) { Click(dialog.cmdCancel); });
  add([](frmNewJournal& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(JournalCount, 1);
  add([this](frmNewJournal& dialog) {
    Click(dialog.cmdOK);
    EXPECT_EQ(answers.texts(), fixture::Texts{"Please enter a name for this journal!"});
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    QTest::keyClicks(dialog.txtPass, QStringLiteral("  "));
    QTest::keyClick(dialog.txtPass, Qt::Key_Return);
  });
  EXPECT_EQ(Listed(), "one1   2 ");
  EXPECT_EQ(look::The<frmNewJournal>().txtPass->text(), QString());
}

TEST_F(BookcaseTest, ExportsAJournalThatNobodySees) {
  Show({"one", "two"});
  List().setCurrentRow(1);
  folder.Write("j00000.tqf", "no journal");
  Click(Window().cmdExport);
  EXPECT_TRUE(folder.Exists("export"));
  EXPECT_EQ(look::The<frmExport>().txtHTMLTitle->text(), u"two"_qs);
  EXPECT_TRUE(look::The<frmExport>().isVisible());
  EXPECT_FALSE(Window().isVisible() || Book().isVisible());
  EXPECT_EQ(PagesJournal, 2);
  Book().face->txtM->SetTextRTF("of a page");
  QTest::keyClick(&look::The<frmExport>(), Qt::Key_Escape);
  EXPECT_TRUE(Window().isVisible());
  EXPECT_TRUE(Pages.empty());
  EXPECT_EQ(Book().face->txtM->Text(), QString());
  List().setCurrentRow(0);
  Click(Window().cmdExport);
  EXPECT_EQ(answers.last(), "Journal load -- file unknown or corrupt!");
  platform::SetProgramFolder("/proc/self");
  Click(Window().cmdExport);
  EXPECT_EQ(answers.messages.size(), 2u) << "without its folder nothing is loaded";
  EXPECT_FALSE(look::IsLoaded<frmExport>());
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(BookcaseTest, BothWaysToTheAboutBoxAndFromThereToTheMaker) {
  Show({"one"});
  fixture::Texts opened;
  platform::SetUrlRunner([&](const std::string& url) { opened.push_back(url); });
  for (QPushButton* button : {Window().Image2, static_cast<QPushButton*>(Window().cmdAbout)}) {
    QTimer::singleShot(0, [] {
      auto& about = look::The<frmAbout>();
      QTest::mouseClick(about.Image1, Qt::LeftButton);
      QTest::mouseClick(about.lblWebSite, Qt::LeftButton);
      QTest::keyClick(about.lblWebSite, Qt::Key_Return);
      EXPECT_TRUE(about.isVisible());
      QTest::keyClick(about.cmdClose, Qt::Key_Space);
    });
    Click(button);
    EXPECT_FALSE(look::IsLoaded<frmAbout>());
  }
  platform::SetUrlRunner({});
  EXPECT_EQ(opened, fixture::Texts(6, "http://www.zandolk.example/"));
}

}  // namespace
