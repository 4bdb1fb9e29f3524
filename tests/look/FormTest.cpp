#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include "look/CodePageEdit.h"
#include "look/Emblem.h"
#include "look/PaperStyle.h"
#include "look/Pass.h"
#include "look/PixelGrid.h"
#include "look/Shortening.h"
#include "look/Spoken.h"
#include "look/SpokenChoice.h"
#include "look/Theme.h"
#include "look/frmWait.h"
#include "tests/support/Windows.h"

namespace {

class Dialog : public look::Form {
 public:
  Dialog() : Form(Kind::Dialog, QStringLiteral("Dialog"), QStringLiteral("A"), 4500, 3000) {
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

class FormTest : public fixture::Windows {
 protected:
  FormTest() { Dialog::closings = 0; }

  static Dialog& ShownDialog() {
    look::The<Dialog>().ShowModeless();
    look::The<Dialog>().box->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&look::The<Dialog>()));
    return look::The<Dialog>();
  }
  static void Serve(
      look::Pass& pass, int mostMilliseconds, const std::function<bool()>& isDone = [] { return false; }) {
    for (QDeadlineTimer end(mostMilliseconds); !isDone() && !end.hasExpired(); QThread::msleep(2))
      pass.Yield();
  }
};

TEST_F(FormTest, IsMeasuredInTwipsHalvesToEvenAndCentredOnce) {
  auto& dialog = ShownDialog();
  EXPECT_EQ(look::Pixels(7.5), 0);
  EXPECT_EQ(look::Pixels(22.5), 2);
  EXPECT_EQ(dialog.size(), QSize(300, 200));
  EXPECT_EQ(dialog.box->geometry(), QRect(10, 10, 101, 20));
  EXPECT_EQ(dialog.label->textFormat(), Qt::PlainText);
  for (const int size : {16, 22, 32, 48, 64, 128})
    EXPECT_EQ(QApplication::windowIcon().pixmap(QSize(size, size), 1).size(), QSize(size, size));
  EXPECT_EQ(look::EmblemPicture(96).deviceIndependentSize(), QSizeF(96, 96));
  const QPoint off = dialog.geometry().center() - dialog.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 8);  // the frame's share
  dialog.move(3, 4);
  dialog.hide();
  EXPECT_EQ(ShownDialog().pos(), QPoint(3, 4));
}

TEST_F(FormTest, AKeyThatIsHeldEndsWithItsWindow) {
  auto& dialog = ShownDialog();
  const auto send = [](const QWidget& window, QEvent::Type type, quint64 time, bool repeats) {
    QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, u"x"_qs, repeats);
    key.setTimestamp(time);
    QCoreApplication::sendEvent(window.windowHandle(), &key);
  };
  send(dialog, QEvent::KeyPress, 1, false);
  send(dialog, QEvent::KeyPress, 2, true);
  QLineEdit other;
  other.show();
  other.setFocus();
  send(other, QEvent::KeyPress, 3, true);
  send(other, QEvent::KeyRelease, 4, false);
  send(other, QEvent::KeyPress, 4, false);  // a repetition that the toolkit has not seen to be one
  EXPECT_EQ(dialog.box->text() + u'|' + other.text(), u"xx|");
  for (const quint64 time : {5ULL, 6ULL}) {
    send(other, QEvent::KeyRelease, time, false);
    send(other, QEvent::KeyPress, 6, false);
  }
  EXPECT_EQ(other.text(), u"xx") << "pressed anew, and repeated";
}

TEST_F(FormTest, ButtonsShowThatTheyHaveTheKeyboard) {
  auto& dialog = ShownDialog();
  dialog.resize(300, 200);
  look::PaperStyle style;
  for (const bool isFlat : {false, true}) {
    auto* button = new QPushButton(u"x"_qs, &dialog);
    button->setStyle(&style);
    button->setFlat(isFlat);
    button->setAutoDefault(false);
    button->setGeometry(10, 100, 32, 30);
    button->show();
    const QImage without = button->grab().toImage();
    button->setFocus();
    EXPECT_NE(button->grab().toImage(), without) << isFlat;
    delete button;
  }
}

TEST_F(FormTest, UnloadBringsTheDesignValuesBackAndHidingDoesNot) {
  ShownDialog().box->setText(QStringLiteral("typed"));
  look::The<Dialog>().hide();
  look::The<Dialog>().close();  // hidden: no request to close can be meant
  EXPECT_EQ(ShownDialog().box->text(), QStringLiteral("typed"));
  look::The<Dialog>().close();
  EXPECT_EQ(look::The<Dialog>().box->text(), QString());
}

