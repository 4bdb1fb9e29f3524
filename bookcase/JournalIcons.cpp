#include "bookcase/JournalIcons.h"

#include <map>

#include "look/Emblem.h"

namespace {

constexpr int IconSize = 32;

// A hue of its own for each index; neighbours lie far apart on the circle.
QColor ClothOf(int index) {
  constexpr int goldenAngle = 137;
  const int hue = (215 + (index - 1) * goldenAngle) % 360;
  return QColor::fromHsl(hue, 70 + 25 * (index % 3), 105 + 18 * (index % 4));
}

}  // namespace

QIcon JournalIcon(int index) {
  if (index < 1 || index > JournalIconCount) index = 1;
  // Never destroyed: pictures must not outlive the application object, and statics do.
  static auto* const icons = new std::map<int, QIcon>;
  QIcon& icon = (*icons)[index];
  if (icon.isNull()) icon = QIcon(look::ClosedBook(IconSize, ClothOf(index)));
  return icon;
}
