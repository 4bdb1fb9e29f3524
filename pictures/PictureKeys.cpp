#include "pictures/PictureKeys.h"

#include <utility>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace {

constexpr int Step = 8;  // pixels; 1 with Ctrl

bool IsOfTheWindow(const QFocusEvent& event) {
  return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

}  // namespace

PictureKeys::PictureKeys(QWidget* box) : QObject(box), box_(*box) {
  box->setFocusPolicy(Qt::TabFocus);
  box->installEventFilter(this);
}

bool PictureKeys::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return Press(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) PutDown();
      return false;
    case QEvent::FocusIn:
      Q_EMIT Chosen();
      return false;
    case QEvent::FocusOut:
      PutDown();
      if (!IsOfTheWindow(*static_cast<QFocusEvent*>(event))) Q_EMIT Dropped();
      return false;
    default:
      return false;
  }
}

bool PictureKeys::Press(const QKeyEvent& key) {
  constexpr std::pair<int, QPoint> directions[] = {
      {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
  for (const auto& [arrow, direction] : directions) {
    if (key.key() != arrow) continue;
    moves_ = true;
    Q_EMIT Moved(direction * (key.modifiers() & Qt::ControlModifier ? 1 : Step));
    return true;
  }
  if (key.key() == Qt::Key_Delete) Q_EMIT Removed();
  if (key.key() == Qt::Key_Escape) Q_EMIT Left();
  return key.key() == Qt::Key_Delete || key.key() == Qt::Key_Escape;
}

void PictureKeys::PutDown() {
  if (std::exchange(moves_, false)) Q_EMIT Put();
}
