// How controls are drawn, on every desktop alike: buttons as labels of paper, scroll bars of walnut, tool
// tips with a hairline; the rest as the toolkit draws it from the palette.
#pragma once

#include <QtWidgets/QProxyStyle>

namespace look {

class PaperStyle : public QProxyStyle {
  Q_OBJECT

 public:
  PaperStyle();

  using QProxyStyle::polish;
  // A tool tip has its colours and its font from the desktop, also from one that has just changed.
  void polish(QWidget* widget) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

}  // namespace look
