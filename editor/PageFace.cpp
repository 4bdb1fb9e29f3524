#include "editor/PageFace.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include "editor/BindingPicture.h"
#include "editor/BindingShade.h"
#include "editor/FilesOnPage.h"
#include "look/Form.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PictureBox.h"
#include "look/Spoken.h"
#include "look/Theme.h"
#include "pictures/PictureSlots.h"
#include "platform/Colors.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"

// All places and sizes are in twips, 15 to the logical pixel.
namespace {

using look::Pixels;

constexpr int PageLeft = 990;  // the width of the binding, too
constexpr int PageTop = 870;   // stays so when the head strip grows or shrinks
constexpr int DateLeft = 75;
constexpr int DateTop = 630;
constexpr int NumberRight = 7590 + 825;
constexpr int NumberTop = 645;

constexpr double PageMargin = 12;  // pixels of paper around the text

QPointer<PageFace> theFace;

template <class Control>
Control* Placed(Control* control, const QString& name, int left, int top, int width, int height) {
  control->setObjectName(name);
  control->setGeometry(Pixels(left), Pixels(top), Pixels(width), Pixels(height));
  return control;
}

// The strip under a label is pale in every theme, so its letters are dark on every desktop.
void DressLabel(QLabel* label, double pixelSize) {
  QFont font(QStringLiteral("Verdana"));
  font.setPixelSize(look::Grown(pixelSize));
  label->setFont(font);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, look::Ink);
  label->setPalette(palette);
  label->setTextFormat(Qt::PlainText);
}

// The scroll bars are of the page's paper, which on a dark desktop would end in a dark stripe.
void TintScrollBars(const richtext::RichTextBox& text) {
  const QColor paper = platform::ToColor(text.BackColor());
  const QPalette palette(paper.darker(104), paper.darker(102));
  for (QScrollBar* bar : {text.verticalScrollBar(), text.horizontalScrollBar()}) bar->setPalette(palette);
}

}  // namespace

PageFace::PageFace(QWidget* parent) : QWidget(parent) {
  theFace = this;
  resize(Pixels(DesignWidth), Pixels(DesignHeight));
  MakePage();
  MakeHead();
  MakePictures();
  DockStrips();
  FitText();
  new FilesOnPage(this, txtM);
}

PageFace::~PageFace() = default;

void PageFace::MakePage() {
  picBinding = Placed(new look::PictureBox(this), QStringLiteral("picBinding"), 0, PageTop, PageLeft, 8850);
  picBinding->SetPicture(BindingPicture());
  picBinding->Repeat(Qt::Vertical);
  picBinding->SetShade(&PaintBindingShade);
  picBinding->SetDesignWidth(PageLeft / 15);
  txtM = Placed(new richtext::RichTextBox(this), QStringLiteral("txtM"), PageLeft, PageTop, 7484, 8849);
  txtM->setFrameShape(QFrame::NoFrame);
  txtM->document()->setDocumentMargin(PageMargin);
  txtM->PaintGround = &PaintGutterShade;
  connect(txtM, &richtext::RichTextBox::Change, this, &PageInHand::TextChanged);
  connect(txtM, &QTextEdit::cursorPositionChanged, this, &PageFace::TellPictureAtCaret);
}

// Made after the page, and so above it, where a tall strip covers its first lines.
void PageFace::MakeHead() {
  picTop = Placed(new look::PictureBox(this), QStringLiteral("picTop"), 0, 0, DesignWidth, headHeight_);
  picTop->Repeat(Qt::Horizontal);
  WearTheme();
  lblPageNum1 = Placed(new QLabel(picTop), QStringLiteral("lblPageNum1"), 7590, NumberTop, 825, 195);
  lblPageNum1->setAlignment(Qt::AlignRight | Qt::AlignTop);
  DressLabel(lblPageNum1, 11);  // 8.25 points
  lblDate = Placed(new QLabel(picTop), QStringLiteral("lblDate"), DateLeft, DateTop, 450, 210);
  DressLabel(lblDate, 12);  // 9 points
  SetHeader(QStringLiteral("Date"), QStringLiteral("Page X"));
}

void PageFace::MakePictures() {
  Placed(new look::PictureBox(this), QStringLiteral("picTemp"), 1320, 4545, 1020, 885)->hide();
  pictures = new PictureSlots(this);
  connect(txtM, &richtext::RichTextBox::MousePressed, pictures, &PictureSlots::HideControllers);
  connect(pictures, &PictureSlots::Left, txtM, [this] { txtM->setFocus(); });
  connect(pictures, &PictureSlots::WheelTurned, this,
          [this](QWheelEvent* event) { QCoreApplication::sendEvent(txtM->viewport(), event); });
}

void PageFace::SetHeader(const QString& date, const QString& pageNumber) {
  lblDate->setText(date);
  lblDate->adjustSize();
  lblPageNum1->setText(pageNumber);
  lblPageNum1->adjustSize();
  lblPageNum1->move(Pixels(NumberRight) - lblPageNum1->width(), lblPageNum1->y());
  txtM->setAccessibleName(date.isEmpty() ? pageNumber : pageNumber + QStringLiteral(", ") + date);
}

void PageFace::SetPaper(std::uint32_t color) {
  txtM->SetBackColor(color);
  TintScrollBars(*txtM);
  picBinding->SetBackColor(color);
  pictures->SetPaper(color);
}

// Without a theme the strip is pale all the same: the letters on it are dark.
void PageFace::WearTheme() {
  constexpr QRgb plain = 0xF0F0F0;
  const look::Theme& theme = look::CurrentTheme();
  picTop->SetBackColor(platform::FromColor(theme.surface.isValid() ? theme.surface : QColor(plain)));
  picTop->SetPicture(theme.large);
}

void PageFace::SetHeadHeight(int twips) {
  headHeight_ = twips;
  DockStrips();
}

void PageFace::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), platform::ToColor(0x808080));
}

void PageFace::resizeEvent(QResizeEvent*) {
  DockStrips();
  FitText();
}

void PageFace::DockStrips() {
  const int bottom = Pixels(headHeight_);
  picTop->setGeometry(0, 0, width(), bottom);
  picBinding->setGeometry(0, bottom, Pixels(PageLeft), std::max(0, height() - bottom));
}

// The page ends one twip before the right and the bottom edge. A window too small for it is no error: the
// measure that would be negative stays what it was, and the other one is set.
void PageFace::FitText() {
  const auto twips = static_cast<float>(15 / look::Growth());
  const float scaleWidth = static_cast<float>(width()) * twips;
  const float scaleHeight = static_cast<float>(height()) * twips;
  const float right = scaleWidth - 1, bottom = scaleHeight - 1;
  txtM->resize(right < PageLeft ? txtM->width() : Pixels(right) - Pixels(PageLeft),
               bottom < PageTop ? txtM->height() : Pixels(bottom) - Pixels(PageTop));
}

// Of a picture in the text a screen reader has but a sign without a name.
void PageFace::TellPictureAtCaret() {
  if (!QAccessible::isActive() || !txtM->hasFocus()) return;
  QTextCursor next = txtM->textCursor();
  if (next.hasSelection()) return;
  next.movePosition(QTextCursor::NextCharacter);
  const QTextImageFormat picture = next.charFormat().toImageFormat();
  if (!picture.isValid() || next.position() == txtM->textCursor().position()) return;
  look::Announce(QStringLiteral("Picture, %1 by %2 pixels")
                     .arg(picture.width(), 0, 'f', 0)
                     .arg(picture.height(), 0, 'f', 0));
}

PageFace& Face() {
  Q_ASSERT(theFace);
  return *theFace;
}
