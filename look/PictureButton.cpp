#include "look/PictureButton.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QToolTip>

#include "look/FocusLine.h"
#include "look/Shortening.h"
#include "look/Theme.h"

namespace look {
namespace {

// In pixels from the button's edge to the middle of the line.
constexpr double HairlineInset = 0.5;
constexpr double SecondHairlineInset = 2.5;
constexpr double StitchInset = 4.5;
constexpr double StitchInsetInDoubleEdge = 5.5;

constexpr double Corner = 2;
constexpr int CaptionMargin = 7;
constexpr int LeastHeightForStitches = 22;
constexpr QPoint Sunk(1, 1);

QPainterPath Outline(const QRectF& rect, double inset) {
  QPainterPath path;
  path.addRoundedRect(rect.adjusted(inset, inset, -inset, -inset), Corner, Corner);
  return path;
}

QColor Veil(const QColor& color, int alpha) {
  QColor veil = color;
  veil.setAlpha(alpha);
  return veil;
}

QPen Thread(const QColor& color) {
  QPen pen(color, 1);
  pen.setCapStyle(Qt::FlatCap);
  pen.setDashPattern({3, 3});
  pen.setDashOffset(0.5);  // the seam begins in the middle of a pixel, the stitches at its edges
  return pen;
}

// A line along the upper and the left edge, within the outline of that inset.
void PaintInnerEdge(QPainter& painter, const QSizeF& size, double inset, const QColor& color) {
  painter.setPen(color);
  painter.drawLine(QPointF(inset + 2, inset + 1), QPointF(size.width() - inset - 2, inset + 1));
  painter.drawLine(QPointF(inset + 1, inset + 2), QPointF(inset + 1, size.height() - inset - 2));
}

}  // namespace

PictureButton::PictureButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  setAttribute(Qt::WA_Hover);
}

void PictureButton::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  update();
}

// A caption that had to be shortened is there as a whole as its tool tip.
bool PictureButton::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || picture_.isNull() ||
      ShownCaption() == text()) {
    return QPushButton::event(event);
  }
  const QString plain = text().remove(QLatin1Char('&')).toHtmlEscaped();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), QStringLiteral("<p>%1</p>").arg(plain),
                     this);
  return true;
}

void PictureButton::paintEvent(QPaintEvent* event) {
  if (picture_.isNull()) return QPushButton::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.setClipPath(Outline(rect(), 0));
  PaintMaterial(painter);
  PaintRelief(painter);
  PaintEdges(painter);
  PaintStitching(painter);
  PaintCaption(painter);
}

// At its natural size, whatever the button's own size is: a stretched weave would be another material.
void PictureButton::PaintMaterial(QPainter& painter) const {
  const QPointF middle =
      QRectF(QPointF(), picture_.deviceIndependentSize()).center() - QRectF(rect()).center();
  painter.drawTiledPixmap(rect(), picture_, isDown() ? middle.toPoint() - Sunk : middle.toPoint());
}

// The label swells a little towards the light; pressed, it is a hollow.
void PictureButton::PaintRelief(QPainter& painter) const {
  QLinearGradient light(0, 0, 0, height());
  light.setColorAt(isDown() ? 1 : 0, Veil(Qt::white, isDown() ? 30 : 90));
  light.setColorAt(0.5, Veil(Qt::white, isDown() ? 0 : 45));
  light.setColorAt(isDown() ? 0 : 1, Veil(Edge(), isDown() ? 75 : 22));
  painter.fillRect(rect(), light);
  if (!isEnabled()) {
    painter.fillRect(rect(), Veil(Qt::white, 60));
  } else if (underMouse() && !isDown()) {
    painter.fillRect(rect(), Veil(Qt::white, 80));
  }
}

void PictureButton::PaintEdges(QPainter& painter) const {
  const double inner = HasDoubleEdge() ? SecondHairlineInset : HairlineInset;
  PaintInnerEdge(painter, size(), inner, isDown() ? Veil(Edge(), 90) : Veil(Qt::white, 190));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Veil(Edge(), isEnabled() ? 255 : 120));
  painter.drawPath(Outline(rect(), HairlineInset));
  if (HasDoubleEdge()) painter.drawPath(Outline(rect(), SecondHairlineInset));
}

// The focus is in the place of the stitches.
void PictureButton::PaintStitching(QPainter& painter) const {
  if (height() < LeastHeightForStitches && !hasFocus()) return;
  const QPointF sunk = isDown() ? QPointF(Sunk) : QPointF();
  const double inset = HasDoubleEdge() ? StitchInsetInDoubleEdge : StitchInset;
  const QRectF seam = QRectF(rect()).adjusted(inset, inset, -inset, -inset).translated(sunk);
  if (hasFocus()) {
    return DrawFocusLine(painter, seam.adjusted(-0.5, -0.5, 0.5, 0.5), palette().color(QPalette::ButtonText));
  }
  painter.setPen(Thread(Veil(Edge(), isEnabled() ? 95 : 50)));
  painter.drawRect(seam);
}

void PictureButton::PaintCaption(QPainter& painter) const {
  const QPoint sunk = isDown() ? Sunk : QPoint();
  painter.setPen(Veil(palette().color(QPalette::Active, QPalette::ButtonText), isEnabled() ? 255 : 110));
  painter.setFont(CaptionFont());
  painter.drawText(rect().translated(sunk), Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   ShownCaption());
}

bool PictureButton::HasDoubleEdge() const {
  return isDefault() && isEnabled();
}

QColor PictureButton::Edge() const {
  return HairlineOn(palette().color(QPalette::Button));
}

QFont PictureButton::CaptionFont() const {
  return FittingFont(font(), text(), width() - 2 * CaptionMargin);
}

QString PictureButton::ShownCaption() const {
  const int room = width() - 2 * CaptionMargin;
  return QFontMetrics(CaptionFont()).elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
}

}  // namespace look
