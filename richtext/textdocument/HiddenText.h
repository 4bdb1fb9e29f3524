// Hidden text is part of a page and not of what the text box shows. It stands in the box as one sign for each
// stretch of one format. The sign is drawn as nothing and counts as an accent of the letter before it, so
// that the caret passes both in one step; its format holds the text.
#pragma once

#include <QtGui/QTextCharFormat>

class QTextCursor;
class QTextDocument;

namespace richtext {

constexpr char16_t HiddenSign = 0x034F;  // combining grapheme joiner; one without such a format is itself

// The format of the sign. `text` is not empty; an object in it is the picture that `format` tells of.
QTextCharFormat HiddenFormat(QTextCharFormat format, const QString& text);
// The text behind a sign of this format; empty where it is no such format.
QString HiddenTextOf(const QTextCharFormat& format);

// Moves a cursor that stands behind signs before them.
void PassBack(QTextCursor& cursor);
// Moves a cursor that stands before signs behind them, within its paragraph.
void PassNext(QTextCursor& cursor);
// Selects what the delete key takes away at the cursor: the letter that follows, without the signs around it.
void SelectNextLetter(QTextCursor& cursor);
// Removes the selection but for its signs, as one step of undo.
void RemoveShown(QTextCursor& cursor);

}  // namespace richtext
