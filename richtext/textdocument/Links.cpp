#include "richtext/textdocument/Links.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

// The link of the letter behind a place; empty where there is no letter.
QString LinkBehind(const QTextDocument& document, int place) {
  const QTextBlock block = document.findBlock(place);
  if (place < 0 || place >= block.position() + block.length() - 1) return {};
  QTextCursor letter(block);
  letter.setPosition(place + 1);  // a cursor has the format of the letter before it
  return letter.charFormat().anchorHref();
}

// Of the text before the caret, or else behind it, that is no link; of the paragraph's end where all is.
QTextCharFormat FormatAround(const QTextBlock& block, int caret) {
  std::optional<QTextCharFormat> found;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const bool isBehind = part.fragment().position() >= caret;
    if (found && isBehind) break;
    if (!part.fragment().charFormat().isAnchor()) found = part.fragment().charFormat();
  }
  CharacterFormat around = FromTextFormat(found.value_or(block.charFormat()));
  around.link.clear();
  return ToTextFormat(around);
}

}  // namespace

std::optional<QTextCharFormat> FormatBesideLink(const QTextCursor& caret, const QTextCharFormat& format) {
  if (!format.isAnchor()) return std::nullopt;
  const QTextDocument& document = *caret.document();
  const QString before = LinkBehind(document, caret.selectionStart() - 1);
  const bool isWithin = !before.isEmpty() && before == LinkBehind(document, caret.selectionEnd());
  if (isWithin) return std::nullopt;
  return FormatAround(document.findBlock(caret.selectionStart()), caret.selectionStart());
}

}  // namespace richtext
