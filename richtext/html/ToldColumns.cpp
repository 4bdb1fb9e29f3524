#include "richtext/html/ToldColumns.h"

#include <algorithm>
#include <utility>

#include "richtext/document/Limits.h"

namespace richtext::html {
namespace {

QString ValueOf(const Tag& tag, QStringView key) {
  QString value;
  for (const Attribute& attribute : tag.attributes)
    if (attribute.key == key) value = attribute.value;
  return value;
}

std::size_t SpanOf(const Tag& tag, QStringView key) {
  return static_cast<std::size_t>(std::clamp(ValueOf(tag, key).toInt(), 1, static_cast<int>(MaxCells)));
}

}  // namespace

void ToldColumns::TakeColumn(const Tag& tag) {
  std::vector<QString>& columns = open_.back().columns;
  const std::size_t count = std::min(SpanOf(tag, u"span"), MaxCells - std::min(columns.size(), MaxCells));
  columns.insert(columns.end(), count, ValueOf(tag, u"width"));
}

void ToldColumns::BeginRow() {
  open_.back().next = 0;
  if (open_.back().isTall) open_.back().columns.clear();
}

void ToldColumns::TakeCell(Tag& tag) {
  Open& table = open_.back();
  table.isTall = table.isTall || SpanOf(tag, u"rowspan") > 1;
  const std::size_t span = SpanOf(tag, u"colspan");
  const std::size_t first = std::exchange(table.next, table.next + span);
  if (span > 1 || first >= table.columns.size()) return;
  const QString width = std::exchange(table.columns[first], {});
  if (!width.isEmpty() && ValueOf(tag, u"width").isEmpty())
    tag.attributes.push_back({QStringLiteral("width"), width});
}

void ToldColumns::Take(Tag& tag) {
  if (tag.name == u"table") {
    if (!tag.closes) open_.emplace_back();
    if (tag.closes && !open_.empty()) open_.pop_back();
  }
  if (tag.closes || open_.empty()) return;
  if (tag.name == u"col") TakeColumn(tag);
  if (tag.name == u"tr") BeginRow();
  if (tag.name == u"td" || tag.name == u"th") TakeCell(tag);
}

}  // namespace richtext::html
