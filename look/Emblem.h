// The closed book, which stands for the program and for each journal.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPixmap>

namespace look {

// A closed book of that cloth, seen from the front, filling a square of `size` pixels. With a clasp it is the
// book of the lock screen.
QPixmap ClosedBook(int size, const QColor& cloth, bool clasped = false);

// Gives the program its icon, which every window without one of its own shows, if it has none yet.
void GiveTheProgramItsIcon();

}  // namespace look
