// The rows of tables as the text box shows them: each is a table of the toolkit's that has this one row. So
// rows of any lengths follow each other, none is as long as the longest, and an edit lays out one of them
// alone.
//
// The toolkit has a paragraph on either side of a table. The one behind a row is none of the page's while it
// is empty; so is an empty first one before a row that was filled in as the first. Each cell begins behind a
// sign that ends the paragraph before it, and another sign ends the row: they stand where a page's plain text
// has the ends of paragraphs and the tabs of cells. What the row is, the table's format tells, and
// RowPainter.h draws its borders.
#pragma once

#include <QtGui/QTextTable>

#include "richtext/document/Document.h"

class QTextBlock;
class QTextCursor;

namespace richtext {

constexpr char16_t CellSign = 0xFDD0;
constexpr char16_t RowEndSign = 0xFDD1;

// More are shown in columns (Rows.h): the toolkit looks at each table for each one that comes in.
constexpr int MostTables = 1000;
constexpr std::size_t MostCells = 10'000;  // of those that come in at once
// UTF-16 units of a row that is filled in as a table; a piece of paper holds it.
constexpr std::size_t LongestTable = 16'000;

constexpr double PaddingOfCell = 3;  // pixels, on each side at most

// Moves a cursor to the next cell; behind the last one makes a row like this one.
void GoToNextCell(const QTextTable& table, QTextCursor& cursor);
// Puts a row at a cursor that selects nothing and stands in no table. The cursor goes into its first cell.
// A row that is nearly as wide as `page`, in pixels, is as wide as the page is, whatever becomes of that.
QTextTable* InsertRow(QTextCursor& cursor, const RowFormat& row, double page);
RowFormat RowOf(const QTextTable& table);

// The row at a position; none where there is text. And the one that follows or precedes another with nothing
// between the two.
QTextTable* TableAt(const QTextDocument& document, int position);
QTextTable* RowBehind(const QTextTable& table);
QTextTable* RowBefore(const QTextTable& table);
bool HasTables(const QTextDocument& document);
// Of the cell at a position: where its text begins and ends.
int BeginOfCell(const QTextTable& table, int cell);
int EndOfCell(const QTextTable& table, int cell);
int CellAt(const QTextTable& table, int position);

// An empty paragraph beside a row that is none of the page's.
bool IsGap(const QTextBlock& block);
// The format that makes an empty first paragraph such a one.
QTextBlockFormat GapFormat();

// What a selection holds: all of the cells of a row where it goes over more than one.
struct Held {
  int from, to;
};
Held HeldBy(const QTextCursor& selection);

// The end of a cell's first paragraph, with the place of its text in the row.
QTextCharFormat WithPlace(QTextCharFormat mark, PlaceInCell place);
PlaceInCell PlaceOf(const QTextBlock& paragraph);
// Of letters, which may have taken the format of a cell's sign.
QTextCharFormat WithoutCell(QTextCharFormat format);

// In pixels; of a document that nobody has laid out yet, what it is told to be, or that of a narrow window.
double PageWidth(const QTextDocument& document);
// Likewise between the margins and beside a scroll bar, whether there is one or not.
double RoomOnPage(const QTextDocument& document);
// In pixels, of what is free for the text of the cell at a position, of a page so wide.
double RoomInCell(const QTextTable& table, int position, double page);

}  // namespace richtext
