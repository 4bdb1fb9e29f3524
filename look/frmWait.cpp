#include "look/frmWait.h"

#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include "look/Emblem.h"
#include "look/Pass.h"
#include "look/Theme.h"

namespace look {
namespace {

constexpr std::chrono::milliseconds Frame{16};
// A window manager that takes longer is not waited for.
constexpr std::chrono::milliseconds MostForAppearing{250};

// Wayland gives the keyboard to every window, and what is typed meanwhile would go with this one; a window
// like a tip's gets none.
Qt::WindowFlags FlagsHere() {
  if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) return Qt::ToolTip;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowDoesNotAcceptFocus;
}

}  // namespace

frmWait::frmWait()
    : Form(Kind::Dialog, QStringLiteral("frmWait"), QStringLiteral("Thorn Quill"), 5400, 1560) {
  setWindowFlags(FlagsHere());
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  SetPicture(CurrentTheme().large);

  Image1 = Place(new QLabel(this), "Image1", 240, 300, 960, 960);
  Label1 = Place(new QLabel(QStringLiteral("Thorn Quill"), this), "Label1", 1440, 240, 3720, 300);
  lblInfo = Place(new QLabel(QStringLiteral("PLEASE WAIT"), this), "lblInfo", 1440, 600, 3720, 300);
  ProgressBar1 =
      Place(new QProgressBar(this), "ProgressBar1", 1440, 1020, 3720, 300, QStringLiteral("Progress"));
  Image1->setPixmap(HourglassAndInkwell());
  QFont bold = Label1->font();
  bold.setBold(true);
  Label1->setFont(bold);
  ProgressBar1->setTextVisible(false);

  appearance_.setSingleShot(true);
  appearance_.setTimerType(Qt::PreciseTimer);
  connect(&appearance_, &QTimer::timeout, this, &frmWait::Appear);
}

void frmWait::ShowSoon() {
  wanted_ = true;
  if (!isVisible()) appearance_.start(Frame);
}

void frmWait::ShowNow() {
  if (!wanted_) return;
  appearance_.stop();
  if (!isVisible()) Appear();
  // Shown is not yet seen: only after its exposure is there a place to paint on.
  Pass().Await(MostForAppearing, [this] { return windowHandle()->isExposed(); });
  repaint();
}

void frmWait::HideNow() {
  wanted_ = false;
  appearance_.stop();
  hide();
}

void frmWait::Appear() {
  before_ = QApplication::activeWindow();
  CentreOnce();
  StandOverActiveWindow();
  show();
}

bool frmWait::event(QEvent* event) {
  // Some desktops hand the focus to a new window whatever it asks for.
  if (event->type() == QEvent::WindowActivate && before_) before_->activateWindow();
  return Form::event(event);
}

}  // namespace look
