// A person at the program: looks at the screen, presses keys and mouse buttons through the X server, with the
// tool xdotool, and says aloud what is not as it should be.
//
// The person lives on a thread of its own, so that a tour reads from top to bottom; whatever touches a widget
// runs on the window thread. Nobody waits for ever: what has not come after ten seconds ends the tour, which
// then says what it waited for.
#pragma once

#include <QtWidgets/QtWidgets>

class Person {
 public:
  // Screenshots go to `album` as two digits, a dash, a name and ".png", counted on from `firstNumber`.
  Person(QString album, int firstNumber) : album_(std::move(album)), number_(firstNumber) {}
  Q_DISABLE_COPY_MOVE(Person)

  // Waits until a window of that object name is on the screen, and the window manager's keys go to it.
  void SeeWindow(const char* name, const char* shot = nullptr);
  // Clicks a control that leads to the window.
  void Open(const char* control, const char* window, const char* shot = nullptr);
  // Leaves a window for the other one: by Enter behind a text, by Escape, by the close box.
  void Enter(const QString& text, const char* window);
  void Escape(const char* window);
  void Close(const char* window);
  // Waits until the only message box on the screen has this text, and answers it by a click on a button.
  void AnswerBox(const QString& text, const QString& button = QStringLiteral("OK"));
  // A click in the middle of the named control of the active window, or on a row of a list.
  void Click(const QString& control, int row = -1);
  void DoubleClick(const QString& control, int row = -1);
  // Presses in the middle of the control, drags by so many pixels and releases. Returns the place of the
  // release on the screen.
  QPoint Drag(const QString& control, QPoint by);
  // Types the text; '\n' is Enter, '\t' is Tab.
  void Type(const QString& text);
  // Alt and F4: what the window manager makes the close box's order of.
  void CloseWindow();
  // Presses keys that type nothing, by the names that X has for them.
  void Press(const QString& keys);
  void Shot(const char* name);
  // The path of the album's next picture, for one that comes from elsewhere.
  QString NextPicture(const char* name);
  // The active window alone, with its frame, as `name`.png.
  void Portrait(const char* name);

  // Waits until the question is answered with yes.
  void Expect(const QString& expected, const std::function<bool()>& question);
  // Runs on the window thread and returns when it is done.
  void Do(const std::function<void()>& action);
  [[noreturn]] void Fail(const QString& why);

 private:
  QPoint StandingStill(const QString& what, const std::function<QPoint()>& find);
  QPoint MiddleOf(const QString& control, int row = -1);
  bool HasTheKeys(const QWidget& window);
  QByteArray Play(const QString& orders);
  void ClickAt(QPoint place, int times);
  void Settle();
  void Save(const QString& path, const std::function<QRect()>& place);

  QString album_;
  int number_;
  bool failed_ = false;
};
