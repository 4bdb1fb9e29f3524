#include "pictures/DragPlace.h"

#include <algorithm>

namespace pictures {
namespace {

constexpr int TitleBarAllowance = 32;

int TitleBar(const QRect& frame, const QRect& client) {
  const int above = client.top() - frame.top();
  return above > frame.bottom() - client.bottom() ? above : 0;
}

}  // namespace

QPoint DragPlace(QPoint pointer, const QRect& frame, const QRect& client) {
  const int bar = TitleBar(frame, client);
  if (bar == 0) return pointer - client.topLeft() - QPoint(0, HandleTop);
  const int onHandle = std::min(TitleBarAllowance - bar, HandleTop + HandleHeight - 1);
  return {pointer.x() - frame.left(), pointer.y() - client.top() - onHandle};
}

}  // namespace pictures
