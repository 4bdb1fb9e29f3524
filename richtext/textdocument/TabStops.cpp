#include "richtext/textdocument/TabStops.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QLocale>
#include <QtGui/QTextOption>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

constexpr char16_t StopOfIndent = 0xFFFF;  // marks the stop that a hanging indent makes by itself
constexpr double Rounding = 1.0 / 32;      // pixels; the toolkit counts in 64ths

std::int32_t Twips(double pixels) {
  return static_cast<std::int32_t>(std::lround(pixels * TwipsPerPixel));
}

QTextOption::TabType ToTabType(TabKind kind) {
  constexpr QTextOption::TabType Types[] = {QTextOption::LeftTab, QTextOption::RightTab,
                                            QTextOption::CenterTab, QTextOption::DelimiterTab};
  return Types[static_cast<std::size_t>(kind)];
}

TabKind FromTabType(QTextOption::TabType type) {
  switch (type) {
    case QTextOption::RightTab:
      return TabKind::Right;
    case QTextOption::CenterTab:
      return TabKind::Center;
    case QTextOption::DelimiterTab:
      return TabKind::Decimal;
    default:
      return TabKind::Left;
  }
}

QChar DecimalPoint() {
  const QString point = QLocale().decimalPoint();
  return point.isEmpty() ? QChar(u'.') : point.front();
}

bool IsOfIndent(const QTextOption::Tab& stop) {
  return stop.delimiter == QChar(StopOfIndent);
}

void SetLeaders(QTextBlockFormat& made, const std::vector<TabStop>& stops) {
  QByteArray leaders;
  for (const TabStop& stop : stops) leaders += static_cast<char>(stop.leader);
  if (leaders.count('\0') < leaders.size()) made.setProperty(LeadersOfTabs, leaders);
}

TabLeader LeaderAt(const QByteArray& leaders, std::size_t stop) {
  const auto at = static_cast<qsizetype>(stop);
  return at < leaders.size() ? static_cast<TabLeader>(leaders.at(at)) : TabLeader::None;
}

}  // namespace

// A page counts from the edge of the text, the toolkit from where the first line begins.
void SetTabs(QTextBlockFormat& made, const std::vector<TabStop>& stops, std::int32_t left,
             std::int32_t first) {
  QList<QTextOption::Tab> tabs;
  for (const TabStop& stop : stops)
    tabs.append({(stop.position - left - first) / TwipsPerPixel, ToTabType(stop.kind), DecimalPoint()});
  if (first < 0) tabs.append({-first / TwipsPerPixel, QTextOption::LeftTab, QChar(StopOfIndent)});
  std::stable_sort(tabs.begin(), tabs.end(),
                   [](const auto& one, const auto& other) { return one.position < other.position; });
  if (!tabs.isEmpty()) made.setTabPositions(tabs);
  SetLeaders(made, stops);
}

void ShowLastTabWithin(QTextBlockFormat& format, double page) {
  QList<QTextOption::Tab> tabs = format.tabPositions();
  const double begin = format.leftMargin() + format.textIndent();
  const double edge = std::floor(page - format.rightMargin() - begin);
  const auto isInFront = [&](const QTextOption::Tab& tab) { return tab.position < edge; };
  if (tabs.isEmpty() || tabs.last().type != QTextOption::RightTab || isInFront(tabs.last())) return;
  if (edge <= 0 || !std::all_of(tabs.cbegin(), tabs.cend() - 1, isInFront)) return;
  format.setProperty(LastTabOfDocument, Twips(tabs.last().position + begin));
  tabs.last().position = edge;
  format.setTabPositions(tabs);
}

std::vector<TabStop> TabsOf(const QTextBlockFormat& format) {
  std::vector<TabStop> stops;
  const std::int32_t begin = Twips(format.leftMargin()) + Twips(format.textIndent());
  const QByteArray leaders = format.property(LeadersOfTabs).toByteArray();
  for (const QTextOption::Tab& tab : format.tabPositions())
    if (!IsOfIndent(tab))
      stops.push_back({Twips(tab.position) + begin, FromTabType(tab.type), LeaderAt(leaders, stops.size())});
  if (!stops.empty() && format.hasProperty(LastTabOfDocument))
    stops.back().position = format.intProperty(LastTabOfDocument);
  return stops;
}

TabLeader LeaderBehind(const QTextBlockFormat& format, double from) {
  std::size_t stop = 0;
  for (const QTextOption::Tab& tab : format.tabPositions()) {
    if (tab.position > from + Rounding)
      return IsOfIndent(tab) ? TabLeader::None : LeaderAt(format.property(LeadersOfTabs).toByteArray(), stop);
    if (!IsOfIndent(tab)) ++stop;
  }
  return TabLeader::None;
}

}  // namespace richtext
