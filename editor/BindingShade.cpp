#include "editor/BindingShade.h"

#include <initializer_list>
#include <utility>

#include <QtGui/QLinearGradient>

#include "look/Growth.h"

namespace {

// In pixels, as the picture's drawing has them (assets/drawing/draw_binding.py).
constexpr int Spine = 51;
constexpr int Step = 125;
constexpr int Band = 15;
constexpr int FirstBand = (Step - Band) / 2;

constexpr int BelowBand = 9;  // where its shadow ends
constexpr int Gutter = 14;

// Below zero so much of walnut, above so much of white.
QColor Light(double strength) {
  QColor color = strength < 0 ? QColor(0x48, 0x33, 0x21) : QColor(0xff, 0xff, 0xff);
  color.setAlphaF(static_cast<float>(qAbs(strength)));
  return color;
}

using Stops = std::initializer_list<std::pair<double, double>>;  // a place in pixels, and its light

void Fall(QPainter& painter, const QRectF& place, Qt::Orientation along, Stops stops) {
  const bool isAcross = along == Qt::Horizontal;
  const double length = isAcross ? place.width() : place.height();
  QLinearGradient light(place.topLeft(), isAcross ? place.topRight() : place.bottomLeft());
  for (const auto& [at, strength] : stops) light.setColorAt(at / length, Light(strength));
  painter.fillRect(place, light);
}

// Lit from the left, and deepest in the hinge.
void Round(QPainter& painter, const QRect& binding) {
  Fall(painter, {0.0, 0.0, 16.0, double(binding.height())}, Qt::Horizontal,
       {{0, -0.3}, {5, -0.18}, {11, -0.06}, {16, 0}});
  Fall(painter, {12.0, 0.0, 18.0, double(binding.height())}, Qt::Horizontal, {{0, 0}, {9, 0.16}, {18, 0}});
  Fall(painter, {24.0, 0.0, double(binding.width() - 24), double(binding.height())}, Qt::Horizontal,
       {{0, 0},
        {14, -0.14},
        {Spine - 24, -0.34},
        {Spine - 24 + 6, -0.2},
        {double(binding.width() - 24), -0.02}});
}

void RaisedBand(QPainter& painter, int top) {
  Fall(painter, {0, double(top), Spine, Band}, Qt::Vertical, {{0, 0}, {4.5, 0.09}, {9, 0}, {Band, -0.15}});
  Fall(painter, {0, double(top + Band), Spine, BelowBand}, Qt::Vertical, {{0, -0.15}, {BelowBand, 0}});
}

}  // namespace

void PaintBindingShade(QPainter& painter, const QRect& binding) {
  painter.save();
  painter.setClipRect(binding, Qt::IntersectClip);
  painter.translate(binding.topLeft());
  Round(painter, binding);
  for (int top = FirstBand; top < binding.height(); top += Step) RaisedBand(painter, top);
  painter.fillRect(QRect(binding.width() - 1, 0, 1, binding.height()), Light(-0.3));
  painter.restore();
}

void PaintGutterShade(QPainter& painter, const QRect& page) {
  painter.save();
  painter.translate(page.topLeft());
  painter.scale(look::Growth(), 1);
  Fall(painter, QRectF(0, 0, Gutter, page.height()), Qt::Horizontal, {{0, -0.16}, {5, -0.07}, {Gutter, 0}});
  painter.restore();
}
