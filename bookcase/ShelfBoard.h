// The boards of the bookcase that the journals stand on.
#pragma once

#include <QtGui/QPainter>

inline constexpr int ShelfBoardHeight = 9;  // pixels, without its shadow

// A board of walnut over the whole width, its upper edge there, and its shadow on what lies behind.
void PaintShelfBoard(QPainter& painter, int top, int width);
