// The text box by places and attributes, as the journal asks for them.
#include <algorithm>

#include <QtGui/QTextCursor>

#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Marks.h"
#include "richtext/textdocument/ShownText.h"

namespace richtext {
namespace {

// What `attribute` gives for all of the selection, or for a caret that has `inHand`; nothing where it differs
// within.
template <class Attribute>
auto Common(const QTextCursor& cursor, const QTextCharFormat& inHand, Attribute attribute)
    -> std::optional<decltype(attribute(inHand))> {
  if (!cursor.hasSelection()) return attribute(inHand);
  std::optional<decltype(attribute(inHand))> common;
  VisitFormats(cursor, [&](const QTextCharFormat& format) {
    const auto value = attribute(format);
    if (common && *common != value) return common.reset(), false;
    common = value;
    return true;
  });
  return common;
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
  cursor.setPosition(PlaceOf(start + std::clamp(length, 0, 2 * document()->characterCount())),
                     QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

// The place in the document for one in the shown text, which may be too large or too small.
int RichTextBox::PlaceOf(int position) const {
  return FromShown(*document(), std::max(position, 0));
}

std::optional<QString> RichTextBox::SelFontName() const {
  return Common(textCursor(), caret_.InHand(), FontNameOf);
}

std::optional<double> RichTextBox::SelFontSize() const {
  return Common(textCursor(), caret_.InHand(), FontSizeOf);
}

std::optional<bool> RichTextBox::SelBold() const {
  return Common(textCursor(), caret_.InHand(),
                [](const QTextCharFormat& format) { return format.fontWeight() > QFont::Medium; });
}

std::optional<bool> RichTextBox::SelItalic() const {
  return Common(textCursor(), caret_.InHand(),
                [](const QTextCharFormat& format) { return format.fontItalic(); });
}

std::optional<bool> RichTextBox::SelUnderline() const {
  return Common(textCursor(), caret_.InHand(), IsUnderlined);
}

std::optional<bool> RichTextBox::SelStrikeThru() const {
  return Common(textCursor(), caret_.InHand(),
                [](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

std::optional<std::uint32_t> RichTextBox::SelColor() const {
  return Common(textCursor(), caret_.InHand(), ColorOf);
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
  if (isReadOnly()) return;
  if (const QTextCursor cursor = textCursor(); cursor.hasSelection())
    MergeFormat(cursor, attribute);
  else
    caret_.Choose(attribute);
}

}  // namespace richtext
