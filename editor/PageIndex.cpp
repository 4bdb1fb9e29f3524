#include "editor/PageIndex.h"

#include <unordered_map>
#include <utility>

#include "platform/Dates.h"
#include "state/State.h"

namespace {

struct Entry {
  std::int32_t row;
  QDate day;
  std::string yearKey;
  std::string monthKey;
};

std::string Key(int number) {
  return std::string("d").append(std::to_string(number));
}

std::vector<Entry> EntriesOf(std::span<const JournalPage> pages) {
  std::vector<Entry> entries;
  entries.reserve(pages.size());
  for (std::size_t row = 1; row < pages.size(); ++row) {
    const QDate day = platform::CalendarDay(pages[row].PageDate);
    entries.push_back({static_cast<std::int32_t>(row), day, Key(day.year()), Key(day.month())});
  }
  return entries;
}

// The nodes, found by their keys in one step, so that the time taken grows with the pages and not faster.
class Tree {
 public:
  explicit Tree(std::vector<PageIndexNode>& nodes) : nodes_(nodes) {
    for (std::size_t place = 0; place < nodes_.size(); ++place) Note(static_cast<int>(place));
  }

  bool Has(const std::string& key) const { return places_.contains(key); }
  int PlaceOf(const std::string& key) const { return places_.at(key); }
  void Add(PageIndexNode node) {
    nodes_.push_back(std::move(node));
    Note(static_cast<int>(nodes_.size()) - 1);
  }

 private:
  void Note(int place) {
    const std::string& key = nodes_[static_cast<std::size_t>(place)].key;
    if (!key.empty()) places_.try_emplace(key, place);
  }

  std::vector<PageIndexNode>& nodes_;
  std::unordered_map<std::string, int> places_;
};

// Pages of one day follow one another; their text is written once.
class LongDates {
 public:
  const QString& Of(const Entry& entry) {
    if (entry.day != day_) text_ = platform::LongDate(platform::FromDateTime(entry.day.startOfDay(Qt::UTC)));
    day_ = entry.day;
    return text_;
  }

 private:
  QDate day_;
  QString text_;
};

}  // namespace

void AddToPageIndex(std::vector<PageIndexNode>& nodes, std::span<const JournalPage> pages) {
  const std::vector<Entry> entries = EntriesOf(pages);
  Tree tree(nodes);
  for (const Entry& entry : entries)
    if (!tree.Has(entry.yearKey)) tree.Add({QString::number(entry.day.year()), entry.yearKey, entry.row});
  for (const Entry& entry : entries)
    if (!tree.Has(entry.monthKey))
      tree.Add(
          {platform::MonthName(entry.day.month()), entry.monthKey, entry.row, tree.PlaceOf(entry.yearKey)});
  LongDates dates;
  for (const Entry& entry : entries) tree.Add({dates.Of(entry), {}, entry.row, tree.PlaceOf(entry.monthKey)});
}
