#include "pictures/DragPlace.h"

namespace pictures {
namespace {

constexpr QPoint TitleBarAllowance(0, 32);

bool HasTitleBar(const QRect& frame, const QRect& client) {
  return client.top() - frame.top() > frame.bottom() - client.bottom();
}

}  // namespace

QPoint DragPlace(QPoint pointer, const QRect& frame, const QRect& client) {
  if (HasTitleBar(frame, client)) return pointer - frame.topLeft() - TitleBarAllowance;
  return pointer - client.topLeft() - QPoint(0, HandleTop);
}

}  // namespace pictures
