// The text box and its keys. The toolkit carries out most of them; those are looked at first whose own way
// would lose a format, a list or hidden text.
#include <algorithm>

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>

#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/FrameRoom.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/Marks.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/Rows.h"

namespace richtext {
namespace {

// A letter with Alt or the logo key is a command of somebody else's. AltGr is neither: it types.
bool IsCommandOfOthers(const QKeyEvent& event) {
  const bool withCommandKey =
      event.modifiers().testFlag(Qt::AltModifier) || event.modifiers().testFlag(Qt::MetaModifier);
  return withCommandKey && !event.text().isEmpty() && event.text().front().isPrint();
}

// What the toolkit would put in for the key; empty where it would do something else.
QString TypedText(const QKeyEvent& event) {
  if (event.matches(QKeySequence::InsertLineSeparator)) return QChar(QChar::LineSeparator);
  const QString text = event.text();
  if (text.isEmpty() || event.modifiers().testFlag(Qt::ControlModifier)) return {};
  const QChar first = text.front();
  const bool isText =
      first.isPrint() || first.isSurrogate() || first == u'\t' || first.category() == QChar::Other_Format;
  return isText ? text : QString();
}

bool IsBackspace(const QKeyEvent& event) {
  constexpr Qt::KeyboardModifiers passedOver =
      Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
  return event.key() == Qt::Key_Backspace && !(event.modifiers() & ~passedOver);
}

}  // namespace

// Held on a photograph that goes by it, Delete would go on among the letters here.
void RichTextBox::keyPressEvent(QKeyEvent* event) {
  if (held_.BeganElsewhere(*event)) return;
  if (IsCommandOfOthers(*event)) return event->ignore();
  CarryFormatOver([&] {
    if (isReadOnly()) return QTextEdit::keyPressEvent(event);
    caret_.Apply();
    PressKey(*event);
  });
}

void RichTextBox::keyReleaseEvent(QKeyEvent* event) {
  held_.BeganElsewhere(*event);
  QTextEdit::keyReleaseEvent(event);
}

void RichTextBox::focusOutEvent(QFocusEvent* event) {
  held_.Forget();
  QTextEdit::focusOutEvent(event);
}

// A person who goes on typing in a paragraph that she has just emptied means the format that she had. The end
// of a page's first paragraph may have one that nobody ever chose, and takes this one on; but an empty page
// stays the empty document.
void RichTextBox::CarryFormatOver(const std::function<void()>& act) {
  const unsigned before = edits_;
  const QTextCharFormat format = caret_.InHand();
  const int paragraph = document()->findBlock(textCursor().selectionStart()).blockNumber();
  act();
  if (edits_ != before) SettleFrames(textCursor().block());
  const QTextBlock block = textCursor().block();
  if (edits_ == before || textCursor().hasSelection() || block.length() > 1 ||
      block.blockNumber() != paragraph)
    return;
  caret_.Keep(format);
  const QScopedValueRollback quiet(quiet_, true);
  if (paragraph == 0 && !document()->isEmpty()) firstMark_->Follow(caret_.OfLetters());
}

// A frame may begin and end at another paragraph now. What was undone is as it was.
void RichTextBox::SettleFrames(const QTextBlock& changed) {
  if (document()->isRedoAvailable()) return;
  const QScopedValueRollback quiet(quiet_, true);
  const QTextBlock before = changed.previous().isValid() ? changed.previous() : changed;
  MakeRoomForFrames(*document(), before.position(), changed.position() + changed.length());
}

void RichTextBox::PressKey(QKeyEvent& event) {
  if (event.keyCombination() == PlainPasteKey) return PasteWithoutFormatting();
  if (event.matches(QKeySequence::InsertParagraphSeparator)) return InsertParagraph();
  if (textCursor().hasSelection()) {
    if (!TypeOver(event)) QTextEdit::keyPressEvent(&event);
    return;
  }
  if (event.key() == Qt::Key_Tab && !event.modifiers() && EnterNextCell()) return;
  if (EnterNextRow(event)) return;
  if (IsBackspace(event)) return DeleteBack(event);
  if (event.matches(QKeySequence::Delete)) return DeleteNext(event);
  if (event.matches(QKeySequence::DeleteStartOfWord)) return DeleteWord(QTextCursor::PreviousWord);
  if (event.matches(QKeySequence::DeleteEndOfWord)) return DeleteWord(QTextCursor::NextWord);
  QTextEdit::keyPressEvent(&event);
}

bool RichTextBox::TypeOver(const QKeyEvent& event) {
  const QString text = TypedText(event);
  if (!text.isEmpty()) InsertText(text);
  return !text.isEmpty();
}

// At the start of an item the key takes away its label and nothing more, and the border of a cell it passes.
// Hidden text stays: what a person cannot see she does not mean to delete. Paragraphs are joined in a step of
// undo of their own, to which the room of frames can belong.
void RichTextBox::DeleteBack(QKeyEvent& event) {
  QTextCursor cursor = textCursor();
  PassBack(cursor);
  setTextCursor(cursor);
  if (cursor.atBlockStart() && LeaveList()) return;
  if (IsBorder(*document(), cursor.position() - 1)) return moveCursor(QTextCursor::PreviousCharacter);
  if (!cursor.atBlockStart()) return QTextEdit::keyPressEvent(&event);
  cursor.beginEditBlock();
  cursor.deletePreviousChar();
  cursor.endEditBlock();
  ensureCursorVisible();
}

void RichTextBox::DeleteNext(QKeyEvent& event) {
  QTextCursor cursor = textCursor();
  PassNext(cursor);
  if (IsBorder(*document(), cursor.position())) {
    setTextCursor(cursor);
    return moveCursor(QTextCursor::NextCharacter);
  }
  SelectNextLetter(cursor);
  setTextCursor(cursor);
  QTextEdit::keyPressEvent(&event);
}

void RichTextBox::DeleteWord(QTextCursor::MoveOperation across) {
  const bool isBack = across == QTextCursor::PreviousWord;
  QTextCursor cursor = textCursor();
  const int caret = cursor.position();
  cursor.movePosition(across);
  const int end = cursor.position();
  int at = caret;
  while (at != end && !IsBorder(*document(), isBack ? at - 1 : at)) at += isBack ? -1 : 1;
  if (at == caret && at != end)
    return moveCursor(isBack ? QTextCursor::PreviousCharacter : QTextCursor::NextCharacter);
  cursor.setPosition(caret);
  cursor.setPosition(at, QTextCursor::KeepAnchor);
  RemoveShown(cursor);
  ensureCursorVisible();
}

bool RichTextBox::EnterNextCell() {
  QTextCursor cursor = textCursor();
  if (!GoToNextCell(cursor)) return false;
  setTextCursor(cursor);
  return true;
}

// The toolkit would stop between the rows, and go on in the next one's first cell or the last of the one
// before.
bool RichTextBox::EnterNextRow(const QKeyEvent& event) {
  const bool isDown = event.matches(QKeySequence::MoveToNextLine);
  QTextCursor cursor = textCursor();
  const QTextTable* const row = TableAt(*document(), cursor.position());
  if (!row || !(isDown || event.matches(QKeySequence::MoveToPreviousLine))) return false;
  const QTextTable* const next = isDown ? RowBehind(*row) : RowBefore(*row);
  const int cell = CellAt(*row, cursor.position());
  cursor.movePosition(isDown ? QTextCursor::Down : QTextCursor::Up);
  if (!next || (TableAt(*document(), cursor.position()) == row && CellAt(*row, cursor.position()) == cell))
    return false;
  const int into = std::min(cell, next->columns() - 1);
  cursor.setPosition(isDown ? BeginOfCell(*next, into) : EndOfCell(*next, into));
  setTextCursor(cursor);
  return true;
}

// A frame begins behind its first paragraph where that is empty, and ends where its last one is.
bool RichTextBox::LeaveFrame() {
  QTextCursor cursor = textCursor();
  if (!HasFrame(cursor.block())) return false;
  const FramePart part = FrameOf(cursor.block());
  if (!part.begins && !part.ends) return false;
  cursor.setBlockFormat(WithoutFrame(cursor.blockFormat()));
  return true;
}

bool RichTextBox::LeaveList() {
  QTextCursor cursor = textCursor();
  const QTextBlockFormat format = cursor.blockFormat();
  if (!IsListItem(format)) return false;
  cursor.setBlockFormat(WithoutList(format));
  return true;
}

// The toolkit's own Enter drops all formats after an empty paragraph, and now and then makes no paragraph. An
// empty list item is where a list ends, and so is a frame. What is left empty on either side has the format
// in hand.
void RichTextBox::InsertParagraph() {
  QTextCursor cursor = textCursor();
  const QTextBlock block = document()->findBlock(cursor.selectionEnd());
  if (!cursor.hasSelection() && block.length() <= 1 && (LeaveList() || LeaveFrame())) return;
  const QTextCharFormat format = caret_.OfLetters();
  cursor.beginEditBlock();
  cursor.insertBlock(block.blockFormat(), format);
  if (const QTextBlock before = cursor.block().previous(); before.length() <= 1) SetMark(before, format);
  cursor.endEditBlock();
  ensureCursorVisible();
}

}  // namespace richtext
