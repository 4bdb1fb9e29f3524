#include "richtext/html/Lists.h"

#include <algorithm>

#include <QtCore/QRegularExpression>
#include <QtGui/QTextList>

namespace richtext::html {

// The toolkit passes over `start`, but keeps a text that stands before the numbers.
QString WithListStarts(QString html) {
  static const QRegularExpression start(
      QStringLiteral("<ol\\b(?=[^<>]{0,500}\\bstart\\s*=\\s*[\"']?\\s*(\\d{1,5})\\b)"),
      QRegularExpression::CaseInsensitiveOption);
  return html.replace(start, QStringLiteral("<ol style=\"-qt-list-number-prefix:'\\1'\""));
}

std::int32_t Lists::NextOf(const QTextList& list) {
  const auto [found, isNew] = next_.try_emplace(&list, 1);
  if (isNew) {
    bool isTold = false;
    const int told = list.format().numberPrefix().toInt(&isTold);
    if (isTold) found->second = std::clamp(told, 0, MaxListNumber);
  }
  const std::int32_t next = found->second;
  found->second = std::min(next + 1, MaxListNumber);
  return next;
}

// `before` are the items met last of the same level.
void Lists::SetStart(ListFormat& list, std::int32_t number, const Items& before) {
  list.start = before.list.start;
  list.twin = before.list.twin;
  if (before.list == list && before.next == number) return;
  list.start = number;
  list.twin = false;
  list.twin = before.list == list;
}

void Lists::Number(const QTextBlock& block, ListFormat& list) {
  if (list.kind == ListKind::None || block.textList() == nullptr) {
    open_ = {};
    return;
  }
  const auto level = static_cast<std::size_t>(list.level);
  for (std::size_t deeper = level + 1; deeper < open_.size(); ++deeper) open_[deeper] = {};
  const std::int32_t number = NextOf(*block.textList());
  Items& items = open_[level];
  if (list.kind != ListKind::Bullet) SetStart(list, number, items);
  items = {list, number + 1};
}

}  // namespace richtext::html
