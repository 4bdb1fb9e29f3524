// A part of the text box's document, laid out for paper.
//
// The toolkit's layout never comes back from a text that is more than 8,388,607 pixels high, and it keeps
// some kilobytes for each paragraph. So a text is laid out in pieces, whose lines are the same as if it had
// been laid out as a whole. All measures are in pixels as in the box, and lines break at the same places
// whatever the resolution of the paper is.
#pragma once

#include <vector>

#include <QtCore/QSizeF>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

namespace richtext {

// A line of a piece, which must outlive it.
struct PrintedLine {
  QTextBlock block;  // of the piece
  QTextLine line;
  int position;   // of its first letter, in the source
  QPointF place;  // of its block, in the piece, as are top and bottom
  double top;
  double bottom;
  const QTextTable* row;  // that it stands in; none where it is text
  QString label = {};     // of a list's item that begins with it
};

class PrintedPiece : public QTextDocument {
 public:
  enum class Behind { Nothing, MoreText };

  // Copies the positions `from` to `to` of the source, which must outlive the piece, for sheets of this size.
  // Where `from` is not the start of its paragraph, the first line has no indent. A row of which not all is
  // copied comes as the paragraphs of its cells. A frame goes on behind the piece where more text does.
  PrintedPiece(const QTextDocument& source, int from, int to, const QSizeF& sheet,
               Behind behind = Behind::Nothing);

  // Whether the toolkit can lay it out.
  bool CanBeLaidOut() const;
  // Breaks the text into lines.
  void LayOut();
  // The lines from top to bottom, when they are laid out; those of a row one cell after the other.
  std::vector<PrintedLine> Lines() const;

  QVariant loadResource(int type, const QUrl& name) override;

 private:
  QTextBlockFormat OnPaper(const QTextBlock& block) const;
  bool IsCopied(const QTextTable* row, int to) const;
  void Copy(int to);
  void AddNeighbour(int to);
  void CopyEnd(const QTextBlock& block, int to, QTextCursor& cursor) const;
  void CopyText(const QTextBlock& block, int to, QTextCursor& cursor);
  void CopyLetters(const QString& text, const QTextCharFormat& format, QTextCursor& cursor);
  QTextCharFormat Fitting(const QTextCharFormat& format, const QTextCursor& cursor,
                          bool beginsParagraph) const;

  // A position in this document, as one in the source.
  int InSource(int position) const { return from_ + position; }

  const QTextDocument& source_;
  const int from_;  // in the source, and position 0 here
  QSizeF sheet_;
  QTextBlock neighbour_;  // behind what was copied, without a line
};

}  // namespace richtext
