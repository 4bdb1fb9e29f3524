// The pictures of a page as the text box holds them. The document keeps each picture's own bytes beside the
// text, under a name made of them; what is drawn is decoded from them when it is first needed. So a picture
// is written back as it came, whether it can be drawn or not, and an emoticon used fifty times is kept and
// decoded once.
#pragma once

#include <QtCore/QVariant>
#include <QtGui/QImage>
#include <QtGui/QTextCharFormat>

#include "richtext/document/Document.h"

class QTextDocument;
class QUrl;

namespace richtext {

// The image as a picture of its own size, in a small file that shows it unchanged.
Picture FromImage(const QImage& image);
// A PNG or JPEG file as a picture of its own size, as it came; without bytes where it is none.
Picture FromFile(const QByteArray& file);

// Keeps the picture in the document; returns the format that shows it, with the attributes of `text`.
QTextImageFormat KeepPicture(const Picture& picture, const QTextCharFormat& text, QTextDocument& document);
// More than a megapixel: packing it would hold the window.
bool IsLarge(const QImage& image);
// A picture of such an image's size, in the place of one whose file is to be made when it is in a document.
Picture StandInFor(const QImage& image);
// Shows the image where its stand-in is kept, and has a thread of its own make the file: who asks for its
// bytes (KeptPicture) waits for them.
void MakeFile(const QImage& image, QTextDocument& document);
// KeepPicture with an image, whose file is made on a thread where it is large.
QTextImageFormat KeepImage(const QImage& image, const QTextCharFormat& text, QTextDocument& document);
// Whether nobody would wait.
bool AreFilesMade(const QTextDocument& document);
// The picture that such a format shows.
Picture KeptPicture(const QTextImageFormat& format, const QTextDocument& document);
// The pixels of a file of any kind; a null image where there are none or more than a page shows.
QImage DecodedFile(QByteArray file);
// The part of the picture that is shown, as pixels; a null image where it cannot be decoded.
QImage DecodedPicture(const Picture& picture);
// What is drawn for a resource of the document; a grey field for a picture that cannot be decoded and for
// every name that is not one of KeepPicture's. Nothing is ever fetched for a name.
QVariant DrawnPicture(const QTextDocument& document, const QUrl& name);

}  // namespace richtext
