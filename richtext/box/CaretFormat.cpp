#include "richtext/box/CaretFormat.h"

#include <optional>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QTextEdit>

#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Links.h"

namespace richtext {
namespace {

QTextCharFormat LettersOnly(const QTextCharFormat& format) {
  return ToTextFormat(FromTextFormat(format));
}

}  // namespace

QTextCharFormat CaretFormat::InHand() const {
  return box_.textCursor().charFormat();
}

QTextCharFormat CaretFormat::OfLetters() const {
  return LettersOnly(InHand());
}

void CaretFormat::LeaveLink() {
  if (const std::optional<QTextCharFormat> beside = FormatBesideLink(box_.textCursor()))
    box_.setCurrentCharFormat(*beside);
}

void CaretFormat::CarryOn(const QTextCharFormat& format) {
  const QTextCursor cursor = box_.textCursor();
  if (cursor.hasSelection() || cursor.block().length() > 1) return;
  box_.setCurrentCharFormat(LettersOnly(format));
}

}  // namespace richtext
