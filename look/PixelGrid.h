// Edges and lines on whole pixels of the screen, at scalings between the whole ones too.
#pragma once

#include <QtGui/QPainter>

namespace look {

// The rectangle on the pixels that the toolkit gives to a control of that place.
QRectF OnPixels(const QPainter& painter, const QRectF& rect);

// As wide as a pixel of the design, in whole pixels of the screen, at least one.
double Hairline(const QPainter& painter);

// The length in whole pixels of the screen.
double OnPixels(const QPainter& painter, double length);

// The middle of a line of that width along the inside of the rectangle's edges.
QRectF WithinEdge(const QPainter& painter, const QRectF& rect);

// A line of that width along the inside of the rectangle's edges.
void FrameWithHairline(QPainter& painter, const QRectF& rect, const QColor& color);

}  // namespace look
