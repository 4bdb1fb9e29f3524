#include <gtest/gtest.h>

#include <QtTest/QTest>

#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "state/State.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/support/Fixtures.h"

namespace {

class FirstRun : public testing::Test {
 protected:
  FirstRun() {
    ResetState();
    Window().ShowModeless();
  }
  ~FirstRun() override {
    look::UnloadAllForms();
    ResetState();
  }

  static frmInitJournal& Window() { return look::The<frmInitJournal>(); }
  void Fill(const std::string& name, const std::string& password, const std::string& again) {
    Window().txtPass->setText(QString::fromLatin1(name));
    Window().txtNewPass->setText(QString::fromLatin1(password));
    Window().txtNewPass2->setText(QString::fromLatin1(again));
    answers.messages.clear();
    QTest::mouseClick(Window().cmdOK, Qt::LeftButton);
  }

  fixture::Folder folder;
  fixture::Answers answers;
  fixture::End end;
};

TEST_F(FirstRun, TextsAreAsTold) {
  const frmInitJournal& w = Window();
  EXPECT_EQ(w.windowTitle(), QStringLiteral("Thornquill"));
  EXPECT_EQ(
      w.Label4->text(),
      QStringLiteral("Welcome to Thornquill.  This is a place for self exploration and personal growth!"));
  EXPECT_EQ(w.Label5->text(), QStringLiteral("Enter a name for your first journal, and a password below."));
  const std::pair<QLabel*, QLineEdit*> boxes[] = {
      {w.Label1, w.txtPass}, {w.Label3, w.txtNewPass}, {w.Label2, w.txtNewPass2}};
  for (const auto& [label, box] : boxes) EXPECT_EQ(label->buddy(), box);
  EXPECT_EQ(w.Label1->text(), QStringLiteral("Enter name for Journal: (you can change it later)"));
  EXPECT_EQ(w.Label3->text(), QStringLiteral("Enter a password:"));
  EXPECT_EQ(w.Label2->text(), QStringLiteral("Re-enter password to confirm:"));
  EXPECT_EQ(w.cmdCancel->text(), QStringLiteral("E&xit"));
}

TEST_F(FirstRun, ChecksInOrderAndChangesNothingMeanwhile) {
  const std::string longest(MaxPasswordLength, 'a');
  const struct {
    std::string name, password, again;
    const char* message;
    platform::BoxIcon icon;
  } entries[] = {
      {"", "", "x", "Please enter a name for this journal!", platform::BoxIcon::None},
      {"n", "", "x", "Please enter a password!", platform::BoxIcon::None},
      {"n", "Abc", "abc", "Password entries do not match!", platform::BoxIcon::Stop},
      {"n", longest + "a", longest + "b", "Password entries do not match!", platform::BoxIcon::Stop},
      {"n", longest + "a", longest + "a", "The password has 129 characters. It can have at most 128.",
       platform::BoxIcon::Stop},
  };
  for (const auto& entry : entries) {
    Fill(entry.name, entry.password, entry.again);
    ASSERT_EQ(answers.texts(), std::vector<std::string>{entry.message});
    EXPECT_EQ(answers.messages[0].icon, entry.icon) << entry.message;
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(JournalCount, 0);
    EXPECT_TRUE(MasterPassword.empty());
    const bool mismatch = entry.password != entry.again && !entry.password.empty();
    EXPECT_EQ(Window().txtNewPass->text().isEmpty(), mismatch || entry.password.empty());
    EXPECT_EQ(Window().txtNewPass2->text().isEmpty(), mismatch);
    EXPECT_EQ(Window().txtPass->text().toStdString(), entry.name);
  }
}

TEST_F(FirstRun, MakesTheFirstJournalAndTheKey) {
  Fill(" My Diary ", std::string(MaxPasswordLength - 1, 'x') + "A",
       std::string(MaxPasswordLength - 1, 'x') + "A");
  EXPECT_TRUE(answers.messages.empty());
  EXPECT_EQ(JournalCount, 1);
  EXPECT_EQ(Journals[1].Name, " My Diary ");
  EXPECT_EQ(PageShift, 65);
  EXPECT_EQ(UnscrambleText(MasterPassword), std::string(MaxPasswordLength - 1, 'x') + "A");
  EXPECT_FALSE(look::IsLoaded<frmInitJournal>());
  EXPECT_TRUE(look::The<frmBookcase>().isVisible());
  EXPECT_EQ(look::The<frmBookcase>().ListView1->count(), 1);
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(FirstRun, EveryExitEndsWithNothingWritten) {
  QTest::mouseClick(Window().cmdCancel, Qt::LeftButton);
  EXPECT_FALSE(look::IsLoaded<frmInitJournal>());
  Window().ShowModeless();
  Window().close();
  Window().ShowModeless();
  QTest::keyClick(Window().txtNewPass, Qt::Key_Escape);
  EXPECT_EQ(end.count, 3);
  EXPECT_TRUE(folder.Names().empty());
  EXPECT_FALSE(look::IsLoaded<frmBookcase>());
}

}  // namespace
