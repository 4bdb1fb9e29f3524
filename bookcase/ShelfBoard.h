// The boards of the bookcase that the journals stand on.
#pragma once

#include <QtGui/QPainter>

inline constexpr int ShelfBoardHeight = 9;  // pixels of the design, without its shadow

// A board of walnut over the whole width, its upper edge there, and its shadow on what lies behind; in pixels
// of the screen.
void PaintShelfBoard(QPainter& painter, int top, int width);
