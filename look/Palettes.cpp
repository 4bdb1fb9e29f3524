#include "look/Palettes.h"

#include "look/Theme.h"

namespace look {
namespace {

constexpr QColor DeepInkBlue(0x2c, 0x3a, 0x63);
constexpr QColor Plum(0x50, 0x30, 0x4c);
constexpr float DisabledShare = 0.72f;  // of ink in what cannot be used: four times as dark as its ground

// Paper that is written on, and all that is drawn beside it.
QPalette PaletteOf(const QColor& ground, const QColor& button, const QColor& chosen) {
  QPalette palette(button, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Ink);
    palette.setColor(QPalette::Disabled, role, Mixed(Ink, ground, DisabledShare));
  }
  palette.setColor(QPalette::PlaceholderText, Mixed(Ink, Paper, DisabledShare));
  palette.setColor(QPalette::Base, Paper);
  palette.setColor(QPalette::Disabled, QPalette::Base, Mixed(Paper, ground, 0.4f));
  palette.setColor(QPalette::AlternateBase, Mixed(Paper, ground, 0.6f));
  palette.setColor(QPalette::Highlight, chosen);
  palette.setColor(QPalette::HighlightedText, Paper);
  palette.setColor(QPalette::Inactive, QPalette::Highlight, Mixed(Ink, Paper, DisabledShare));
  palette.setColor(QPalette::Link, DeepInkBlue);
  palette.setColor(QPalette::LinkVisited, Plum);
  palette.setColor(QPalette::ToolTipBase, Paper);
  palette.setColor(QPalette::ToolTipText, Ink);
  return palette;
}

}  // namespace

QColor Mixed(const QColor& first, const QColor& second, float share) {
  const auto mix = [share](float a, float b) { return share * a + (1 - share) * b; };
  return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                          mix(first.blueF(), second.blueF()));
}

QPalette PaperPalette() {
  return PaletteOf(Board, Mixed(Paper, Board, 0.4f), InkBlue);
}

QPalette PaletteOn(const QColor& surface) {
  return PaletteOf(surface, surface, HairlineOn(surface));
}

}  // namespace look
