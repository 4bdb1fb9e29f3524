#include "look/Form.h"

#include <algorithm>

#include <QtGui/QCloseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include "look/Emblem.h"
#include "look/Growth.h"
#include "look/InFront.h"
#include "look/LastInput.h"
#include "look/Palettes.h"
#include "look/Pass.h"
#include "look/PixelGrid.h"
#include "look/Shortening.h"
#include "look/Spoken.h"
#include "look/StayingKeys.h"
#include "look/Theme.h"

namespace look {
namespace {

constexpr double TwipsPerPixel = 15;
constexpr int GiltInset = 4;  // pixels from the edge to the line, where the controls leave it room

// What a window manager's frame takes at most, in pixels; the frame itself is known only once it is there.
constexpr QSize FrameAround{16, 48};

Qt::WindowFlags FlagsOf(Form::Kind kind) {
  const Qt::WindowFlags both = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (kind == Form::Kind::Dialog) return Qt::Dialog | both;
  return Qt::Window | both | Qt::WindowMinMaxButtonsHint;
}

QScreen* ScreenForNewWindows() {
  const QWidget* active = QApplication::activeWindow();
  return active ? active->screen() : QApplication::primaryScreen();
}

}  // namespace

int Pixels(double twips) {
  return Grown(twips / TwipsPerPixel);
}

Form::Form(Kind kind, const QString& name, const QString& caption, int widthTwips, int heightTwips)
    : QDialog(nullptr, FlagsOf(kind)), kind_(kind) {
  if (kind == Kind::Window) SpeakAs(*this, QAccessible::Window);
  setObjectName(name);
  SetCaption(caption);
  GiveTheProgramItsIcon();
  NoteInput();
  KeepHeldKeysInTheirWindow();
  const QSize size(Pixels(widthTwips), Pixels(heightTwips));
  if (kind == Kind::Dialog) {
    setFixedSize(size);
    WearGrownFont(*this);
  }
  resize(size);
}

Form::~Form() = default;

void Form::SetCaption(const QString& caption) {
  caption_ = caption;
  // The toolkit takes "[*]" for the place of its own mark of change, unless it stands there twice.
  setWindowTitle(QString(caption).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void Form::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  setPalette(picture.isNull() ? QPalette() : PaletteOn(CurrentTheme().surface));
  update();
}

void Form::ShowModeless() {
  CentreOnce();
  setModal(false);
  ShowInFront(*this);
}

void Form::ShowModal() {
  CentreOnce();
  StandOverActiveWindow();
  exec();
}

void Form::CentreOnce() {
  if (centred_) return;
  centred_ = true;
  const QRect screen = ScreenForNewWindows()->availableGeometry();
  if (kind_ == Kind::Window) resize(size().boundedTo(screen.size() - FrameAround).expandedTo(minimumSize()));
  const QPoint place = screen.center() - rect().center();
  move(std::max(place.x(), screen.left()), std::max(place.y(), screen.top()));
}

void Form::StandOverActiveWindow() {
  QWidget* active = QApplication::activeWindow();
  if (!active || active == this) return;
  winId();  // makes the native window, which must know before it is shown
  windowHandle()->setTransientParent(active->windowHandle());
}

void Form::LowerToFit(QWidget& part) {
  const int room = QApplication::primaryScreen()->availableSize().height() - FrameAround.height();
  const int excess = std::min(height() - room, part.height());
  if (Growth() == 1 || excess <= 0) return;
  for (auto* control : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    if (control->y() > part.geometry().bottom()) control->move(control->x(), control->y() - excess);
  part.resize(part.width(), part.height() - excess);
  setFixedHeight(height() - excess);
}

void Form::CloseBox() {
  Discard(this);
}

void Form::RequestClose() {
  // A second request can still be on its way when the first one has hidden the window.
  if (!isVisible()) return;
  if (!Pass::InProgress()) return CloseBox();
  if (closeHeldBack_) return;
  closeHeldBack_ = true;
  Pass::RunAfterwards([window = QPointer<Form>(this)] {
    if (!window) return;
    window->closeHeldBack_ = false;
    window->RequestClose();
  });
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();  // CloseBox alone decides what becomes of the window
  RequestClose();
}

void Form::reject() {
  if (kind_ == Kind::Dialog) RequestClose();
}

// A window that a key has opened shows where the keyboard is before the first Tab.
void Form::showEvent(QShowEvent* event) {
  setAttribute(Qt::WA_KeyboardFocusChange, WasLastInputAKey());
  QDialog::showEvent(event);
}

void Form::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().window());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);  // at scalings between the whole ones
  painter.save();
  painter.scale(Growth(), Growth());
  painter.drawPixmap(0, 0, picture_);
  painter.restore();
  const int inset = std::clamp(RoomAroundControls() / 2, 0, GiltInset);
  FrameWithHairline(painter, rect().adjusted(inset, inset, -inset, -inset), Gilt);
}

// Pixels from the edge to the nearest one.
int Form::RoomAroundControls() const {
  const QRect inner = childrenRect();
  return std::min(
      {inner.left(), inner.top(), rect().right() - inner.right(), rect().bottom() - inner.bottom()});
}

void Form::PlaceWidget(QWidget* control, const char* name, int left, int top, int width, int height,
                       const QString& accessibleName) {
  if (!control->parentWidget()) control->setParent(this);
  control->setObjectName(QString::fromLatin1(name));
  control->setGeometry(Pixels(left), Pixels(top), Pixels(width), Pixels(height));
  if (!accessibleName.isEmpty()) control->setAccessibleName(accessibleName);
  if (control->objectName() == QStringLiteral("cmdHelp")) control->setToolTip(QStringLiteral("F1"));
  // A name with a less-than sign is shown as it is.
  auto* label = qobject_cast<QLabel*>(control);
  if (label) label->setTextFormat(Qt::PlainText);
  const auto* button = qobject_cast<QAbstractButton*>(control);
  if (label || (button && !button->text().isEmpty())) ShortenWhatOutgrows(*control);
}

void Discard(Form* form) {
  form->discarded_ = true;
  form->hide();
  form->deleteLater();
}

void UnloadAllForms() {
  QList<QPointer<Form>> forms;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (auto* form = qobject_cast<Form*>(window)) forms.append(form);
  for (const QPointer<Form>& form : forms) delete form.data();
  MeasureGrowthAnew();
}

}  // namespace look
