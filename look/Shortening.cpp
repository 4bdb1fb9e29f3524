#include "look/Shortening.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolTip>

#include "look/PaperStyle.h"

namespace look {
namespace {

constexpr int FrameWidth = 2;  // pixels of a button's edge

class PlacedStyle : public PaperStyle {
 public:
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override {
    if (flags & Qt::TextWordWrap || text.contains(u'\n'))
      return PaperStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    const QFont before = painter->font();
    painter->setFont(FittingFont(before, text, rect.width()));
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width(), flags);
    PaperStyle::drawItemText(painter, rect, flags, palette, enabled, shown, role);
    painter->setFont(before);
  }
  // The margins of a button that chooses its own size are room for the text of one that does not; and the
  // whole place of a control takes the click.
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override {
    switch (element) {
      case SE_PushButtonContents:
        return option->rect.adjusted(FrameWidth, 0, -FrameWidth, 0);
      case SE_CheckBoxClickRect:
      case SE_RadioButtonClickRect:
        return option->rect;
      default:
        return PaperStyle::subElementRect(element, option, widget);
    }
  }
};

class WholeTextTip : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    auto& control = *static_cast<QWidget*>(watched);
    const QString text = control.toolTip().isEmpty() ? OutgrownText(control) : QString();
    if (text.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()), &control);
    return true;
  }
};

struct Shortening {
  QStyle* style = new PlacedStyle;
  QObject* tip = new WholeTextTip(qApp);
};

// Made once, and gone with the application object.
const Shortening& TheShortening() {
  static const Shortening shortening = [] {
    Shortening made;
    made.style->setParent(qApp);
    return made;
  }();
  return shortening;
}

QRect RoomIn(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  const auto part = qobject_cast<const QCheckBox*>(&button)      ? QStyle::SE_CheckBoxContents
                    : qobject_cast<const QRadioButton*>(&button) ? QStyle::SE_RadioButtonContents
                                                                 : QStyle::SE_PushButtonContents;
  return button.style()->subElementRect(part, &option, &button);
}

int WidthIn(const QFont& font, const QString& line) {
  return QFontMetrics(font).size(Qt::TextShowMnemonic | Qt::TextSingleLine, line).width();
}

bool Outgrows(const QFont& font, const QString& line, int width) {
  return WidthIn(FittingFont(font, line, width), line) > width;
}

bool Outgrows(const QLabel& label) {
  const QRect room = label.contentsRect();
  if (!label.wordWrap()) return Outgrows(label.font(), label.text(), room.width());
  const QSize needed = label.fontMetrics().boundingRect(room, Qt::TextWordWrap, label.text()).size();
  return needed.width() > room.width() || needed.height() > room.height();
}

bool Outgrows(const QAbstractButton& button) {
  return Outgrows(button.font(), button.text(), RoomIn(button).width());
}

}  // namespace

QFont FittingFont(const QFont& font, const QString& line, int width) {
  if (WidthIn(font, line) <= width) return font;
  const int full = QFontInfo(font).pixelSize();
  QFont smaller = font;
  for (int size = full - 1; 4 * size >= 3 * full; --size) {
    smaller.setPixelSize(size);
    if (WidthIn(smaller, line) <= width) return smaller;
  }
  return font;
}

void ShortenWhatOutgrows(QWidget& control) {
  control.setStyle(TheShortening().style);
  control.installEventFilter(TheShortening().tip);
}

QString OutgrownText(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return Outgrows(*label) ? label->text() : QString();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return Outgrows(*button) ? button->text().remove(u'&') : QString();
  return {};
}

}  // namespace look
