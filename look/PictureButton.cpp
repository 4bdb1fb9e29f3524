#include "look/PictureButton.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

#include "look/ButtonFace.h"
#include "look/Growth.h"
#include "look/Shortening.h"

namespace look {
namespace {

constexpr int CaptionMargin = 7;  // pixels

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
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || ShownCaption() == text()) {
    return QPushButton::event(event);
  }
  const QString plain = text().remove(QLatin1Char('&')).toHtmlEscaped();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), QStringLiteral("<p>%1</p>").arg(plain),
                     this);
  return true;
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintButtonFace(painter, {.place = rect(),
                            .material = picture_,
                            .palette = palette(),
                            .isEnabled = isEnabled(),
                            .isDown = isDown(),
                            .isUnderMouse = underMouse(),
                            .isDefault = isDefault() && isEnabled(),
                            .hasFocus = hasFocus()});
  PaintCaption(painter);
}

void PictureButton::ShowArrow(Qt::ArrowType arrow) {
  arrow_ = arrow;
  update();
}

void PictureButton::PaintArrow(QPainter& painter) const {
  const double to = arrow_ == Qt::LeftArrow ? -1 : 1;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(rect()).center() + (isDown() ? QPointF(Sunk) : QPointF()));
  painter.scale(Growth(), Growth());
  painter.setPen(QPen(palette().color(QPalette::Active, QPalette::ButtonText), 1.75, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  painter.drawLine(QPointF(-6 * to, 0), QPointF(6 * to, 0));
  painter.drawPolyline(QPolygonF({{2 * to, -4}, {6 * to, 0}, {2 * to, 4}}));
}

void PictureButton::PaintCaption(QPainter& painter) const {
  if (arrow_ != Qt::NoArrow) return PaintArrow(painter);
  const QPoint sunk = isDown() ? Sunk : QPoint();
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.setFont(CaptionFont());
  painter.drawText(rect().translated(sunk), Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   ShownCaption());
}

QFont PictureButton::CaptionFont() const {
  return FittingFont(font(), text(), width() - 2 * CaptionMargin);
}

QString PictureButton::ShownCaption() const {
  const int room = width() - 2 * CaptionMargin;
  return QFontMetrics(CaptionFont()).elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
}

}  // namespace look
