#include <gtest/gtest.h>

#include <QtGui/QInputMethodEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include "look/Form.h"
#include "look/Pass.h"
#include "look/Theme.h"
#include "look/frmWait.h"

namespace {

class Dialog : public look::Form {
 public:
  explicit Dialog(Kind kind = Kind::Dialog)
      : Form(kind, QStringLiteral("Dialog"), QStringLiteral("A"), 4500, 3000) {
    box = Place(new QLineEdit(this), "box", 150, 150, 1508, 300, QStringLiteral("the box"));
    label = Place(new QLabel(QStringLiteral("<b>&x</b>"), this), "label", 150, 600, 1500, 300);
  }
  void CloseBox() override {
    ++closings;
    look::Unload<Dialog>();
  }
  QLineEdit* box;
  QLabel* label;
  static inline int closings = 0;
};

class Book : public look::Form {
 public:
  Book() : Form(Kind::Window, QStringLiteral("Book"), QStringLiteral("B"), 4500, 3000) {}
};

class FormTest : public testing::Test {
 protected:
  FormTest() { Dialog::closings = 0; }
  ~FormTest() override { look::UnloadAllForms(); }

  static void ServeFor(look::Pass& pass, int milliseconds) {
    for (QElapsedTimer time = Started(); time.elapsed() < milliseconds; QThread::msleep(2)) pass.Yield();
  }

 private:
  static QElapsedTimer Started() {
    QElapsedTimer time;
    time.start();
    return time;
  }
};

TEST_F(FormTest, TwipsBecomePixelsHalvesToEven) {
  EXPECT_EQ(look::Pixels(15), 1);
  EXPECT_EQ(look::Pixels(7.5), 0);
  EXPECT_EQ(look::Pixels(22.5), 2);
  EXPECT_EQ(look::The<Dialog>().size(), QSize(300, 200));
  EXPECT_EQ(look::The<Dialog>().box->geometry(), QRect(10, 10, 101, 20));
  EXPECT_EQ(look::The<Dialog>().box->accessibleName(), QStringLiteral("the box"));
  EXPECT_EQ(look::The<Dialog>().label->textFormat(), Qt::PlainText);
}

TEST_F(FormTest, UnloadBringsTheDesignValuesBackAndHidingDoesNot) {
  look::The<Dialog>().box->setText(QStringLiteral("typed"));
  look::The<Dialog>().ShowModeless();
  look::The<Dialog>().hide();
  EXPECT_EQ(look::The<Dialog>().box->text(), QStringLiteral("typed"));
  look::The<Dialog>().close();  // hidden: no request to close can be meant
  EXPECT_EQ(Dialog::closings, 0);
  look::The<Dialog>().ShowModeless();
  look::The<Dialog>().close();
  EXPECT_FALSE(look::IsLoaded<Dialog>());
  EXPECT_EQ(look::The<Dialog>().box->text(), QString());
}

TEST_F(FormTest, TheDesignedCloseBoxUnloadsAtOnce) {
  look::The<Book>().setWindowOpacity(0.5);
  look::The<Book>().ShowModeless();
  look::The<Book>().close();
  EXPECT_FALSE(look::IsLoaded<Book>());
  EXPECT_EQ(look::The<Book>().windowOpacity(), 1);
}

TEST_F(FormTest, EscapeClosesDialogsAndNoWindows) {
  Dialog window(look::Form::Kind::Window);
  window.ShowModeless();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  look::The<Dialog>().ShowModeless();
  QTest::keyClick(look::The<Dialog>().box, Qt::Key_Escape);
  EXPECT_EQ(Dialog::closings, 1);
}

TEST_F(FormTest, IsCentredBeforeItIsShownAndOnlyOnce) {
  auto& dialog = look::The<Dialog>();
  dialog.ShowModeless();
  const QPoint off = dialog.geometry().center() - dialog.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 8);  // the frame's share
  dialog.move(3, 4);
  dialog.hide();
  dialog.ShowModeless();
  EXPECT_EQ(dialog.pos(), QPoint(3, 4));
}

TEST_F(FormTest, AModalDialogReturnsWhenItIsHidden) {
  look::The<Book>().ShowModeless();
  bool wasModal = false;
  QTimer::singleShot(0, [&] {
    wasModal = QApplication::activeModalWidget() == &look::The<Dialog>();
    look::The<Dialog>().close();
  });
  look::The<Dialog>().ShowModal();
  EXPECT_TRUE(wasModal);
  EXPECT_FALSE(look::IsLoaded<Dialog>());
}

