#include "richtext/html/Lengths.h"

#include <algorithm>
#include <cmath>

namespace richtext::html {

// The units of CSS Values and Units, 5 and 6.
std::optional<double> PixelsOf(QStringView word) {
  constexpr double LetterSize = 16;
  constexpr double Inch = 96;
  constexpr double Most = 1e5;
  constexpr struct {
    QStringView unit;
    double pixels;
  } Units[] = {{u"px", 1},
               {u"pt", Inch / 72},
               {u"pc", Inch / 6},
               {u"rem", LetterSize},
               {u"em", LetterSize},
               {u"ex", LetterSize / 2},
               {u"ch", LetterSize / 2},
               {u"in", Inch},
               {u"cm", Inch / 2.54},
               {u"mm", Inch / 25.4},
               {u"", 1}};
  for (const auto& [unit, pixels] : Units) {
    bool isNumber = false;
    const double number = word.endsWith(unit) ? word.chopped(unit.size()).toDouble(&isNumber) : 0;
    if (isNumber) return std::isfinite(number) ? std::clamp(number * pixels, -Most, Most) : 0;
  }
  return std::nullopt;
}

}  // namespace richtext::html
