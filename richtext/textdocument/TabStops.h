// The tab stops of a paragraph as the text box holds them, and what leads to them.
#pragma once

#include <cstdint>
#include <vector>

#include <QtGui/QTextBlockFormat>

#include "richtext/document/Document.h"

namespace richtext {

// Gives a paragraph its stops, by position, once its indents are set: the left one and that of its first
// line, as they are shown, in twips. A hanging indent is a stop by itself, which is not taken back.
void SetTabs(QTextBlockFormat& made, const std::vector<TabStop>& stops, std::int32_t left,
             std::int32_t first);
// Shows the last stop at the edge of a page of so many pixels where it is a right one beyond it: what ends
// there, as the numbers of a table of contents do, would stand in a line of its own.
void ShowLastTabWithin(QTextBlockFormat& format, double page);
std::vector<TabStop> TabsOf(const QTextBlockFormat& format);

// What fills the space of a tab that begins so many pixels from where its line does.
TabLeader LeaderBehind(const QTextBlockFormat& format, double from);

}  // namespace richtext
