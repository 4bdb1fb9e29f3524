// A text that outgrows its place is shortened, with the whole as its tool tip: the places are told, but the
// desktop chooses the font.
#pragma once

#include <QtWidgets/QWidget>

namespace look {

// Lets a label or a button draw no more of a line than fits, with an ellipsis at its end. While not
// everything can be seen, and it has no tool tip of its own, the text is its tool tip.
void ShortenWhatOutgrows(QWidget& control);

// The text of a label or button of which not everything can be seen; empty when all of it can.
QString OutgrownText(const QWidget& control);

}  // namespace look
