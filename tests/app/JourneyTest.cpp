// The program from its start to its end, and what the next start finds.
#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include "app/Main.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "editor/PagePasses.h"
#include "editor/frmJournal.h"
#include "lock/frmPass.h"
#include "platform/Application.h"
#include "platform/Failure.h"
#include "state/State.h"
#include "tests/support/Fixtures.h"

namespace {

class Journey : public testing::Test {
 protected:
  ~Journey() override { EndOfRun(); }

  // One run of the program, up to the first window. A first run is answered by what is given, on a timer,
  // since its dialog blocks.
  void Start(const std::function<void(frmInitJournal&)>& firstRun = {}) {
    EndOfRun();
    if (firstRun) QTimer::singleShot(0, [firstRun] { firstRun(look::The<frmInitJournal>()); });
    instance_ = std::make_unique<platform::RunningInstance>();
    Main(*instance_, {});
  }
  void EndOfRun() {
    look::UnloadAllForms();
    instance_.reset();
    ResetState();
  }
  static void FillFirstRun(frmInitJournal& dialog) {
    QTest::keyClicks(dialog.txtPass, QStringLiteral("My Diary"));
    QTest::keyClicks(dialog.txtNewPass, QStringLiteral("Rosebud7"));
    QTest::keyClicks(dialog.txtNewPass2, QStringLiteral("Rosebud7"));
    QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
  }
  void Unlock(const char* password = "Rosebud7") {
    auto& lock = look::The<frmPass>();
    QTest::keyClicks(lock.txtPass, QLatin1String(password));
    QTest::mouseClick(lock.cmdOK, Qt::LeftButton);
    ASSERT_TRUE(look::The<frmBookcase>().isVisible());
  }
  void OpenTheJournal() {
    QTest::mouseClick(look::The<frmBookcase>().cmdOpen, Qt::LeftButton);
    ASSERT_TRUE(Book().isVisible());
  }
  static void Press(const char* key) {
    QTest::mouseClick(Book().Toolbar1->Button(QLatin1String(key)), Qt::LeftButton);
  }
  static frmJournal& Book() { return look::The<frmJournal>(); }
  static QString Text() { return Book().face->txtM->Text(); }

  fixture::Folder folder;
  fixture::Answers answers;
  fixture::End end;

 private:
  std::unique_ptr<platform::RunningInstance> instance_;
};

TEST_F(Journey, FirstRunThatIsLeftLeavesNothingBehind) {
  Start([](frmInitJournal& dialog) { QTest::mouseClick(dialog.cmdCancel, Qt::LeftButton); });
  EXPECT_EQ(end.count, 1);
  EXPECT_TRUE(folder.Names().empty());
  Start([](frmInitJournal& dialog) { dialog.close(); });
  EXPECT_EQ(end.count, 2);
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(Journey, FirstRunWritesTheIndexOnlyOnTheWayOut) {
  Start(&FillFirstRun);
  EXPECT_TRUE(folder.Names().empty());
  look::The<frmBookcase>().close();
  EXPECT_EQ(end.count, 1);
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"journal.tqt"});
  Start();
  Unlock();
  OpenTheJournal();
  EXPECT_EQ(Book().face->lblPageNum1->text(), QStringLiteral("Page 1"));
  EXPECT_EQ(Text(), QString());
}

TEST_F(Journey, WhatWasWrittenIsThereAfterTheNextStart) {
  Start(&FillFirstRun);
  OpenTheJournal();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Page one: \"quoted\""));
  Press("btnFirstPage");
  QTest::keyClicks(Book().face->txtM, QStringLiteral("The title"));
  answers.Yes();
  Press("btnNewPage");
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Page two"));
  Book().close();
  look::The<frmBookcase>().close();

  Start();
  Unlock();
  OpenTheJournal();
  EXPECT_EQ(Text(), QStringLiteral("Page two"));
  Press("btnBack");
  EXPECT_EQ(Text(), QStringLiteral("Page one: \"quoted\""));
  Press("btnBack");
  EXPECT_EQ(Text(), QStringLiteral("The title"));
}

TEST_F(Journey, TheSystemsOrderToEndStoresThePageAndTheIndex) {
  Start(&FillFirstRun);
  OpenTheJournal();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Unsaved"));
  LeaveTheProgram();
  EXPECT_EQ(end.count, 1);
  Start();
  Unlock();
  OpenTheJournal();
  EXPECT_EQ(Text(), QStringLiteral("Unsaved"));
}

TEST_F(Journey, AnUnwritableJournalKeepsTheProgramAndTheText) {
  Start(&FillFirstRun);
  OpenTheJournal();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Kept"));
  ASSERT_TRUE(QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("j00000.tqf")));
  LeaveTheProgram();
  EXPECT_EQ(end.count, 0);
  EXPECT_TRUE(Book().isVisible());
  EXPECT_EQ(Text(), QStringLiteral("Kept"));
  EXPECT_NE(answers.last().find("j00000.tqf"), std::string::npos) << answers.last();
  ASSERT_TRUE(QDir(QString::fromStdString(folder.path())).rmdir(QStringLiteral("j00000.tqf")));
  LeaveTheProgram();
  EXPECT_EQ(end.count, 1);
  Start();
  Unlock();
  OpenTheJournal();
  EXPECT_EQ(Text(), QStringLiteral("Kept"));
}

TEST_F(Journey, AnUnwritableIndexKeepsTheBookcase) {
  Start(&FillFirstRun);
  ASSERT_TRUE(QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("journal.tqt")));
  QTest::mouseClick(look::The<frmBookcase>().cmdClose, Qt::LeftButton);
  EXPECT_EQ(end.count, 0);
  EXPECT_TRUE(look::The<frmBookcase>().isVisible());
  EXPECT_EQ(Journals[1].Name, "My Diary");
  EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos) << answers.last();
}

TEST_F(Journey, QuittingAtTheLockRewritesTheIndex) {
  Start(&FillFirstRun);
  look::The<frmBookcase>().close();
  const std::string before = folder.Read("journal.tqt");
  Start();
  QTest::mouseClick(look::The<frmPass>().cmdCancel, Qt::LeftButton);
  EXPECT_EQ(end.count, 2);
  const std::string after = folder.Read("journal.tqt");
  ASSERT_EQ(after.size(), before.size());
  EXPECT_NE(after, before);  // other fillers
  Start();
  Unlock();
}

TEST_F(Journey, AFailureThatNobodyGuardsStoresThePageAndNotTheIndex) {
  Start(&FillFirstRun);
  OpenTheJournal();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Last words"));
  auto& application = static_cast<platform::Application&>(*qApp);
  application.SetLastWill(&StoreOpenPage);
  QTimer::singleShot(0, [] { throw platform::Failure(platform::FailureKind::PathNotFound, "somewhere"); });
  QTest::qWait(50);
  application.SetLastWill({});
  EXPECT_EQ(answers.texts(), std::vector<std::string>{"Path not found: somewhere"});
  EXPECT_EQ(end.count, 1);
  EXPECT_TRUE(folder.Exists("j00000.tqf"));
  EXPECT_FALSE(folder.Exists("journal.tqt"));
}

TEST_F(Journey, AHeadlessIndexEndsTheStartWithNothingWritten) {
  folder.Write("journal.tqt", "ZANDOLK JOURNAL INDEX FILE V00003\x01");
  Start();
  EXPECT_EQ(end.count, 1);
  EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
  EXPECT_EQ(folder.Read("journal.tqt"), "ZANDOLK JOURNAL INDEX FILE V00003\x01");
}

}  // namespace
