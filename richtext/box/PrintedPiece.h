// A part of the text box's document, laid out for paper.
//
// The toolkit's layout never comes back from a text that is more than 8,388,607 pixels high, and it keeps
// some kilobytes for each paragraph. So a text is laid out in pieces, whose lines are the same as if it had
// been laid out as a whole. All measures are in pixels as in the box, and lines break at the same places
// whatever the resolution of the paper is.
#pragma once

#include <QtCore/QSizeF>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace richtext {

class PrintedPiece : public QTextDocument {
 public:
  // Copies the positions `from` to `to` of the source, which must outlive the piece, for sheets of this size.
  // Where `from` is not the start of its paragraph, the first line has no indent.
  PrintedPiece(const QTextDocument& source, int from, int to, const QSizeF& sheet);

  // Whether the toolkit can lay it out.
  bool CanBeLaidOut() const;
  // Breaks the text into lines.
  void LayOut();

  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void Copy(int from, int to);
  void CopyText(const QTextBlock& block, int from, int to, QTextCursor& cursor) const;
  QTextCharFormat Fitting(const QTextCharFormat& format, const QTextBlockFormat& paragraph) const;

  const QTextDocument& source_;
  QSizeF sheet_;
};

}  // namespace richtext
