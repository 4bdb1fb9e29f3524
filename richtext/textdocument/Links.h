// Where the links of the text box begin and end for what is typed.
#pragma once

#include <optional>

#include <QtGui/QTextCharFormat>

class QTextCursor;

namespace richtext {

// The format of letters typed at the caret where they would else carry on a link: at its start and at its
// end, not within it. It is that of the text around the link. Nothing where the caret carries on no link.
std::optional<QTextCharFormat> FormatBesideLink(const QTextCursor& caret);

}  // namespace richtext