TEST_F(FormTest, ATextThatOutgrowsItsPlaceIsItsToolTip) {
  const QString whole = QStringLiteral("somewhat <longer> than the hundred pixels that are here for it");
  auto& dialog = ShownDialog();
  const auto tipOver = [](QWidget& control) {
    QHelpEvent ask(QEvent::ToolTip, QPoint(1, 1), control.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&control, &ask);
    return QToolTip::text();
  };
  EXPECT_EQ(tipOver(*dialog.label), QString());
  EXPECT_EQ(look::OutgrownText(*dialog.label), QString());
  QString slightly = QStringLiteral("m");
  while (dialog.label->sizeHint().width() <= dialog.label->width()) dialog.label->setText(slightly += u'm');
  EXPECT_EQ(look::OutgrownText(*dialog.label), QString()) << "somewhat smaller letters do";
  dialog.label->setText(whole);
  EXPECT_EQ(look::OutgrownText(*dialog.label), whole);
  EXPECT_EQ(tipOver(*dialog.label), QStringLiteral("<p>") + whole.toHtmlEscaped() + QStringLiteral("</p>"));
  QToolTip::hideText();
  QCheckBox box(QStringLiteral("Go &on"));
  EXPECT_EQ(look::OutgrownText(box), QString());
  box.resize(40, 20);
  EXPECT_EQ(look::OutgrownText(box), QStringLiteral("Go on"));
}

TEST_F(FormTest, InputOfAPassWaitsForItsEndInOrderAndSoDoesTheOneCloseRequest) {
  auto& dialog = ShownDialog();
  int turns = 0;
  bool isTyped = false;
  {
    look::Pass outer;
    QTimer::singleShot(0, [&] {
      QTest::keyClick(dialog.windowHandle(), Qt::Key_A);
      QInputMethodEvent commit;
      commit.setCommitString(QStringLiteral("é"));
      QCoreApplication::sendEvent(dialog.box, &commit);
      QTest::keyClick(dialog.box, Qt::Key_B);
      isTyped = true;
    });
    Serve(outer, 30'000, [&] { return isTyped; });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      const int before = ++turns;
      look::Pass inner;
      dialog.close();
      Serve(inner, 20);
      EXPECT_EQ(turns, before) << "a pass serves timers and never itself";
    });
    timer.start(1);
    Serve(outer, 30'000, [&] { return turns >= 2; });
    dialog.close();
    EXPECT_EQ(dialog.box->text(), QString());
    EXPECT_TRUE(dialog.isVisible());
  }
  EXPECT_GE(turns, 2);
  QString atTheClose;
  QTimer::singleShot(0, [&] { atTheClose = dialog.box->text(); });
  EXPECT_TRUE(QTest::qWaitFor([] { return Dialog::closings > 0; }));
  EXPECT_EQ(atTheClose, QStringLiteral("aéb"));
  QTest::qWait(20);
  EXPECT_EQ(Dialog::closings, 1);
}

