#include "richtext/html/Tables.h"

#include <algorithm>

namespace richtext::html {
namespace {

constexpr int MostSpan = 999'999'999;

// Of several ones the last, as for the toolkit; what is no number is 1. The tag is left to say the same.
qint64 TakeSpan(Tag& tag, QStringView key) {
  int span = 1;
  for (Attribute& attribute : tag.attributes) {
    if (attribute.key != key) continue;
    span = std::clamp(attribute.value.toInt(), 1, MostSpan);
    attribute.value = QString::number(span);
  }
  return span;
}

}  // namespace

bool TableCells::Take(Tag& tag) {
  if (tag.name == u"table") {
    if (!tag.closes)
      Begin();
    else if (open_ > 0)
      --open_;
  }
  if (tag.closes) return true;
  if (tag.name == u"tr") return TakeRow();
  const bool isCell = tag.name == u"td" || tag.name == u"th";
  return !isCell || TakeCell(TakeSpan(tag, u"colspan"), TakeSpan(tag, u"rowspan"));
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

}  // namespace richtext::html
