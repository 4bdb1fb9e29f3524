// A picture on the page under the keyboard.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>

class QKeyEvent;
class QWidget;

class PictureKeys : public QObject {
  Q_OBJECT

 public:
  // `box` is the picture's; it takes the focus from F6 and Tab.
  explicit PictureKeys(QWidget* box);

 Q_SIGNALS:
  void Chosen();   // it has the focus
  void Dropped();  // and has it no more
  void Moved(QPoint pixels);
  void Put();  // the key that moved it has come up again, or the focus has gone
  void Removed();
  void Left();  // the keyboard goes back to the text

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QKeyEvent& key);
  void PutDown();

  QWidget& box_;
  bool moves_ = false;
};
