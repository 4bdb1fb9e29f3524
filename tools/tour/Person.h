// A person at the program: looks at the screen, presses keys and mouse buttons through the X server, and says
// aloud what is not as it should be.
//
// The person lives on a thread of its own, so that a tour reads from top to bottom; whatever touches a widget
// runs on the window thread.
#pragma once

#include <functional>
#include <string>

#include <QtCore/QString>
#include <QtWidgets/QWidget>

struct xcb_connection_t;

class Person {
 public:
  // Screenshots go to `album` as two digits, a dash, a name and ".png", counted on from `firstNumber`.
  Person(QString album, int firstNumber);
  ~Person();
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  // Waits until a window of that object name is on the screen and active; fails after ten seconds.
  void SeeWindow(const char* name);
  // Waits until the only message box on the screen has this text, and answers it by a click on a button.
  void AnswerBox(const QString& text, const QString& button);
  // A click in the middle of the named control of the active window.
  void Click(const char* control);
  void DoubleClick(const char* control);
  void ClickItem(const char* list, int row);
  void DoubleClickItem(const char* list, int row);
  // Presses in the middle of the control, drags by so many pixels and releases. Returns the place of the
  // release on the screen.
  QPoint Drag(const char* control, QPoint by);
  // Types the text; '\n' is Enter, '\t' is Tab.
  void Type(const QString& text);
  // Alt and F4: what the window manager makes the close box's order of.
  void CloseWindow();
  void PressEscape();
  void PressF1();
  void Shot(const char* name);

  // Waits until the question is answered with yes, or fails with the words of what was expected.
  void Expect(const QString& expected, const std::function<bool()>& question);
  // Runs on the window thread and returns when it is done.
  void Do(const std::function<void()>& action);
  [[noreturn]] void Fail(const QString& why);

 private:
  QPoint MiddleOf(const char* control);
  QPoint MiddleOfItem(const char* list, int row);
  void PressKey(unsigned char keycode, bool shift);
  void PressKeysym(unsigned keysym);
  void Queue(unsigned char type, unsigned char detail, QPoint place = {});
  void Fake(unsigned char type, unsigned char detail, QPoint place = {});
  void ClickAt(QPoint place, int times);
  void Settle();

  QString album_;
  int number_;
  xcb_connection_t* connection_;
};
