// Where the links of the text box begin and end for what is typed.
#pragma once

#include <optional>

#include <QtGui/QTextCharFormat>

class QTextCursor;

namespace richtext {

// The format of letters typed at a caret, or in the place of a selection, where `format` would carry on a
// link: at its start and at its end, not within it. It is that of the text around the link. Nothing where
// `format` carries on no link.
std::optional<QTextCharFormat> FormatBesideLink(const QTextCursor& caret, const QTextCharFormat& format);

}  // namespace richtext
