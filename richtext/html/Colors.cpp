#include "richtext/html/Colors.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QtCore/QString>

namespace richtext::html {
namespace {

// A number of "rgb(255 0 0 / 50%)".
struct Amount {
  double number = 0;
  bool isPercent = false;

  double Of(double whole) const { return isPercent ? number * whole / 100 : number; }
};

std::optional<Amount> AmountOf(QStringView word) {
  Amount amount;
  amount.isPercent = word.endsWith(u'%');
  if (amount.isPercent) word.chop(1);
  if (word.endsWith(u"deg")) word.chop(3);
  bool isNumber = word == u"none";
  if (!isNumber) amount.number = word.toDouble(&isNumber);
  return isNumber ? std::optional(amount) : std::nullopt;
}

// Three or four of them; none where something else is among them.
std::vector<Amount> AmountsOf(QString words) {
  for (const char16_t mark : {u',', u'/'}) words.replace(QChar(mark), u' ');
  std::vector<Amount> amounts;
  for (const QString& word : words.simplified().split(u' ')) {
    const std::optional<Amount> amount = AmountOf(word);
    if (!amount || amounts.size() == 4) return {};
    amounts.push_back(*amount);
  }
  if (amounts.size() == 3) amounts.push_back({1});
  return amounts.size() == 4 ? amounts : std::vector<Amount>();
}

float Share(double number, double whole) {
  return static_cast<float>(std::clamp(number / whole, 0.0, 1.0));
}

QColor ColorOfFunction(QStringView name, const std::vector<Amount>& amounts) {
  const float alpha = Share(amounts[3].Of(1), 1);
  if (name == u"rgb" || name == u"rgba")
    return QColor::fromRgbF(Share(amounts[0].Of(255), 255), Share(amounts[1].Of(255), 255),
                            Share(amounts[2].Of(255), 255), alpha);
  if (name != u"hsl" && name != u"hsla") return {};
  const double turns = amounts[0].number / 360;
  return QColor::fromHslF(static_cast<float>(turns - std::floor(turns)), Share(amounts[1].number, 100),
                          Share(amounts[2].number, 100), alpha);
}

// "#rgb", "#rgba", "#rrggbb" and "#rrggbbaa"; the toolkit takes the last for another one.
QColor ColorOfDigits(QStringView digits) {
  if (digits.size() > 8) return {};
  QString parts;  // two digits for each
  for (const QChar digit : digits) parts += QString(digits.size() <= 4 ? 2 : 1, digit);
  if (parts.size() == 6) parts += QLatin1String("ff");
  bool isNumber = false;
  const uint number = parts.toUInt(&isNumber, 16);
  if (!isNumber || parts.size() != 8) return {};
  const auto part = [number](int shift) { return static_cast<int>(number >> shift & 255); };
  return QColor(part(24), part(16), part(8), part(0));
}

QColor ColorOf(QStringView word) {
  const qsizetype bracket = word.indexOf(u'(');
  if (word.startsWith(u'#')) return ColorOfDigits(word.mid(1));
  if (bracket < 0) return QColor::isValidColor(word) ? QColor(word.toString()) : QColor();
  const std::vector<Amount> amounts = AmountsOf(word.mid(bracket + 1, word.size() - bracket - 2).toString());
  return amounts.empty() ? QColor() : ColorOfFunction(word.left(bracket), amounts);
}

QColor OnWhite(const QColor& color) {
  const auto mixed = [&](int part) { return 255 - (255 - part) * color.alpha() / 255; };
  return QColor(mixed(color.red()), mixed(color.green()), mixed(color.blue()));
}

}  // namespace

qsizetype FirstWordOf(QStringView value) {
  int depth = 0;
  for (qsizetype at = 0; at < value.size(); ++at) {
    if (value[at] == u'(') ++depth;
    if (value[at] == u')') --depth;
    if (depth <= 0 && value[at].isSpace()) return at;
  }
  return value.size();
}

std::optional<QColor> FirstCssColor(QStringView value) {
  const QString lowered = value.toString().toLower();
  for (QStringView rest = QStringView(lowered).trimmed(); !rest.isEmpty();) {
    const qsizetype length = FirstWordOf(rest);
    const QColor color = ColorOf(rest.left(length));
    if (color.isValid()) return color.alpha() == 0 ? std::nullopt : std::optional(OnWhite(color));
    rest = rest.mid(length).trimmed();
  }
  return std::nullopt;
}

}  // namespace richtext::html
