// Formats that the layout of a paragraph gives its letters, over those of the document, which know nothing of
// them. The toolkit replaces them all by those of a word that an input method is composing.
#pragma once

#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>

namespace richtext {

using LayoutFormats = QList<QTextLayout::FormatRange>;

// Replaces those that have the property, which is a kind of them; they hold where no other of the paragraph's
// own does. Returns whether something is new. The paragraph must be laid out afterwards.
bool SetLayoutFormats(const QTextBlock& block, int property, const LayoutFormats& formats);

}  // namespace richtext
