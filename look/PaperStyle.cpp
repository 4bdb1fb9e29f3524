#include "look/PaperStyle.h"

#include <algorithm>

#include <QtGui/QPainter>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include "look/ButtonFace.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/Theme.h"

namespace look {
namespace {

// In pixels.
constexpr int ScrollBarWidth = 11;
constexpr int SliderMargin = 3;
constexpr int LeastSlider = 28;
constexpr double Corner = 3;
constexpr QPoint GroupTitle(8, 3);
constexpr int ButtonMargin = 16;

void PaintFace(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool isLabel = button && qobject_cast<const QPushButton*>(widget);
  PaintButtonFace(painter,
                  {.place = option.rect,
                   .material = {},
                   .palette = option.palette,
                   .isEnabled = option.state.testFlag(QStyle::State_Enabled),
                   .isDown = bool(option.state & (QStyle::State_Sunken | QStyle::State_On)),
                   .isUnderMouse = option.state.testFlag(QStyle::State_MouseOver),
                   .isDefault = isLabel && button->features.testFlag(QStyleOptionButton::DefaultButton),
                   .isStitched = isLabel});
}

// Pressed into the surface: dark where the light does not reach, and light on the edge that catches it.
void PaintHollow(QPainter& painter, const QStyleOption& option) {
  const QRectF place = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  QColor edge = HairlineOn(option.palette.color(QPalette::Window)), depth = edge;
  depth.setAlpha(36);
  edge.setAlpha(150);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QColor(255, 255, 255, 190));
  painter.drawRoundedRect(place.adjusted(1, 1, 0, 0), Corner, Corner);
  painter.setPen(edge);
  painter.drawRoundedRect(place.adjusted(0, 0, -1, -1), Corner, Corner);
  painter.setPen(depth);
  painter.drawRoundedRect(place.adjusted(1, 1, 0, 0).intersected(place.adjusted(1, 1, -2, -2)), Corner,
                          Corner);
  painter.restore();
}

bool IsFlatUnderMouse(const QStyleOption* option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  return button && button->features.testFlag(QStyleOptionButton::Flat) &&
         (button->state & QStyle::State_MouseOver) && !(button->state & QStyle::State_Sunken);
}

// By its four edges: the toolkit's line lies half outside at scalings between the whole ones.
void PaintFrame(QPainter& painter, const QStyleOption& option) {
  const QColor edge = option.palette.color(QPalette::Window).darker(140).lighter(108);
  const QRect& place = option.rect;
  painter.fillRect(QRect(place.topLeft(), QSize(place.width(), 1)), edge);
  painter.fillRect(QRect(place.bottomLeft(), QSize(place.width(), 1)), edge);
  painter.fillRect(QRect(place.topLeft(), QSize(1, place.height())), edge);
  painter.fillRect(QRect(place.topRight(), QSize(1, place.height())), edge);
}

void PaintTip(QPainter& painter, const QStyleOption& option) {
  painter.fillRect(option.rect, option.palette.toolTipBase());
  painter.setPen(Walnut);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

// Where it lies, with the pixels that each lines up between.
QRect SliderOf(const QStyleOptionSlider& bar) {
  const bool isFlat = bar.orientation == Qt::Horizontal;
  const int length = isFlat ? bar.rect.width() : bar.rect.height();
  const qint64 range = qint64(bar.maximum) - bar.minimum;
  const auto share =
      range > 0 ? static_cast<int>(qint64(length) * bar.pageStep / (range + bar.pageStep)) : length;
  const int size = std::clamp(share, std::min(LeastSlider, length), length);
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    length - size, bar.upsideDown);
  return isFlat ? QRect(bar.rect.x() + start, bar.rect.y(), size, bar.rect.height())
                : QRect(bar.rect.x(), bar.rect.y() + start, bar.rect.width(), size);
}

// A strip of the paper that it stands beside, with a rod of walnut in it.
void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& bar) {
  painter.save();
  painter.fillRect(bar.rect, bar.palette.color(QPalette::Base));
  if (bar.maximum > bar.minimum) {
    QColor rod = Walnut;
    const bool isHeld =
        bar.state.testFlag(QStyle::State_Sunken) && bar.activeSubControls & QStyle::SC_ScrollBarSlider;
    rod.setAlpha(isHeld ? 230 : bar.state.testFlag(QStyle::State_MouseOver) ? 190 : 140);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rod);
    const int m = SliderMargin;
    const QRect place = SliderOf(bar).adjusted(m, m, -m, -m);
    const double round = std::min(place.width(), place.height()) / 2.0;
    painter.drawRoundedRect(place, round, round);
  }
  painter.restore();
}

}  // namespace

PaperStyle::PaperStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PaperStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (!widget->inherits("QTipLabel")) return;
  QFont font = widget->font();
  font.setFamilies({QStringLiteral("Verdana")});
  widget->setFont(font);
  widget->setPalette(PaperPalette());
}

void PaperStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      return PaintFace(*painter, *option, widget);
    case PE_PanelTipLabel:
      return PaintTip(*painter, *option);
    case PE_FrameGroupBox:
      return PaintHollow(*painter, *option);
    case PE_PanelScrollAreaCorner:
      return painter->fillRect(option->rect, option->palette.base());
    case PE_Frame:
      if (!widget || widget->isWindow()) break;
      return PaintFrame(*painter, *option);
    case PE_FrameDefaultButton:
      return;  // its edge is double
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// A flat button is a label under the mouse alone, and a bar grows in the same colour behind another window.
void PaperStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (element == CE_PushButtonBevel && IsFlatUnderMouse(option)) PaintFace(*painter, *option, widget);
  const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
  if (element != CE_ProgressBarContents || !bar)
    return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionProgressBar active(*bar);
  active.palette.setCurrentColorGroup(QPalette::Active);
  QProxyStyle::drawControl(element, &active, painter, widget);
}

void PaperStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if (control == CC_ScrollBar)
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
      return PaintScrollBar(*painter, *bar);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect PaperStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
  if (control == CC_GroupBox && part == SC_GroupBoxLabel)
    return QProxyStyle::subControlRect(control, option, part, widget).translated(GroupTitle);
  const auto* bar = control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr;
  if (!bar) return QProxyStyle::subControlRect(control, option, part, widget);
  const QRect slider = SliderOf(*bar);
  const bool isFlat = bar->orientation == Qt::Horizontal;
  QRect rest = bar->rect;
  switch (part) {
    case SC_ScrollBarSlider:
      return slider;
    case SC_ScrollBarGroove:
      return rest;
    case SC_ScrollBarSubPage:
      isFlat ? rest.setRight(slider.left() - 1) : rest.setBottom(slider.top() - 1);
      return rest;
    case SC_ScrollBarAddPage:
      isFlat ? rest.setLeft(slider.right() + 1) : rest.setTop(slider.bottom() + 1);
      return rest;
    default:
      return {};  // there are no arrows
  }
}

int PaperStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_ScrollBarExtent:
      return Grown(ScrollBarWidth);
    case PM_ButtonMargin:
      return ButtonMargin;
    case PM_ScrollBarSliderMin:
      return LeastSlider;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return Grown(QProxyStyle::pixelMetric(metric, option, widget));
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int PaperStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
  switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ScrollBar_Transient:
      return 0;
    case SH_ToolTipLabel_Opacity:
      return 255;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace look
