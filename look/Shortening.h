// A text that outgrows its place is set a little smaller, or else shortened with the whole as its tool tip:
// the places are told, but the desktop chooses the font.
#pragma once

#include <QtWidgets/QWidget>

namespace look {

// The font, or a smaller one down to three quarters of its size, in which the line with its mnemonic is no
// wider than that, in pixels; the font itself where none is small enough.
QFont FittingFont(const QFont& font, const QString& line, int width);

// Lets a label or a button draw a line in its fitting font, and no more of it than fits, with an ellipsis at
// its end. While not everything can be seen, and it has no tool tip of its own, the text is its tool tip.
void ShortenWhatOutgrows(QWidget& control);

// The text of a label or button of which not everything can be seen; empty when all of it can.
QString OutgrownText(const QWidget& control);

}  // namespace look
