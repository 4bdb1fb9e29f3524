#include "bookcase/LinkLabel.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyleOptionFocusRect>
#include <QtWidgets/QStylePainter>

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
    return QLabel::keyPressEvent(event);
  if (!event->isAutoRepeat()) Q_EMIT Clicked();
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
  event->accept();  // so that the release comes here, wherever it happens
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Clicked();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}
