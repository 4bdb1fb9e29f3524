#include "app/Help.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include "app/HelpWindow.h"
#include "look/Pass.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"

namespace {

constexpr char FileName[] = "THORNQUILL.HLP";

QPointer<HelpWindow> theHelp;

QString Text() {
  return QString::fromStdString(platform::ReadFile(platform::PathOf(FileName)));
}

QString TopicOf(const QWidget* window) {
  for (; window; window = window->parentWidget())
    if (theHelp->HasTopic(window->objectName())) return window->objectName();
  return {};
}

// Opens the help at the chapter named like the window, or like the nearest of its parents that has a chapter;
// at the beginning where none has.
void ShowHelp(QWidget* window) {
  if (window == theHelp) return;
  try {
    if (!theHelp) theHelp = new HelpWindow(Text());
  } catch (const platform::Failure& failure) {
    platform::ShowMessage(
        "The help cannot be shown. It lies beside the program in the file THORNQUILL.HLP; put it "
        "there again.\n\n" +
        std::string(failure.what()));
    return;
  }
  const QString topic = TopicOf(window);
  if (QWidget* list = QApplication::activePopupWidget()) list->close();  // it would keep the mouse to itself
  theHelp->ShowTopic(topic, *window);
}

class F1Filter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
      return false;
    if (look::Pass::InProgress())
      return true;  // a help that takes no keys would lie over what can be pressed
    auto* control = qobject_cast<QWidget*>(receiver);
    if (!control) return false;  // the window's own part of the way; its control comes next
    ShowHelp(control->window());
    return true;
  }
};

}  // namespace

void AnswerF1() {
  qApp->installEventFilter(new F1Filter(qApp));
}
