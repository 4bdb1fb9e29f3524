// Where the corner of a dragged picture goes.
#pragma once

#include <QtCore/QRect>

namespace pictures {

constexpr int HandleTop = 1;  // pixels below the picture's upper edge
constexpr int HandleHeight = 20;

// In pixels of the client area, for a pointer at that place of the screen. The corner goes to the pointer,
// measured from the outer corner of the window's frame, and a title bar's 32 pixels higher: on the handle.
// Where the bar is so low that the pointer would leave the handle downwards, the corner is that much less
// higher. A frame without a title bar, whose top is no wider than its bottom, has nothing to allow for: there
// the upper left corner of the handle goes to the pointer. `frame` and `client` are the window's, on the
// screen.
QPoint DragPlace(QPoint pointer, const QRect& frame, const QRect& client);

}  // namespace pictures
