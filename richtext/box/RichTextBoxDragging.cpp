// The text box and words that are dragged out of it. Within the page they are moved. Another program gets a
// copy, whatever it asks for: the toolkit takes away what is selected when the words have been moved
// elsewhere, so nothing is selected while they are outside.
#include <utility>

#include <QtCore/QScopedValueRollback>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QDragLeaveEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QTextBlock>

#include "richtext/box/RichTextBox.h"

namespace richtext {

// A drag begins in here, and is over when the toolkit comes back.
void RichTextBox::mouseMoveEvent(QMouseEvent* event) {
  {
    const QScopedValueRollback drags(drags_, true);
    QTextEdit::mouseMoveEvent(event);
  }
  if (const QTextCursor dragged = std::exchange(dragged_, {}); !dragged.isNull()) setTextCursor(dragged);
}

void RichTextBox::dragLeaveEvent(QDragLeaveEvent* event) {
  QTextEdit::dragLeaveEvent(event);
  QTextCursor cursor = textCursor();
  if (!drags_ || !cursor.hasSelection()) return;
  dragged_ = cursor;
  cursor.clearSelection();
  setTextCursor(cursor);
}

void RichTextBox::dragEnterEvent(QDragEnterEvent* event) {
  if (const QTextCursor dragged = std::exchange(dragged_, {}); !dragged.isNull()) setTextCursor(dragged);
  QTextEdit::dragEnterEvent(event);
}

// What comes in gets its room as anything pasted; paragraphs may have gone where it was taken from.
void RichTextBox::dropEvent(QDropEvent* event) {
  const unsigned before = edits_;
  const QTextCursor taken = textCursor();
  QTextEdit::dropEvent(event);
  if (edits_ != before) SettleFrames(taken.block());
}

}  // namespace richtext
