#include "bookcase/JournalIcons.h"
#include "bookcase/frmAbout.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmNewJournal.h"
#include "editor/PageFace.h"
#include "editor/Toolbar.h"
#include "editor/frmJournal.h"
#include "output/frmExport.h"
#include "platform/desktop/RunUrl.h"
#include "richtext/box/RichTextBox.h"
#include "store/JournalFile.h"
#include "store/NewJournals.h"
#include "store/PictureStore.h"
#include "store/Scrambler.h"
#include "store/UnstoredLog.h"
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
      all += List().item(i)->text() + List().item(i)->data(Qt::UserRole).toString() + u' ';
    return all.toStdString();
  }
  static void ClickBesideTheItems(bool twice = false) {
    const QPoint place = List().viewport()->rect().bottomRight() - QPoint(3, 3);
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
  }
};

TEST_F(BookcaseTest, ListsTheLiveRowsWhereverTheyComeFrom) {
  MakeJournal("before the window ");
  MakeJournal("removed ");
  Journals[2].Deleted = True;
  Show({"after ", "<b>&1 [*] "});
  EXPECT_EQ(Listed(), "before the window 1 after 3 <b>&1 [*] 4 ");
  ClickBesideTheItems();
  EXPECT_TRUE(List().item(0)->isSelected()) << "no click takes the selection away";
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
  QTest::keyClick(&List(), Qt::Key_Delete);
  EXPECT_EQ(Listed(), "two2 [*]3 ");
  EXPECT_TRUE(List().hasFocus());
  for (const std::int32_t row : {2, 3}) {
    List().setCurrentRow(row - 2);
    row == 2 ? Click(Window().cmdOpen) : QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(PagesJournal, row);
    const JournalEntry& entry = Journals.at(static_cast<std::size_t>(row));
    EXPECT_EQ(Book().windowHandle()->title().toStdString(), "Thornquill [" + entry.Name + "]");
    EXPECT_EQ(Book().face->txtM->BackColor(), entry.PaperColor);
    EXPECT_EQ(Book().windowIcon().cacheKey(), JournalIcon(row == 3 ? 63 : 1).cacheKey());
    EXPECT_FALSE(Window().isVisible());
    EXPECT_EQ(Book().focusWidget(), Book().face->txtM) << "wherever the keyboard was at the closing";
    Book().Toolbar1->Button(15)->setFocus();
    Book().close();
    EXPECT_TRUE(Window().isVisible());
  }
  folder.Write("j00002.tqf", "no journal at all");
  ClickBesideTheItems(true);
  EXPECT_EQ(answers.last(), "Journal load -- file unknown or corrupt!") << "opened, and once";
  EXPECT_EQ(answers.messages.size(), 2u);
  EXPECT_FALSE(Book().isVisible());
}

TEST_F(BookcaseTest, DeletesFileItemAndPicturesButNoRowAndOnlyOnYes) {
  Show({"one", "two"});
  folder.Write("j00000.tqf", "bytes");
  Pictures.resize(3);
  PictureCount = 2;
  Pictures[1].JournalFile = "j00000.tqf";
  Pictures[2].JournalFile = "j00001.tqf";
  Click(Window().cmdDelete);
  EXPECT_EQ(answers.texts(), fixture::Texts{"Are you sure you want to delete j00000.tqf"});
  EXPECT_TRUE(folder.Exists("j00000.tqf"));
  answers.yes = 3;
  Click(Window().cmdDelete);
  EXPECT_FALSE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Listed(), "two2 ");
  EXPECT_EQ(store::DecodePictureStore(folder.Read("tqpics.bin")).rows,
            (std::vector<PagePicture>{{}, Pictures[2], {}}));
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
  for (auto* button : {Window().cmdOpen, Window().cmdDelete, Window().cmdExport, Window().cmdProp})
    Click(button);
  EXPECT_TRUE(answers.messages.empty()) << "an empty list does nothing";
}

TEST_F(BookcaseTest, WithAJournalGoItsCopiesAndWhereItsLinkLeadsAndWhatStaysIsTold) {
  Show({"one", "two", "three"});
  store::WriteJournalFile("diary", std::vector<JournalPage>(2));
  const std::string journal = folder.Read("diary");
  const auto link = [&](const char* from, const char* to) {
    EXPECT_TRUE(
        QFile::link(QString::fromStdString(folder.PathOf(to)), QString::fromStdString(folder.PathOf(from))));
  };
  const fixture::Texts stay = {"j00000.tqf.bak", "j00000.tqf.x.damaged", "j00000.tqfx.damaged",
                               "j00001.tqf.damaged"};
  for (const char* copy : {"j00000.tqf.damaged", "j00000.tqf.12.damaged", "j00000.tqf.1.other"})
    folder.Write(copy, journal);
  for (const std::string& other : stay) folder.Write(other, journal);
  folder.Block("j00000.tqf.3.damaged");
  link("j00000.tqf", "diary");
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_NE(answers.last().find("j00000.tqf.3.damaged"), std::string::npos) << answers.last();
  fixture::Texts left = {"j00000.tqf.3.damaged", "tqpics.bin"};
  left.insert(left.begin() + 1, stay.begin(), stay.end());
  std::sort(left.begin(), left.end());
  EXPECT_EQ(folder.Names(), left);
  folder.Write("j00002.tqf", journal);
  link("j00001.tqf", "j00002.tqf");
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_NE(answers.last().find("j00002.tqf (this is another journal of the bookcase, too)"),
            std::string::npos);
  EXPECT_TRUE(!folder.Exists("j00001.tqf") && !folder.Exists("j00001.tqf.damaged") &&
              folder.Exists("j00002.tqf"));
  QFile::remove(QString::fromStdString(folder.PathOf("j00002.tqf")));
  folder.Write("notes", "no journal");
  link("j00002.tqf", "notes");
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_NE(answers.last().find("notes (this is no journal)"), std::string::npos);
  EXPECT_TRUE(!folder.Exists("j00002.tqf") && folder.Exists("notes"));
}

