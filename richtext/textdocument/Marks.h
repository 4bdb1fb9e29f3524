// The formats of paragraphs' ends, which show where a paragraph is empty: as its height, and as what is typed
// there.
//
// The toolkit keeps that of a paragraph with the sign that parts it from the one before, so that a stretch of
// its text holds other ends than a person has selected; and that of a page's first paragraph beside the text,
// where undo does not come. What is meant is told here and nowhere else: a selection holds the end of each
// paragraph that it goes on behind, and of the page's last one when it holds all of that.
#pragma once

#include <functional>
#include <map>

#include <QtGui/QTextCharFormat>

class QTextBlock;
class QTextCursor;
class QTextDocument;

namespace richtext {

// Gives a paragraph's end a format; nothing where it has it. A part of a step of undo, which must be open.
void SetMark(const QTextBlock& paragraph, const QTextCharFormat& format);

// Merges an attribute into the letters and the ends of a selection, as one step of undo.
void MergeFormat(const QTextCursor& selection, const QTextCharFormat& attribute);

// Shows the formats of a selection's letters, or of its ends where it holds no letter, until `wants` is
// false.
void VisitFormats(const QTextCursor& selection, const std::function<bool(const QTextCharFormat&)>& wants);

// The format of a selection's last letter, from whichever side it was made; where it holds none, of a caret
// at its start.
QTextCharFormat LastFormat(const QTextCursor& selection);

// Has undo reach the end of a document's first paragraph: notes its format for each number of steps that
// undo can take, and gives it back.
class FirstMark {
 public:
  // Of this document, which must outlive it.
  explicit FirstMark(QTextDocument& document);
  Q_DISABLE_COPY_MOVE(FirstMark)
  // The document was filled, and has no undo history.
  void Begin();
  // An edit, an undo or a redo is over.
  void Settle();
  // The paragraph has been left empty by what undo would take back first. No step more.
  void Follow(const QTextCharFormat& format);

 private:
  void Note();
  QTextCharFormat Now() const;
  void Set(const QTextCharFormat& format);

  QTextDocument& document_;
  std::map<int, QTextCharFormat> bySteps_;  // where it changed
  int steps_ = 0;                           // at the last look
  bool isNewStep_ = false;                  // one has come since then that is no redo
};

}  // namespace richtext
