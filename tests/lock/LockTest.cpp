#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "lock/frmPass.h"
#include "state/State.h"
#include "store/Scrambler.h"
#include "tests/support/Fixtures.h"

namespace {

class Lock : public testing::Test {
 protected:
  Lock() {
    ResetState();
    MasterPassword = ScrambleText("Rosebud7");
    ShowIt();
  }
  ~Lock() override {
    look::UnloadAllForms();
    ResetState();
  }

  static frmPass& Window() { return look::The<frmPass>(); }
  static void ShowIt() {
    Window().ShowModeless();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }
  static void Try(const char* password) {
    Window().txtPass->clear();
    QTest::keyClicks(Window().txtPass, QString::fromUtf8(password));
    QTest::keyClick(Window().txtPass, Qt::Key_Return);
  }

  fixture::Folder folder;
  fixture::Answers answers;
  fixture::End end;
};

TEST_F(Lock, SaysWhatItIs) {
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Thorn Quill Security Lock"));
  EXPECT_EQ(Window().Label1->text(), QStringLiteral("Enter your password:"));
  EXPECT_EQ(Window().cmdOK->text(), QStringLiteral("&Ok"));
  EXPECT_EQ(Window().cmdCancel->text(), QStringLiteral("E&xit"));
  EXPECT_EQ(Window().Label1->buddy(), Window().txtPass);
  EXPECT_TRUE(Window().txtPass->hasFocus());
}

TEST_F(Lock, RefusesAnythingButThePassword) {
  const QSignalSpy unlocked(&Window(), &frmPass::Unlocked);
  for (const char* wrong : {"rosebud7", "ROSEBUD7", "Rosebud", "Rosebud77", " Rosebud7", ""}) {
    answers.messages.clear();
    Try(wrong);
    ASSERT_EQ(answers.texts(), std::vector<std::string>{"password incorrect!"}) << wrong;
    EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Stop);
    EXPECT_EQ(Window().txtPass->text(), QString::fromUtf8(wrong));
    EXPECT_TRUE(Window().isVisible());
  }
  EXPECT_EQ(unlocked.count(), 0);
  EXPECT_EQ(end.count, 0);
}

TEST_F(Lock, OpensWithThePasswordAndIsGone) {
  bool goneByThen = false;
  QObject::connect(&Window(), &frmPass::Unlocked, [&] { goneByThen = !look::IsLoaded<frmPass>(); });
  QTest::keyClicks(Window().txtPass, QStringLiteral("Rosebud7"));
  QTest::mouseClick(Window().cmdOK, Qt::LeftButton);
  EXPECT_TRUE(goneByThen);
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(Lock, AnIndexWithoutAPasswordOpensWithAnEmptyEntry) {
  MasterPassword.clear();
  Try("");
  EXPECT_FALSE(look::IsLoaded<frmPass>());
}

TEST_F(Lock, EveryExitSavesTheIndexAndEnds) {
  const std::function<void()> exits[] = {
      [] { QTest::mouseClick(Window().cmdCancel, Qt::LeftButton); },
      [] { Window().close(); },
      [] { QTest::keyClick(Window().txtPass, Qt::Key_Escape); },
      [] { QTest::keyClick(&Window(), Qt::Key_X, Qt::AltModifier); },
  };
  for (const auto& leave : exits) {
    look::UnloadAllForms();
    QFile::remove(QString::fromStdString(folder.PathOf("journal.tqt")));
    end.count = 0;
    ShowIt();
    leave();
    EXPECT_TRUE(QTest::qWaitFor([this] { return end.count == 1; }));  // a mnemonic presses the button first
    EXPECT_TRUE(folder.Exists("journal.tqt"));
  }
}

TEST_F(Lock, AnIndexThatCannotBeWrittenKeepsTheLock) {
  QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("journal.tqt"));
  Window().close();
  EXPECT_EQ(end.count, 0);
  EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
  EXPECT_TRUE(Window().isVisible());
}

}  // namespace
