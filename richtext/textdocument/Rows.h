// Rows of tables without the toolkit's tables, which are for the many and the long (RowTables.h): the cells
// of such a row follow each other in one paragraph, each ended by a tab, and stand in columns where their
// texts have room there. What keys do to rows of both kinds is here.
//
// What the row is, its paragraphs' formats tell; what the paragraph is that a cell ends with, the format of
// its tab. Such a paragraph goes on in the next one where it does not end with the tab of a cell. So a person
// may do to a row what she may do to any paragraph, and what is taken back is a row in any case.
#pragma once

#include <QtGui/QTextBlockFormat>
#include <QtGui/QTextCharFormat>

#include "richtext/document/Document.h"

class QTextBlock;
class QTextCursor;

namespace richtext {

// A paragraph of a row. Neighbouring rows are odd and even in turn.
QTextBlockFormat InRow(QTextBlockFormat format, const RowFormat& row, bool isOdd);
// A paragraph of the same row as another one.
QTextBlockFormat InSameRow(QTextBlockFormat format, const QTextBlockFormat& other);
// A paragraph of cells alone: their texts begin where the cells do.
QTextBlockFormat InColumns(QTextBlockFormat format, const RowFormat& row);
bool IsInRow(const QTextBlockFormat& format);
bool IsOddRow(const QTextBlockFormat& format);
// Whether the row of a block goes on in the next one, unless it ends with it.
bool MayGoOn(const QTextBlock& block);
RowFormat RowOf(const QTextBlockFormat& format);

// The tab at the end of a cell. `mark` is the format of its last paragraph's end.
QTextCharFormat CellEnd(QTextCharFormat mark, const QTextBlockFormat& paragraph, bool endsRow);
bool IsCellEnd(const QTextCharFormat& format);
bool EndsRow(const QTextCharFormat& cellEnd);
// What a paragraph is that ends with such a tab, or that is shown in columns.
QTextBlockFormat ParagraphOfCell(const QTextFormat& format);
// Of letters, which may have taken it on.
QTextCharFormat WithoutCellEnd(QTextCharFormat format);

// Whether a cell or a row would be lost with the sign at a position: the tab of a cell, or the end of a
// paragraph beside a row.
bool IsBorder(const QTextDocument& document, int position);
// Moves a cursor that stands in a row to the next cell's text; behind the last one makes a row like this one.
// False, and nothing done, where it stands in none.
bool GoToNextCell(QTextCursor& cursor);

}  // namespace richtext
