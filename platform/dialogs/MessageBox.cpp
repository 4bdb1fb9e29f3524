#include "platform/dialogs/MessageBox.h"

#include <utility>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include "platform/dialogs/MessageDress.h"

namespace platform {
namespace {

MessageAnswerer& Answerer() {
  static MessageAnswerer answerer;
  return answerer;
}

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Stop:
      return QMessageBox::Critical;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

// What the picture says to those who see it.
QString MeaningOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Stop:
      return QStringLiteral("Stop");
    case BoxIcon::Question:
      return QStringLiteral("Question");
    case BoxIcon::None:
      break;
  }
  return {};
}

QMessageBox* MakeBox(const Message& message) {
  auto* box = new QMessageBox(QApplication::activeWindow());
  DrawOwnSigns(*box);
  box->setIcon(IconOf(message.icon));
  box->setWindowTitle(QString::fromStdString(message.title));
  box->setObjectName(QStringLiteral("MessageBox"));
  box->setWindowModality(Qt::ApplicationModal);
  box->setTextFormat(Qt::PlainText);  // a name with a less-than sign is shown as it is
  box->setText(QString::fromStdString(message.text));
  if (auto* picture = box->findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
    picture->setAccessibleName(MeaningOf(message.icon));
  return box;
}

// What agrees is the default, what declines is Escape.
void AddButtons(QMessageBox& box, QMessageBox::StandardButton agreeing,
                QMessageBox::StandardButton declining) {
  box.setStandardButtons(agreeing | declining);
  box.setDefaultButton(agreeing);
  box.setEscapeButton(declining);
}

void AddButtons(QMessageBox& box, Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return box.setStandardButtons(QMessageBox::Ok);
    case Buttons::OkCancel:
      return AddButtons(box, QMessageBox::Ok, QMessageBox::Cancel);
    case Buttons::YesNo:
      return AddButtons(box, QMessageBox::Yes, QMessageBox::No);
  }
}

Answer AnswerOf(Buttons buttons, int button) {
  if (buttons == Buttons::Ok) return Answer::Ok;
  if (buttons == Buttons::OkCancel) return button == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
  return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

Answer AskOnTheDesktop(const Message& message) {
  // The window under the box may be destroyed while the box is up, and takes the box with it.
  QPointer<QMessageBox> box = MakeBox(message);
  AddButtons(*box, message.buttons);
  if (message.prefersNo) box->setDefaultButton(qobject_cast<QPushButton*>(box->escapeButton()));
  GiveRoom(*box);
  const int button = box->exec();
  delete box;
  return AnswerOf(message.buttons, button);
}

}  // namespace

Answer ShowMessage(const Message& message) {
  const MessageAnswerer answerer = Answerer();  // a copy: an answer may put another one in its place
  return answerer ? answerer(message) : AskOnTheDesktop(message);
}

void DismissMessage() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box && box->standardButtons() == QMessageBox::Ok) box->reject();
}

MessageAnswerer SetMessageAnswerer(MessageAnswerer answerer) {
  return std::exchange(Answerer(), std::move(answerer));
}

}  // namespace platform
