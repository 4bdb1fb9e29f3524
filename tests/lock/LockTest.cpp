// The gate before the bookcase, and another password for it.
#include "lock/frmPass.h"
#include "lock/frmPassChange.h"
#include "state/State.h"
#include "store/Scrambler.h"
#include "tests/support/Windows.h"

namespace {

class LockTest : public fixture::Windows {
 protected:
  LockTest() { MasterPassword = ScrambleText("Old"); }
};

TEST_F(LockTest, OpensOnceWithThePasswordAloneAndKeepsWhatIsToBeMended) {
  auto& lock = look::The<frmPass>();
  int unlocked = 0;
  QObject::connect(&lock, &frmPass::Unlocked, [&] { ++unlocked; });
  lock.ShowModeless();
  for (const char* wrong : {"", "old", "Ol", "Old1", " Old"}) {
    answers.messages.clear();
    lock.txtPass->setText(QLatin1String(wrong));
    QTest::keyClick(lock.txtPass, Qt::Key_Return);
    ASSERT_EQ(answers.texts(), fixture::Texts{"password incorrect!"}) << wrong;
    EXPECT_EQ(lock.txtPass->text(), QLatin1String(wrong));
  }
  EXPECT_EQ(unlocked, 0);
  QTest::keyClicks(lock.txtPass, u"Old"_qs);  // over what was wrong
  Click(lock.cmdOK);
  EXPECT_EQ(unlocked, 1);
  EXPECT_FALSE(look::IsLoaded<frmPass>());
}

TEST_F(LockTest, ThePasswordChangesOnlyWhenEverythingIsRight) {
  const std::string tooLong(129, 'a');
  PageShift = 'd';
  auto& dialog = look::The<frmPassChange>();
  const struct {
    std::string old, fresh, again, message;
    const QLineEdit* toMend;
    bool clears = false;
  } cases[] = {{"Old ", "", "", "Old password incorrect!", dialog.txtPass},
               {"Old", "", "b", "You have not entered a new password!", dialog.txtNewPass},
               {"Old", "b", "", "You have not re-entered your new password!", dialog.txtNewPass2},
               {"Old", "b", "B", "New password entries do not match!", dialog.txtNewPass, true},
               {"Old", tooLong, tooLong, "The password has 129 characters. It can have at most 128.",
                dialog.txtNewPass}};
  dialog.show();
  const auto enter = [&](const std::string& old, const std::string& fresh, const std::string& again) {
    dialog.txtPass->setText(QString::fromStdString(old));
    dialog.txtNewPass->setText(QString::fromStdString(fresh));
    dialog.txtNewPass2->setText(QString::fromStdString(again));
    Click(dialog.cmdOK);
  };
  for (const auto& [old, fresh, again, message, toMend, clears] : cases) {
    enter(old, fresh, again);
    EXPECT_EQ(answers.last(), message);
    EXPECT_EQ(dialog.focusWidget(), toMend) << message;
    EXPECT_EQ(toMend->selectedText().size(), toMend->text().size()) << "to be typed over";
    EXPECT_EQ(dialog.txtNewPass->text().isEmpty(), clears || fresh.empty()) << message;
    EXPECT_EQ(UnscrambleText(MasterPassword), "Old");
    EXPECT_TRUE(dialog.isVisible());
  }
  enter("Old", "b\xC3\xA9", "b\xC3\xA9");
  EXPECT_EQ(answers.messages.size(), std::size(cases));
  EXPECT_EQ(UnscrambleText(MasterPassword), "b\xE9");
  EXPECT_EQ(PageShift, 'd');
  EXPECT_FALSE(look::IsLoaded<frmPassChange>());
}

}  // namespace
