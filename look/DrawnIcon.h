// An icon that is drawn from its vector source, at the screen's own size and when it is first seen.
#pragma once

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

namespace look {

// `drawing` is the source's path; `lit` is that of the one for what is under the mouse, if there is one. The
// icon offers itself in those sizes, in pixels of the screen.
QIcon DrawnIcon(const QString& drawing, const QString& lit = {}, const QList<QSize>& sizes = {});

// The source drawn in a square of so many pixels of the screen.
QPixmap Drawn(const QString& drawing, int side);

}  // namespace look
