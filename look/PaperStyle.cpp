#include "look/PaperStyle.h"

#include <algorithm>

#include <QtGui/QPainter>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include "look/ButtonFace.h"
#include "look/FocusLine.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "look/Theme.h"

namespace look {
namespace {

// In pixels.
constexpr int MenuMark = 12;  // its width, with the air around it
constexpr int ScrollBarWidth = 11;
constexpr int SliderMargin = 3;
constexpr int LeastSlider = 28;
constexpr double Corner = 3;
constexpr QPoint GroupTitle(8, 3);
constexpr int ButtonMargin = 16;

bool IsFlat(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return button && button->features.testFlag(QStyleOptionButton::Flat);
}

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
                   .isStitched = isLabel,
                   .hasFocus = isLabel && !IsFlat(option) && option.state.testFlag(QStyle::State_HasFocus)});
}

// Pressed into the surface: dark where the light does not reach, and light on the edge that catches it.
void PaintHollow(QPainter& painter, const QStyleOption& option) {
  const QRectF place = WithinEdge(painter, option.rect);
  const double line = Hairline(painter);
  QColor edge = HairlineOn(option.palette.color(QPalette::Window)), depth = edge;
  depth.setAlpha(36);
  edge.setAlpha(150);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(255, 255, 255, 190), line));
  painter.drawRoundedRect(place.adjusted(line, line, 0, 0), Corner, Corner);
  painter.setPen(QPen(edge, line));
  painter.drawRoundedRect(place.adjusted(0, 0, -line, -line), Corner, Corner);
  painter.setPen(QPen(depth, line));
  painter.drawRoundedRect(place.adjusted(line, line, -2 * line, -2 * line), Corner, Corner);
  painter.restore();
}

bool IsFlatAndRaised(const QStyleOption& option) {
  return IsFlat(option) && (option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus)) &&
         !(option.state & QStyle::State_Sunken);
}

// Other buttons have it in the place of their stitches; a flat one is filled by its picture.
void PaintFocusOfButton(QPainter& painter, const QPushButton& button) {
  constexpr int inset = 2;
  if (button.isFlat())
    DrawFocusLine(painter, button.rect().adjusted(inset, inset, -inset, -inset),
                  button.palette().color(QPalette::ButtonText));
}

// Close around what is framed, so that no seam is left between where a pixel of the design is more than the
// line.
void PaintFrame(QPainter& painter, const QStyleOption& option) {
  const double line = Hairline(painter);
  const QRectF framed = OnPixels(painter, option.rect.adjusted(1, 1, -1, -1));
  FrameWithHairline(painter, framed.adjusted(-line, -line, line, line),
                    option.palette.color(QPalette::Window).darker(140).lighter(108));
}

void PaintTip(QPainter& painter, const QStyleOption& option) {
  painter.fillRect(option.rect, option.palette.toolTipBase());
  FrameWithHairline(painter, option.rect, Walnut);
}

// Beside the words and as high as their small letters: the toolkit's own, in the corner below them, reads as
// a comma.
void PaintMenuMark(QPainter& painter, const QStyleOption& option) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(option.palette.color(QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const double half = option.fontMetrics.xHeight() / 2.0;
  const QPointF tip(option.rect.right() - MenuMark / 2.0, option.rect.center().y() + half / 2 + 1);
  painter.drawPolyline(QPolygonF({tip - QPointF(half, half), tip, tip + QPointF(half, -half)}));
  painter.restore();
}

// By pressing it, and with nothing else that it does.
bool LeadsToAMenu(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
  return button && button->features.testFlag(QStyleOptionToolButton::HasMenu) &&
         !button->features.testFlag(QStyleOptionToolButton::MenuButtonPopup) && !button->text.isEmpty();
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
    case PE_FrameFocusRect:
      if (const auto* button = qobject_cast<const QPushButton*>(widget))
        return PaintFocusOfButton(*painter, *button);
      break;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// A flat button is a label under the mouse or the keyboard alone, and a bar grows in the same colour behind
// another window.
void PaperStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (element == CE_PushButtonBevel && IsFlatAndRaised(*option)) PaintFace(*painter, *option, widget);
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
  if (!LeadsToAMenu(*option)) return QProxyStyle::drawComplexControl(control, option, painter, widget);
  QStyleOptionToolButton plain(*qstyleoption_cast<const QStyleOptionToolButton*>(option));
  plain.features &= ~QStyleOptionToolButton::HasMenu;
  QProxyStyle::drawComplexControl(control, &plain, painter, widget);
  PaintMenuMark(*painter, *option);
}

// Words that lead to a menu stand in the middle, with room for the mark behind them.
QSize PaperStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  return type == CT_ToolButton && option && LeadsToAMenu(*option) ? size + QSize(2 * MenuMark, 0) : size;
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
