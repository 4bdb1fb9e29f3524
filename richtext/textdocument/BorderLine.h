// The borders of rows and paragraphs on the screen and on paper.
#pragma once

#include <QtCore/QLineF>

#include "richtext/document/Table.h"

class QPainter;

namespace richtext {

// Draws a border, or nothing where none is shown, along a line that goes across or down. One of two or three
// lines lies around the place of one. The painter counts in the document's pixels.
void DrawBorder(QPainter& painter, const Border& border, QLineF line);

// How wide all its lines are together, in pixels; 0 of one that is not shown.
double WidthOf(const Border& border);

}  // namespace richtext
