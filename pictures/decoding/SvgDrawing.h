// Drawings in SVG, an XML language of the W3C, before the toolkit reads them.
#pragma once

#include <QtCore/QByteArray>

namespace pictures {

// The drawing without what would make the toolkit read other files: pictures that are named and not held in
// it, style sheets, and the declaration of a document type. Empty for what is no XML, a packed drawing among
// it.
QByteArray WithoutOtherFiles(const QByteArray& svg);

}  // namespace pictures
