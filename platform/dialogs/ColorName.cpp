#include "platform/dialogs/ColorName.h"

#include <utility>

namespace platform {
namespace {

// By how light it is, of 1.
QString GreyName(float lightness) {
  constexpr std::pair<float, const char16_t*> greys[] = {
      {0.08f, u"black"}, {0.35f, u"dark grey"}, {0.65f, u"grey"}, {0.95f, u"light grey"}};
  for (const auto& [most, name] : greys)
    if (lightness < most) return QStringView(name).toString();
  return QStringLiteral("white");
}

// By its place on the circle, in degrees.
QString HueName(int hue) {
  constexpr std::pair<int, const char16_t*> hues[] = {{15, u"red"},     {45, u"orange"},     {70, u"yellow"},
                                                      {160, u"green"},  {195, u"turquoise"}, {255, u"blue"},
                                                      {290, u"violet"}, {345, u"pink"},      {360, u"red"}};
  for (const auto& [most, name] : hues)
    if (hue < most) return QStringView(name).toString();
  return {};
}

QString Name(const QColor& color) {
  const float lightness = color.lightnessF();
  const bool isGrey = color.hslSaturationF() < 0.12f || lightness < 0.04f || lightness > 0.97f;
  if (isGrey) return GreyName(lightness);
  const QString hue = HueName(color.hslHue());
  if (lightness < 0.4f) return hue == u"orange" ? QStringLiteral("brown") : QStringLiteral("dark ") + hue;
  return lightness > 0.75f ? QStringLiteral("light ") + hue : hue;
}

}  // namespace

QString ColorInWords(const QColor& color) {
  return Name(color) + QStringLiteral(", ") + color.name();
}

}  // namespace platform
