// The text box by places and attributes, as the journal asks for them.
#include <algorithm>

#include <QtGui/QTextBlock>

#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/HiddenText.h"

namespace richtext {
namespace {

// What `attribute` gives for all of the selection, or for the caret; nothing where it differs within.
template <class Attribute>
auto Common(const QTextCursor& cursor, Attribute attribute)
    -> std::optional<decltype(attribute(QTextCharFormat()))> {
  std::optional<decltype(attribute(QTextCharFormat()))> common;
  const int from = cursor.selectionStart();
  const int to = cursor.selectionEnd();
  for (QTextBlock block = cursor.document()->findBlock(from); block.isValid() && block.position() < to;
       block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      if (fragment.position() >= to || fragment.position() + fragment.length() <= from) continue;
      const auto value = attribute(fragment.charFormat());
      if (common && *common != value) return std::nullopt;
      common = value;
    }
  return common ? common : attribute(cursor.charFormat());
}

}  // namespace

QString RichTextBox::Text() const {
  return ShownText(*document());
}

int RichTextBox::SelStart() const {
  return ToShown(*document(), textCursor().selectionStart());
}

void RichTextBox::SetSelStart(int position) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(PlaceOf(position));
  setTextCursor(cursor);
}

int RichTextBox::SelLength() const {
  return ToShown(*document(), textCursor().selectionEnd()) - SelStart();
}

void RichTextBox::SetSelLength(int length) {
  QTextCursor cursor = textCursor();
  const int start = SelStart();
  cursor.setPosition(cursor.selectionStart());
  cursor.setPosition(PlaceOf(start + std::clamp(length, 0, document()->characterCount() - start)),
                     QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

// The place in the document for one in the shown text, which may be too large or too small.
int RichTextBox::PlaceOf(int position) const {
  const int end = document()->characterCount() - 1;
  return std::min(FromShown(*document(), std::clamp(position, 0, end)), end);
}

std::optional<QString> RichTextBox::SelFontName() const {
  return Common(textCursor(), FontNameOf);
}

std::optional<double> RichTextBox::SelFontSize() const {
  return Common(textCursor(), FontSizeOf);
}

std::optional<bool> RichTextBox::SelBold() const {
  return Common(textCursor(),
                [](const QTextCharFormat& format) { return format.fontWeight() > QFont::Medium; });
}

std::optional<bool> RichTextBox::SelItalic() const {
  return Common(textCursor(), [](const QTextCharFormat& format) { return format.fontItalic(); });
}

std::optional<bool> RichTextBox::SelUnderline() const {
  return Common(textCursor(), IsUnderlined);
}

std::optional<bool> RichTextBox::SelStrikeThru() const {
  return Common(textCursor(), [](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

std::optional<std::uint32_t> RichTextBox::SelColor() const {
  return Common(textCursor(), ColorOf);
}

void RichTextBox::SetSelFontName(const QString& name) {
  if (name.isEmpty()) return;
  QTextCharFormat attribute;
  SetFontName(attribute, name);
  SetAttribute(attribute);
}

void RichTextBox::SetSelFontSize(double points) {
  if (!(points > 0)) return;
  QTextCharFormat attribute;
  SetFontSize(attribute, points);
  SetAttribute(attribute);
}

void RichTextBox::SetSelBold(bool on) {
  QTextCharFormat attribute;
  attribute.setFontWeight(on ? QFont::Bold : QFont::Normal);
  SetAttribute(attribute);
}

void RichTextBox::SetSelItalic(bool on) {
  QTextCharFormat attribute;
  attribute.setFontItalic(on);
  SetAttribute(attribute);
}

void RichTextBox::SetSelUnderline(bool on) {
  QTextCharFormat attribute;
  SetUnderline(attribute, on ? UnderlineKind::Single : UnderlineKind::None);
  SetAttribute(attribute);
}

void RichTextBox::SetSelStrikeThru(bool on) {
  QTextCharFormat attribute;
  attribute.setFontStrikeOut(on);
  SetAttribute(attribute);
}

void RichTextBox::SetSelColor(std::uint32_t color) {
  QTextCharFormat attribute;
  attribute.setForeground(ToColor(color));
  SetAttribute(attribute);
}

void RichTextBox::SetAttribute(const QTextCharFormat& attribute) {
  if (!isReadOnly()) mergeCurrentCharFormat(attribute);
}

}  // namespace richtext
