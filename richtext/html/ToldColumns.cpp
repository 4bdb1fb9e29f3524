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

void ToldColumns::BeginGroup(const Tag& tag) {
  Open& table = open_.back();
  table.group = table.columns.size();
  if (!ValueOf(tag, u"width").isEmpty()) AddColumns(tag);
}

// What the group tells of its columns goes where they tell of themselves.
void ToldColumns::TakeColumn(const Tag& tag) {
  Open& table = open_.back();
  if (table.group) table.columns.resize(*std::exchange(table.group, std::nullopt));
  AddColumns(tag);
}

void ToldColumns::AddColumns(const Tag& tag) {
  std::vector<QString>& columns = open_.back().columns;
  const std::size_t count = std::min(SpanOf(tag, u"span"), MaxCells - std::min(columns.size(), MaxCells));
  columns.insert(columns.end(), count, ValueOf(tag, u"width"));
}

void ToldColumns::BeginRow() {
  open_.back().next = 0;
  for (int& rows : open_.back().rows) rows = std::max(rows - 1, 0);
}

// Beside those that go on from rows above.
void ToldColumns::TakeCell(Tag& tag) {
  Open& table = open_.back();
  while (table.next < table.rows.size() && table.rows[table.next] > 0) ++table.next;
  const std::size_t span = SpanOf(tag, u"colspan");
  const std::size_t first = std::exchange(table.next, std::min(table.next + span, MaxCells));
  table.rows.resize(std::max(table.rows.size(), table.next));
  for (std::size_t i = first; i < table.next; ++i)
    table.rows[i] = std::max(ValueOf(tag, u"rowspan").toInt(), 1);
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
  if (open_.empty()) return;
  if (tag.closes && tag.name == u"colgroup") open_.back().group.reset();
  if (tag.closes) return;
  if (tag.name == u"colgroup") BeginGroup(tag);
  if (tag.name == u"col") TakeColumn(tag);
  if (tag.name == u"tr") BeginRow();
  if (tag.name == u"td" || tag.name == u"th") TakeCell(tag);
}

}  // namespace richtext::html
