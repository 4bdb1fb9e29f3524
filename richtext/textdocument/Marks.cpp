#include "richtext/textdocument/Marks.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

int EndOf(const QTextBlock& block) {
  return block.position() + block.length() - 1;
}

// The first and the last paragraph whose ends a selection holds, the one before the first where it holds
// none.
struct Ends {
  explicit Ends(const QTextCursor& selection)
      : first(selection.document()->findBlock(selection.selectionStart())),
        last(selection.document()->findBlock(selection.selectionEnd())) {
    const bool isWhole = first != last || selection.selectionStart() == first.position();
    const bool holdsLast = !last.next().isValid() && selection.selectionEnd() == EndOf(last) && isWhole;
    if (!holdsLast) last = last.previous();
    if (first.blockNumber() > last.blockNumber()) first = QTextBlock();
  }
  bool Holds(const QTextBlock& block) const {
    return first.isValid() && block.blockNumber() >= first.blockNumber() &&
           block.blockNumber() <= last.blockNumber();
  }

  QTextBlock first;  // invalid: it holds none
  QTextBlock last;
};

// Of a first paragraph nothing would come into the history by it: the paragraph's own format, unchanged,
// does.
void PutMark(const QTextBlock& paragraph, const QTextCharFormat& format) {
  QTextCursor cursor(paragraph);
  if (paragraph.blockNumber() == 0) cursor.setBlockFormat(cursor.blockFormat());
  cursor.setBlockCharFormat(WithPlace(format, PlaceOf(paragraph)));
}

void MergeInto(const QTextBlock& block, const QTextCharFormat& attribute) {
  QTextCharFormat format = block.charFormat();
  format.merge(attribute);
  PutMark(block, format);
}

void MergeInto(QTextCursor cursor, int from, int to, const QTextCharFormat& attribute) {
  if (from >= to) return;
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  cursor.mergeCharFormat(attribute);
}

bool VisitLetters(const QTextBlock& block, int from, int to,
                  const std::function<bool(const QTextCharFormat&)>& wants, bool& found) {
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    if (fragment.position() >= to || fragment.position() + fragment.length() <= from) continue;
    found = true;
    if (!wants(fragment.charFormat())) return false;
  }
  return true;
}

}  // namespace

void SetMark(const QTextBlock& paragraph, const QTextCharFormat& format) {
  if (paragraph.charFormat() != format) PutMark(paragraph, format);
}

// The toolkit's stretch from a paragraph's letters to the end of a later one has the ends between the two,
// but not the first one's.
void MergeFormat(const QTextCursor& selection, const QTextCharFormat& attribute) {
  const auto [from, to] = HeldBy(selection);
  const Ends ends(selection);
  const QTextBlock lastBlock = selection.document()->findBlock(to);
  QTextCursor step(selection);
  step.beginEditBlock();
  MergeInto(selection, from, std::min(to, std::max(from, lastBlock.position() - 1)), attribute);
  MergeInto(selection, std::max(from, lastBlock.position()), to, attribute);
  if (ends.first.isValid()) MergeInto(ends.first, attribute);
  if (ends.Holds(lastBlock) && ends.first != lastBlock) MergeInto(lastBlock, attribute);
  step.endEditBlock();
}

void VisitFormats(const QTextCursor& selection, const std::function<bool(const QTextCharFormat&)>& wants) {
  const auto [from, to] = HeldBy(selection);
  bool found = false;
  for (QTextBlock block = selection.document()->findBlock(from); block.isValid() && block.position() < to;
       block = block.next())
    if (!VisitLetters(block, from, to, wants, found)) return;
  const Ends ends(selection);
  if (found) return;
  for (QTextBlock block = ends.first; ends.Holds(block); block = block.next())
    if (!wants(block.charFormat())) return;
}

QTextCharFormat LastFormat(const QTextCursor& selection) {
  const int from = selection.selectionStart();
  QTextCursor letter(selection.document());
  QTextBlock block = selection.document()->findBlock(selection.selectionEnd());
  for (; block.isValid() && EndOf(block) > from; block = block.previous()) {
    letter.setPosition(std::min(selection.selectionEnd(), EndOf(block)));
    if (letter.position() > std::max(from, block.position())) return letter.charFormat();
  }
  letter.setPosition(from);
  return letter.charFormat();
}

FirstMark::FirstMark(QTextDocument& document) : document_(document) {
  QObject::connect(&document, &QTextDocument::undoCommandAdded, &document, [this] { isNewStep_ = true; });
  Begin();
}

void FirstMark::Begin() {
  bySteps_ = {{0, Now()}};
  steps_ = 0;
  isNewStep_ = false;
}

void FirstMark::Settle() {
  const int before = std::exchange(steps_, document_.availableUndoSteps());
  const bool isNew = std::exchange(isNewStep_, false);
  const bool isRedo = steps_ > before && !isNew;
  if (steps_ < before || isRedo) return Set(std::prev(bySteps_.upper_bound(steps_))->second);
  bySteps_.erase(bySteps_.upper_bound(before), bySteps_.end());
  Note();
}

void FirstMark::Follow(const QTextCharFormat& format) {
  if (document_.isRedoAvailable()) return;
  Set(format);
  Note();
}

void FirstMark::Note() {
  if (std::prev(bySteps_.upper_bound(steps_))->second != Now()) bySteps_[steps_] = Now();
}

QTextCharFormat FirstMark::Now() const {
  return document_.firstBlock().charFormat();
}

void FirstMark::Set(const QTextCharFormat& format) {
  if (Now() != format) QTextCursor(&document_).setBlockCharFormat(format);
}

}  // namespace richtext