TEST_F(FormTest, TheWaitWindowComesWithALongPassAndLeavesTheFocusAlone) {
  auto& dialog = ShownDialog();
  auto& wait = look::The<look::frmWait>();
  wait.ShowSoon();
  QCoreApplication::processEvents();
  EXPECT_TRUE(wait.CountsAsShown());
  wait.HideNow();
  QTest::qWait(50);
  EXPECT_FALSE(wait.isVisible()) << "a short pass never flashes";
  {
    look::Pass pass;
    wait.ShowSoon();
    Serve(pass, 30'000, [&] { return wait.isVisible(); });
    EXPECT_TRUE(wait.isVisible());
    EXPECT_FALSE(wait.isModal());
    wait.close();
    wait.HideNow();
  }
  QTest::qWait(30);
  EXPECT_FALSE(wait.isVisible());
  EXPECT_TRUE(look::IsLoaded<look::frmWait>());
  EXPECT_EQ(QApplication::activeWindow(), &dialog);
  EXPECT_EQ(QApplication::focusWidget(), dialog.box);
  wait.ShowSoon();
  QTimer::singleShot(0, [&] { dialog.close(); });
  wait.ShowNow();
  EXPECT_TRUE(wait.isVisible());
  EXPECT_EQ(Dialog::closings, 0) << "what starts a command waits here too";
  wait.HideNow();
  EXPECT_TRUE(QTest::qWaitFor([] { return Dialog::closings > 0; }));
}

// What a screen reader is told, as "name" or "name: description".
QStringList told;

TEST_F(FormTest, WhatChangesElsewhereIsSaidAtTheKeyboardAndAListSaysItsEntry) {
  QPlatformAccessibility& bridge = *QGuiApplicationPrivate::platformIntegration()->accessibility();
  bridge.setActive(true);
  const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    QAccessibleInterface* spoken = event->accessibleInterface();
    const QString name = spoken ? spoken->text(QAccessible::Name) : QString();
    if (event->type() == QAccessible::ObjectShow && spoken->role() == QAccessible::Notification)
      told += u"! "_qs + name;
    if (event->type() == QAccessible::Focus) told += name;
  });
  auto& dialog = ShownDialog();
  auto* list = new QListWidget(&dialog);
  list->addItem(u"one"_qs);
  list->setCurrentRow(0);
  list->setAccessibleName(u"the list"_qs);
  look::SpeakCurrentEntry(*list);
  list->show();
  told.clear();
  for (int time = 0; time < 2; ++time) look::Announce(u"changed"_qs);
  list->setFocus();
  QCoreApplication::processEvents();
  list->clearFocus();
  auto* days = new QLineEdit(&dialog);
  look::SpeakChoice(*days, u"a day"_qs);
  days->show();
  look::Announce(u"late"_qs);
  days->setFocus();
  QCoreApplication::processEvents();
  look::SpeakChoice(*days, u"a day on"_qs);
  EXPECT_EQ(told.join(u'|').toStdString(),
            "! changed|! changed|the list|one|the list|! late||a day|a day on");
  QAccessible::installUpdateHandler(before);
  bridge.setActive(false);
}

TEST(PixelGrid, ALineIsSharpAndAsFineOnEachSideAtEveryScaling) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0})
    for (int at = 0; at < 4; ++at) {
      QImage screen(40, 40, QImage::Format_Grayscale8);
      screen.fill(Qt::white);
      screen.setDevicePixelRatio(scale);
      QPainter painter(&screen);
      look::FrameWithHairline(painter, QRectF(at, at, 11, 11), Qt::black);
      painter.end();
      const auto sign = [&](int x, int y) {
        const int grey = screen.pixelColor(x, y).red();
        return grey == 0 ? '#' : grey == 255 ? ' ' : '?';
      };
      const auto middle = static_cast<int>((at + 5) * scale);
      std::string across, down;
      for (int i = 0; i < 40; ++i) across += sign(i, middle), down += sign(middle, i);
      const std::string line(scale < 1.75 ? 1 : 2, '#'), inner = across.substr(0, across.rfind(line));
      EXPECT_EQ(across, down);
      EXPECT_EQ(std::count(across.begin(), across.end(), '#'), 2 * line.size()) << scale << ": " << across;
      EXPECT_EQ(across.find('?'), std::string::npos) << across;
      EXPECT_NE(inner.find(line + ' '), std::string::npos) << across;
    }
}

TEST_F(FormTest, ABoxRefusesWhatTheFilesCannotHoldAndSaysWhich) {
  look::CodePageEdit box;
  box.show();
  for (const QChar letter : QStringLiteral("Zoë €žş"))  // as keyClicks, with letters beyond Latin-1
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, letter, Qt::NoModifier);
  EXPECT_EQ(box.Bytes(), "Zo\xEB \x80\x9E");
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("“ş”"))) << QToolTip::text().toStdString();
  box.selectAll();
  QGuiApplication::clipboard()->setText(QStringLiteral("ab☃c"));
  box.paste();
  EXPECT_EQ(box.text(), QStringLiteral("Zoë €ž"))
      << "a paste is refused whole, and what was selected is kept";
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("☃")));
  QInputMethodEvent composing(u"にほん"_qs, {}), word;
  word.setCommitString(u"日本"_qs);
  for (QInputMethodEvent* event : {&composing, &word}) QCoreApplication::sendEvent(&box, event);
  EXPECT_EQ(box.selectedText(), u"Zoë €ž"_qs) << "and so is what a refused word was composed over";
  EXPECT_TRUE(QToolTip::text().contains(u"日"_qs));
  QGuiApplication::clipboard()->setText(QStringLiteral("new"));
  box.paste();
  box.HideText();
  EXPECT_EQ(box.displayText(), QStringLiteral("***"));
  EXPECT_EQ(box.Bytes(), "new");
  EXPECT_TRUE(box.inputMethodHints() & Qt::ImhHiddenText);
}

}  // namespace
