// The pictures of a page as the text box holds them. The document keeps each picture's own file beside the
// text, under a name made of its bytes; what is drawn is decoded from it when it is first needed. So a
// picture is written back as it came, and an emoticon used fifty times is kept and decoded once.
#pragma once

#include <QtCore/QVariant>
#include <QtGui/QTextCharFormat>

#include "richtext/Document.h"

class QTextDocument;
class QUrl;

namespace richtext {

// Keeps the picture's file in the document; returns the format that shows it, with the attributes of `text`.
QTextImageFormat KeepPicture(const Picture& picture, const QTextCharFormat& text, QTextDocument& document);
// The picture that such a format shows.
Picture KeptPicture(const QTextImageFormat& format, const QTextDocument& document);
// What is drawn for a resource of the document; a grey field for a picture that cannot be decoded and for
// every name that is not one of KeepPicture's. Nothing is ever fetched for a name.
QVariant DrawnPicture(const QTextDocument& document, const QUrl& name);

}  // namespace richtext
