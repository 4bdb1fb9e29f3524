#include "look/Progress.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include "look/Theme.h"

namespace look {
namespace {

constexpr std::chrono::seconds UntilItShows{1};

}  // namespace

frmProgress::frmProgress()
    : Form(Kind::Dialog, QStringLiteral("frmProgress"), QStringLiteral("Thornquill"), 5400, 1875) {
  lblInfo = Place(new QLabel(this), "lblInfo", 240, 240, 4920, 300);
  ProgressBar1 =
      Place(new QProgressBar(this), "ProgressBar1", 240, 630, 4920, 300, QStringLiteral("Progress"));
  cmdCancel = Place(new PictureButton(QStringLiteral("&Cancel"), this), "cmdCancel", 1740, 1200, 1920, 450);
  ProgressBar1->setTextVisible(false);
  SetPicture(CurrentTheme().large);
  cmdCancel->SetPicture(CurrentTheme().button);
  cmdCancel->setAutoDefault(false);
  // What is still being typed when the window comes is no answer.
  setFocus();
  setWindowModality(Qt::ApplicationModal);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cancelled_ = true; });
}

void frmProgress::Appear() {
  CentreOnce();
  StandOverActiveWindow();
  show();
}

void frmProgress::reject() {
  cancelled_ = true;
}

void frmProgress::closeEvent(QCloseEvent* event) {
  event->ignore();  // the work knows its end
  cancelled_ = true;
}

Progress::Progress() : begun_(std::chrono::steady_clock::now()) {}

Progress::~Progress() {
  Pass::LetThrough(nullptr);
  if (window_) Discard(window_);
}

bool Progress::GoOn(const QString& what, int done, int all) {
  if (!window_ && std::chrono::steady_clock::now() - begun_ >= UntilItShows) {
    window_ = new frmProgress;
    window_->Appear();
    Pass::LetThrough(window_);
  }
  if (window_) {
    window_->lblInfo->setText(what);
    window_->ProgressBar1->setVisible(all > 0);
    window_->ProgressBar1->setRange(0, all);
    window_->ProgressBar1->setValue(done);
  }
  pass_.Yield();
  return !IsCancelled();
}

bool Progress::IsCancelled() const {
  return window_ && window_->IsCancelled();
}

}  // namespace look
