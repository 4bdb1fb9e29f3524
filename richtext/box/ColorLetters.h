// Letters that a font has in colours alone, as emoji are. The toolkit draws them on a screen, and leaves them
// out of what it writes for a printer: there they are pictures.
#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/QTextCharFormat>

namespace richtext {

// Whether some may be in the text; hardly a text has any.
bool MayHaveColors(QStringView text);

// The letter or the joined letters as a picture for paper; a null image where the font has no colours for
// them. `size`, in pixels of the page, is what it takes there.
QImage ColorLetter(const QString& letter, const QTextCharFormat& format, QSizeF& size);

}  // namespace richtext