TEST_F(BookcaseTest, AFileThatTwoJournalsHaveGoesWithTheSecond) {
  Show({"one", "two", "three"});
  Journals[2].FileName = "./j00000.tqf";  // as another case is on a disk that knows none
  Journals[3].FileName = "j00000.tqf";
  folder.Write("j00000.tqf", "bytes");
  folder.Write("j00000.tqf.damaged", "bytes");
  store::UnstoredLog log;
  log.journals.resize(1);
  log.journals[0].FileName = "j00000.tqf";
  log.journals[0].pages.resize(1);
  folder.Write("journal.tql.damaged", store::EncodeLog(log));
  log.journals[0].FileName = "j00001.tqf";
  folder.Write("journal.tql.1.damaged", store::EncodeLog(log));
  Pictures.resize(2);
  PictureCount = 1;
  Pictures[1].JournalFile = "j00000.tqf";
  for (int shared = 2; shared > 0; --shared) {
    answers.yes = 1;
    Click(Window().cmdDelete);
    EXPECT_NE(answers.last().find("j00000.tqf stays with its pages"), std::string::npos) << answers.last();
    EXPECT_TRUE(folder.Exists("j00000.tqf") && folder.Exists("j00000.tqf.damaged"));
    EXPECT_EQ(Pictures[1].Deleted, False);
  }
  answers.yes = 1;
  Click(Window().cmdDelete);
  EXPECT_FALSE(folder.Exists("j00000.tqf"));
  EXPECT_EQ(Pictures[1].Deleted, True);
  EXPECT_NE(answers.last().find("journal.tql.damaged (it has pages of the journal)\n\n"), std::string::npos)
      << answers.last();
  EXPECT_EQ(answers.last().find("journal.tql.1"), std::string::npos);
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
  EXPECT_EQ(folder.Names(), fixture::Texts{}) << "neither journal nor index nor store";
  EXPECT_EQ(Listed(), "one1 ");
}

TEST_F(BookcaseTest, AddsAJournalThroughTheDialogAndEscapeIsNoWayOut) {
  Show({"one"});
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_EQ(end.count, 0);
  QTimer::singleShot(0, [] {
    auto& dialog = look::The<frmNewJournal>();
    Click(dialog.cmdOK);
    QTest::keyClicks(dialog.txtPass, u"  "_qs);
    QTest::keyClick(dialog.txtPass, Qt::Key_Return);
  });
  Click(Window().cmdAdd);
  EXPECT_TRUE(List().currentRow() == 1 && Window().focusWidget() == &List()) << "the new one is chosen";
  QTimer::singleShot(0, [] { QTest::keyClick(&look::The<frmNewJournal>(), Qt::Key_Escape); });
  Click(Window().cmdAdd);
  EXPECT_EQ(answers.texts(), fixture::Texts{"Please enter a name for this journal!"});
  EXPECT_EQ(Listed(), "one1   2 ");
}

TEST_F(BookcaseTest, ExportsAJournalThatNobodySees) {
  Show({"one", "two"});
  List().setCurrentRow(1);
  folder.Write("j00000.tqf", "no journal");
  Click(Window().cmdExport);
  EXPECT_TRUE(look::The<frmExport>().isVisible());
  EXPECT_FALSE(Window().isVisible() || Book().isVisible());
  EXPECT_EQ(PagesJournal, 2);
  QTest::keyClick(&look::The<frmExport>(), Qt::Key_Escape);
  EXPECT_TRUE(Window().isVisible());
  List().setCurrentRow(0);
  Click(Window().cmdExport);
  EXPECT_EQ(answers.last(), "Journal load -- file unknown or corrupt!");
  platform::SetProgramFolder("/proc/self");
  Click(Window().cmdExport);
  EXPECT_EQ(answers.messages.size(), 2u) << "without its folder nothing is loaded";
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(BookcaseTest, TheAboutBoxLeadsToTheMaker) {
  fixture::Texts opened;
  platform::SetUrlRunner([&](const std::string& url) { opened.push_back(url); });
  QTest::mouseClick(look::The<frmAbout>().Image1, Qt::LeftButton);
  QTest::mouseDClick(look::The<frmAbout>().Image1, Qt::LeftButton);
  QTest::mouseRelease(look::The<frmAbout>().Image1, Qt::LeftButton);
  auto* link = QAccessible::queryAccessibleInterface(look::The<frmAbout>().lblWebSite);
  EXPECT_EQ(link->role(), QAccessible::Link);
  link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  platform::SetUrlRunner({});
  EXPECT_EQ(opened, fixture::Texts(2, "http://www.zandolk.example/")) << "one for a double click";
}

TEST_F(BookcaseTest, AllIconsAreDrawnAndNamedAndNoTwoAreAlike) {
  QSet<QString> names;
  QSet<QByteArray> pictures;
  for (int index = 1; index <= JournalIconCount; ++index) {
    const QImage picture = JournalIcon(index).pixmap(QSize(32, 32), 2).toImage();
    EXPECT_EQ(picture.size(), QSize(64, 64));
    names += JournalIconName(index);
    pictures += {reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()};
  }
  EXPECT_EQ(names.size(), JournalIconCount);
  EXPECT_EQ(pictures.size(), JournalIconCount);
}

}  // namespace
