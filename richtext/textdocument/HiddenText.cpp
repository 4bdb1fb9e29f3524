#include "richtext/textdocument/HiddenText.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

void AddPlaces(const QTextFragment& fragment, std::vector<int>& places) {
  if (HiddenTextOf(fragment.charFormat()).isEmpty()) return;
  const QString text = fragment.text();
  for (qsizetype at = text.indexOf(HiddenSign); at >= 0; at = text.indexOf(HiddenSign, at + 1))
    places.push_back(fragment.position() + static_cast<int>(at));
}

// Where the signs are, and the end of a paragraph that is none; hardly a page has any.
std::vector<int> Places(const QTextDocument& document) {
  std::vector<int> places;
  if (HasTables(document) && IsGap(document.firstBlock())) places.push_back(0);
  if (!document.toRawText().contains(QChar(HiddenSign))) return places;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) AddPlaces(fragment.fragment(), places);
  return places;
}

// As the plain text of a page has them.
void ShowCells(QString& text) {
  bool isInRow = false;
  for (QChar& unit : text) {
    if (unit == QChar(CellSign))
      unit = std::exchange(isInRow, true) ? QChar(u'\t') : QChar(u'\n');
    else if (unit == QChar(RowEndSign))
      unit = u'\t', isInRow = false;
  }
}

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

QString ShownText(const QTextDocument& document) {
  QString text = document.toRawText();
  if (HasTables(document)) ShowCells(text);
  const std::vector<int> places = Places(document);
  for (auto place = places.rbegin(); place != places.rend(); ++place) text.remove(*place, 1);
  return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

int ToShown(const QTextDocument& document, int position) {
  const std::vector<int> places = Places(document);
  return position -
         static_cast<int>(std::lower_bound(places.begin(), places.end(), position) - places.begin());
}

int FromShown(const QTextDocument& document, int position) {
  for (const int place : Places(document))
    if (place <= position) ++position;
  return position;
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
