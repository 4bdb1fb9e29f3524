// Long work that a person may cancel.
#pragma once

#include <chrono>

#include <QtCore/QPointer>

#include "look/Form.h"
#include "look/Pass.h"
#include "look/PictureButton.h"

class QLabel;
class QProgressBar;

namespace look {

// Tells how far the work is. It alone takes keys and clicks in a pass.
class frmProgress : public Form {
  Q_OBJECT

 public:
  frmProgress();

  QLabel* lblInfo;
  QProgressBar* ProgressBar1;  // hidden where nobody knows how much there is
  PictureButton* cmdCancel;

  bool IsCancelled() const { return cancelled_; }
  // Over the active window, and before all others.
  void Appear();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  bool cancelled_ = false;
};

// A pass whose window comes when it has lasted a second.
class Progress {
 public:
  Progress();
  ~Progress();
  Q_DISABLE_COPY_MOVE(Progress)

  // Serves the event loop as a pass does, and shows what is being done: `done` of `all`, which is 0 where
  // nobody knows how much there is. False once the person has cancelled.
  bool GoOn(const QString& what, int done, int all);
  bool IsCancelled() const;

 private:
  Pass pass_;
  const std::chrono::steady_clock::time_point begun_;
  QPointer<frmProgress> window_;
};

}  // namespace look
