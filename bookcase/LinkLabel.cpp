#include "bookcase/LinkLabel.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include "look/FocusLine.h"
#include "look/Spoken.h"

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  look::SpeakAs(*this, QAccessible::Link);
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
  isSecondClick_ = false;
}

void LinkLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  isSecondClick_ = true;
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
  const bool isWithin = rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && isWithin && !isSecondClick_) Q_EMIT Clicked();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  const QRect words =
      fontMetrics().boundingRect(rect().adjusted(indent(), 0, 0, 0), static_cast<int>(alignment()), text());
  look::DrawFocusLine(painter, text().isEmpty() ? rect() : words.adjusted(-indent(), -1, indent(), 1),
                      palette().color(QPalette::WindowText));
}
