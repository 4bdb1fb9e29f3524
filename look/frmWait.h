// The one progress window. It holds no logic; the passes over a page drive it.
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include "look/Form.h"

namespace look {

class frmWait : public Form {
 public:
  frmWait();

  QProgressBar* ProgressBar1;  // its maximum and value are counts of characters
  QLabel* lblInfo;             // "PLEASE WAIT" by design
  QLabel* Label1;              // "Thorn Quill"
  QLabel* Image1;

  // Asks for the window: it counts as shown from here on, and reaches the screen once the event loop is
  // served a frame later, so that a pass that is over by then never flashes. It never takes the keyboard
  // focus.
  void ShowSoon();
  // Brings a window that was asked for to the screen now, and serves events for that as a pass does: for work
  // that serves none itself and outlasts a frame.
  void ShowNow();
  // The pass is over: hidden, on the screen or not.
  void HideNow();
  bool CountsAsShown() const { return wanted_; }

  void CloseBox() override {}  // only the pass knows its end

 protected:
  bool event(QEvent* event) override;

 private:
  void Appear();

  bool wanted_ = false;
  QTimer appearance_;
  QPointer<QWidget> before_;  // the window that was active when this one appeared
};

}  // namespace look