TEST_F(FormTest, ACaptionKeepsTheToolkitsMark) {
  auto& dialog = look::The<Dialog>();
  dialog.SetCaption(QStringLiteral("Thornquill [*]"));
  dialog.ShowModeless();
  EXPECT_EQ(dialog.windowHandle()->title(), QStringLiteral("Thornquill [*]"));
}

TEST_F(FormTest, WritesDarkOnThePicture) {
  QPalette night(QColor(30, 30, 30));
  QApplication::setPalette(night);
  Dialog dialog;
  dialog.SetPicture(look::CurrentTheme().large);
  EXPECT_LT(dialog.label->palette().color(QPalette::WindowText).lightness(), 64);
  EXPECT_GT(dialog.box->palette().color(QPalette::Base).lightness(), 192);
  QApplication::setPalette(QPalette());
}

TEST_F(FormTest, InputOfAPassWaitsForItsEndInOrder) {
  auto& dialog = look::The<Dialog>();
  dialog.ShowModeless();
  dialog.box->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  {
    look::Pass pass;
    QTimer::singleShot(0, [&] {
      QTest::keyClick(dialog.windowHandle(), Qt::Key_A);
      QInputMethodEvent commit;
      commit.setCommitString(QStringLiteral("é"));
      QCoreApplication::sendEvent(dialog.box, &commit);
      QTest::keyClick(dialog.box, Qt::Key_B);
      dialog.close();
    });
    ServeFor(pass, 60);
    EXPECT_EQ(dialog.box->text(), QString());
  }
  QString atTheClose;
  QTimer::singleShot(0, [&] { atTheClose = dialog.box->text(); });
  EXPECT_TRUE(QTest::qWaitFor([] { return Dialog::closings == 1; }));
  EXPECT_EQ(atTheClose, QStringLiteral("aéb"));
}

TEST_F(FormTest, APassServesTimersAndNeverItself) {
  int turns = 0;
  int nested = 0;
  look::Pass pass;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    ++turns;
    look::Pass inner;
    QTimer::singleShot(0, [&] { ++nested; });
    const int before = nested;
    ServeFor(inner, 20);
    EXPECT_EQ(nested, before);
  });
  timer.start(1);
  ServeFor(pass, 100);
  EXPECT_GE(turns, 2);
}

TEST_F(FormTest, ACloseRequestWaitsForTheEndOfTheOuterPass) {
  look::The<Dialog>().ShowModeless();
  {
    look::Pass outer;
    {
      look::Pass inner;
      look::The<Dialog>().close();
      look::The<Dialog>().close();
    }
    ServeFor(outer, 40);
    EXPECT_EQ(Dialog::closings, 0);
    EXPECT_TRUE(look::The<Dialog>().isVisible());
  }
  EXPECT_TRUE(QTest::qWaitFor([] { return Dialog::closings > 0; }));
  QTest::qWait(20);
  EXPECT_EQ(Dialog::closings, 1);
}

TEST_F(FormTest, TheWaitWindowOfAShortPassNeverReachesTheScreen) {
  auto& wait = look::The<look::frmWait>();
  wait.ShowSoon();
  EXPECT_TRUE(wait.CountsAsShown());
  QCoreApplication::processEvents();
  EXPECT_FALSE(wait.isVisible());
  wait.HideNow();
  EXPECT_FALSE(wait.CountsAsShown());
  QTest::qWait(50);
  EXPECT_FALSE(wait.isVisible());
}

TEST_F(FormTest, TheWaitWindowOfALongPassLeavesTheFocusAlone) {
  auto& dialog = look::The<Dialog>();
  dialog.ShowModeless();
  dialog.box->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  auto& wait = look::The<look::frmWait>();
  {
    look::Pass pass;
    wait.ShowSoon();
    ServeFor(pass, 100);
    EXPECT_TRUE(wait.isVisible());
    EXPECT_FALSE(wait.isModal());
    wait.close();
    wait.HideNow();
  }
  QTest::qWait(30);
  EXPECT_FALSE(wait.isVisible());
  EXPECT_EQ(QApplication::activeWindow(), &dialog);
  EXPECT_EQ(QApplication::focusWidget(), dialog.box);
  EXPECT_TRUE(look::IsLoaded<look::frmWait>());
}

}  // namespace
