#include "richtext/box/CaretFormat.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QTextEdit>

#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Links.h"
#include "richtext/textdocument/Marks.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

QTextCharFormat LettersOnly(const QTextCharFormat& format) {
  return ToTextFormat(FromTextFormat(format));
}

}  // namespace

QTextCharFormat CaretFormat::InHand() const {
  const QTextCursor caret = box_.textCursor();
  if (IsKeptAt(caret)) return kept_->format;
  const QTextCharFormat format = WithoutCell(caret.hasSelection() ? LastFormat(caret) : caret.charFormat());
  return FormatBesideLink(caret, format).value_or(format);
}

QTextCharFormat CaretFormat::OfLetters() const {
  return LettersOnly(InHand());
}

void CaretFormat::Apply() {
  const QTextCursor caret = box_.textCursor();
  if (caret.hasSelection()) return;
  if (const QTextCharFormat format = InHand(); format != caret.charFormat())
    box_.setCurrentCharFormat(format);
}

void CaretFormat::Choose(const QTextCharFormat& attribute) {
  QTextCharFormat format = InHand();
  format.merge(attribute);
  box_.setCurrentCharFormat(format);
  if (box_.textCursor().block().length() <= 1) Keep(format);
}

void CaretFormat::Keep(const QTextCharFormat& format) {
  kept_ = Kept{box_.textCursor().position(), LettersOnly(format)};
}

bool CaretFormat::IsKeptAt(const QTextCursor& caret) const {
  return kept_ && !caret.hasSelection() && caret.position() == kept_->position;
}

}  // namespace richtext
