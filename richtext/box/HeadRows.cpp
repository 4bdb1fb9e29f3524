#include "richtext/box/HeadRows.h"

#include "richtext/box/PrintedLabels.h"
#include "richtext/textdocument/RowPainter.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

const QTextTable& FirstRow(const QTextTable& row) {
  const QTextTable* first = &row;
  while (const QTextTable* const before = RowBefore(*first)) first = before;
  return *first;
}

}  // namespace

const HeadOfTable* HeadRows::Of(const QTextTable& row) {
  const QTextTable& first = FirstRow(row);
  const QTextTable* last = nullptr;
  for (const QTextTable* at = &first; at && RowOf(*at).isHead; at = RowBehind(*at)) {
    if (at == &row) return nullptr;
    last = at;
  }
  if (!last) return nullptr;
  if (from_ != first.firstPosition()) LayOut(first.firstPosition(), last->lastPosition());
  return head_.lines.empty() ? nullptr : &head_;
}

void HeadRows::LayOut(int from, int to) {
  from_ = from;
  head_ = {std::make_unique<PrintedPiece>(source_, from - 1, to + 1, sheet_), {}, 0};
  if (!head_.piece->CanBeLaidOut()) return;
  head_.piece->LayOut();
  head_.lines = head_.piece->Lines();
  std::erase_if(head_.lines,
                [](const PrintedLine& line) { return !line.row; });  // the toolkit's own behind it
  if (head_.lines.empty()) return;
  PrintedLabels(source_, from).Tell(head_.lines);
  head_.height = PlaceOf(*head_.lines.back().row).bottom - PlaceOf(*head_.lines.front().row).top;
}

}  // namespace richtext
