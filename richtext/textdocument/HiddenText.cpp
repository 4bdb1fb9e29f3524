#include "richtext/textdocument/HiddenText.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

bool IsSign(const QTextCursor& cursor, int position) {
  if (cursor.document()->characterAt(position) != QChar(HiddenSign)) return false;
  QTextCursor sign(cursor.document());  // and not a copy, which would keep a format that was chosen
  sign.setPosition(position + 1);
  return !HiddenTextOf(sign.charFormat()).isEmpty();
}

}  // namespace

QTextCharFormat HiddenFormat(QTextCharFormat format, const QString& text) {
  format.clearProperty(QTextFormat::ObjectType);
  format.setProperty(HiddenText, text);
  return format;
}

QString HiddenTextOf(const QTextCharFormat& format) {
  return format.stringProperty(HiddenText);
}

void PassBack(QTextCursor& cursor) {
  while (!cursor.atBlockStart() && IsSign(cursor, cursor.position() - 1))
    cursor.setPosition(cursor.position() - 1);
}

void PassNext(QTextCursor& cursor) {
  while (!cursor.atBlockEnd() && IsSign(cursor, cursor.position())) cursor.setPosition(cursor.position() + 1);
}

void SelectNextLetter(QTextCursor& cursor) {
  PassNext(cursor);
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
  while (cursor.position() > cursor.anchor() && IsSign(cursor, cursor.position() - 1))
    cursor.setPosition(cursor.position() - 1, QTextCursor::KeepAnchor);
}

void RemoveShown(QTextCursor& cursor) {
  const int from = cursor.selectionStart();
  cursor.beginEditBlock();
  for (int at = cursor.selectionEnd(); at > from; --at) {
    if (IsSign(cursor, at - 1)) continue;
    cursor.setPosition(at - 1);
    cursor.setPosition(at, QTextCursor::KeepAnchor);  // a letter alone, and not the signs behind it too
    cursor.removeSelectedText();
  }
  cursor.endEditBlock();
}

}  // namespace richtext
