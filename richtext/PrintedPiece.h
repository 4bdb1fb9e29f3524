// A part of the text box's document, laid out for paper.
//
// The toolkit's layout never comes back from a text that is more than 8,388,607 dots high, which at 1200 dots
// to the inch are some five hundred sheets, and it keeps some kilobytes for each paragraph. So a text is laid
// out in pieces, whose lines are the same as if it had been laid out as a whole.
#pragma once

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

class QPaintDevice;

namespace richtext {

class PrintedPiece : public QTextDocument {
 public:
  // Copies the positions `from` to `to` of the source, which must outlive the piece. Where `from` is not the
  // start of its paragraph, the first line has no indent.
  PrintedPiece(const QTextDocument& source, int from, int to, QPaintDevice& device);

  // Whether the toolkit can lay it out.
  bool CanBeLaidOut() const;
  // Breaks the text into lines.
  void LayOut();

  // Dots of the device to a pixel of the box.
  double Scale() const { return scale_; }

  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void Copy(int from, int to);
  QTextBlockFormat FormatOf(const QTextBlock& block, int from) const;
  QTextCharFormat Fitting(const QTextCharFormat& format, const QTextBlockFormat& paragraph) const;

  const QTextDocument& source_;
  double scale_;
  double widthInDots_;
  QSizeF area_;  // of the paper, in the box's pixels
};

}  // namespace richtext
