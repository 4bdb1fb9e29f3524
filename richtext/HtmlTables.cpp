#include "richtext/HtmlTables.h"

#include <algorithm>

#include <QtCore/QRegularExpression>

namespace richtext {
namespace {

// Of several ones all together, whichever counts.
qint64 SpanIn(const QString& tag, const QRegularExpression& span) {
  qint64 together = 0;
  for (auto found = span.globalMatch(tag); found.hasNext();) together += found.next().capturedView(1).toInt();
  return std::max<qint64>(together, 1);
}

QRegularExpression Span(const char* which) {
  return QRegularExpression(QLatin1String(which) + QLatin1String("span\\s*=\\s*[\"']?[\\s+]*(\\d{1,9})"),
                            QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

bool TableCells::Take(const QString& name, bool closes, const QString& tag) {
  static const QRegularExpression colSpan = Span("col");
  static const QRegularExpression rowSpan = Span("row");
  if (name == u"table") {
    if (!closes)
      Begin();
    else if (open_ > 0)
      --open_;
  }
  if (closes) return true;
  if (name == u"tr") return TakeRow();
  return (name != u"td" && name != u"th") || TakeCell(SpanIn(tag, colSpan), SpanIn(tag, rowSpan));
}

void TableCells::Begin() {
  isNested_ = open_++ > 0;
  if (isNested_) return;
  left_ -= rows_ * columns_;
  rows_ = columns_ = width_ = carried_ = 0;
  ends_.clear();
}

// A row or cell outside of a table begins one.
bool TableCells::TakeRow() {
  if (!Fits(rows_ + 1, columns_)) return false;
  open_ = std::max(open_, 1);
  ++rows_;
  for (; !ends_.empty() && ends_.begin()->first < rows_; ends_.erase(ends_.begin()))
    carried_ -= ends_.begin()->second;
  if (!isNested_) width_ = carried_;
  return true;
}

bool TableCells::TakeCell(qint64 columns, qint64 rows) {
  if (!Fits(std::max<qint64>(rows_, 1), std::max(columns_, width_ + columns))) return false;
  open_ = std::max(open_, 1);
  rows_ = std::max<qint64>(rows_, 1);
  width_ += columns;
  columns_ = std::max(columns_, width_);
  carried_ += columns;
  ends_[rows_ + rows - 1] += columns;
  return true;
}

}  // namespace richtext
