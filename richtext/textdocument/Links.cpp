#include "richtext/textdocument/Links.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

// The link of the block's letter at a place; empty where there is no letter.
QString LinkAt(const QTextBlock& block, int place) {
  if (place < block.position() || place >= block.position() + block.length() - 1) return {};
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

std::optional<QTextCharFormat> FormatBesideLink(const QTextCursor& caret) {
  if (caret.hasSelection() || !caret.charFormat().isAnchor()) return std::nullopt;
  const QString before = LinkAt(caret.block(), caret.position() - 1);
  const bool isWithin = !before.isEmpty() && before == LinkAt(caret.block(), caret.position());
  if (isWithin) return std::nullopt;
  return FormatAround(caret.block(), caret.position());
}

}  // namespace richtext
