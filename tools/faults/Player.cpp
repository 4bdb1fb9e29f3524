// Plays the script, a step a line, each as soon as its control can be seen and used:
//   type CONTROL TEXT    keys into it, behind what it holds
//   enter CONTROL        the Enter key, again and again until it has gone
//   click CONTROL        the left mouse button
//   press CONTROL WINDOW the same, again and again until the window has gone
//   pick LIST ROW        chooses the row
//   drag CONTROL X Y     with the left mouse button, by so many pixels
//   see CONTROL          its text goes to the log
//   shut WINDOW          by its close box; the page's text goes to the log if it is still there
//   close WINDOW         the same, again and again until it has gone
//   leave CONTROL        clicks it until the process ends
//   end NOTHING          sends the signal that asks the program to end, until it does
//   run COMMAND          in the shell
//   rest MS              lets so many milliseconds go by
// Message boxes are answered with their default button, and their texts go to the log. A broken disk is
// mended when the command is over, or after its third box; the page's text goes to the log before that.
#include <csignal>
#include <cstdlib>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "tools/faults/Faults.h"

namespace {

constexpr int TickMs = 2;

QStringList script;
int boxesOnBrokenDisk = 0;
QDeadlineTimer resting(0);

QWidget* Find(const QString& name) {
  const QWidget* modal = QApplication::activeModalWidget();
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name && widget->isVisible() && widget->isEnabled() &&
        (!modal || widget->window() == modal))
      return widget;
  return nullptr;
}

void LogText(const char* what, QString text) {
  faults::Log(what + text.replace(u'\n', u'|').toStdString());
}

QString TextOf(const QWidget* control) {
  const auto* list = qobject_cast<const QListWidget*>(control);
  if (!list) return control->property("plainText").toString();
  QStringList lines;
  for (int row = 0; row < list->count(); ++row) lines += list->item(row)->text();
  return lines.join(u'\n');
}

void Drag(QWidget* control, QPoint by) {
  const QPoint grip = control->rect().center(), from = control->mapToGlobal(grip);
  QTest::mousePress(control, Qt::LeftButton, {}, grip);
  QCursor::setPos(from + by);
  QMouseEvent move(QEvent::MouseMove, grip, from + by, Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(control, &move);
  QTest::mouseRelease(control, Qt::LeftButton, {}, grip);
}

void Type(QWidget* control, const QString& text) {
  control->setFocus();
  QTest::keyClick(control, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(control, text);
}

QString PageOnScreen() {
  const QWidget* page = Find(QStringLiteral("txtM"));
  return page ? TextOf(page) : QStringLiteral("(no page)");
}

void Mend() {
  LogText("still ", PageOnScreen());
  faults::Mend();
}

bool AnswerBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (!box) return false;
  LogText("box ", box->text());
  if (faults::IsBroken() && ++boxesOnBrokenDisk == 3) Mend();
  QAbstractButton* button = box->defaultButton();
  QTest::mouseClick(button ? button : box->buttons().constFirst(), Qt::LeftButton);
  return true;
}

void Do(const QString& verb, QWidget* control, const QStringList& words) {
  if (verb == u"type") Type(control, words.mid(2).join(u' '));
  if (verb == u"enter") QTest::keyClick(control, Qt::Key_Return);
  if (verb == u"click" || verb == u"press" || verb == u"leave") QTest::mouseClick(control, Qt::LeftButton);
  if (verb == u"pick") qobject_cast<QListWidget*>(control)->setCurrentRow(words[2].toInt());
  if (verb == u"drag") Drag(control, {words[2].toInt(), words[3].toInt()});
  if (verb == u"see") LogText("see ", TextOf(control));
  if (verb == u"close" || verb == u"shut") control->close();
  if (verb == u"shut") LogText("still ", PageOnScreen());
  if (verb == u"end") std::raise(SIGTERM);
  if (verb == u"rest") resting.setRemainingTime(words[1].toInt());
  if (verb == u"run") [[maybe_unused]]
    const int code = std::system(qPrintable(words.mid(1).join(u' ')));
}

// A step is over before it is carried out, since that may open a window that waits for the next ones.
void TakeStep() {
  const QString line = script.constFirst();
  const QStringList words = line.split(u' ');
  const QString& verb = words[0];
  QWidget* control = Find(words[1]);
  const bool needsNone = verb == u"end" || verb == u"run" || verb == u"rest";
  const bool untilItGoes = verb == u"close" || verb == u"enter" || verb == u"press";
  const bool isGone = untilItGoes && !Find(words.constLast());
  if (untilItGoes ? isGone : (control || needsNone) && verb != u"leave" && verb != u"end")
    script.removeFirst();
  if (isGone || (!control && !needsNone)) return;
  LogText("step ", QString::fromStdString(faults::Milliseconds()) + u' ' + line);
  Do(verb, control, words);
}

void Tick() {
  QTimer::singleShot(TickMs, qApp, &Tick);
  if (AnswerBox()) return;
  if (faults::IsBroken()) return Mend();
  if (!script.empty() && resting.hasExpired()) TakeStep();
}

void Begin() {
  QFile file(qEnvironmentVariable("FAULTS_SCRIPT"));
  if (!file.open(QFile::ReadOnly)) return;
  script = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
  QTimer::singleShot(0, qApp, &Tick);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Begin)
