// The formats of imported HTML as those of a page.
#pragma once

#include <cstdint>

#include <QtGui/QTextBlock>
#include <QtGui/QTextTable>

#include "richtext/document/Document.h"

namespace richtext::html {

// Without background. What the markup leaves open is `caret`'s.
CharacterFormat FromHtmlFormat(const QTextCharFormat& format, const CharacterFormat& caret);
ParagraphFormat FromHtmlBlock(const QTextBlock& block);

// Without its right edge.
CellFormat FromHtmlCell(const QTextTableCell& cell, int row, const QTextTableFormat& table);

// Whether letters of this colour can be read on a dark ground alone.
bool IsLightInk(const QColor& color);
// Whether a background is hardly seen on white paper, as those are that web pages lay behind code.
bool IsLikePaper(const QColor& color);
// Whether the ground of a paragraph leaves dark letters legible, and is not plain white.
bool IsLightGround(const QColor& color);
// Whether a background is one that people mark words with.
bool IsMarkersColor(const QColor& color);

}  // namespace richtext::html
