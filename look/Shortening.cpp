#include "look/Shortening.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolTip>

namespace look {
namespace {

constexpr int FrameWidth = 2;  // pixels of a button's edge

class PlacedStyle : public QProxyStyle {
 public:
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override {
    const bool isLine = !(flags & Qt::TextWordWrap) && !text.contains(u'\n');
    const QString shown =
        isLine ? painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width(), flags) : text;
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, shown, role);
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
        return QProxyStyle::subElementRect(element, option, widget);
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

bool Outgrows(const QLabel& label) {
  const QRect room = label.contentsRect();
  const int flags = label.wordWrap() ? Qt::TextWordWrap : Qt::TextShowMnemonic;
  const QSize needed = label.fontMetrics().boundingRect(room, flags, label.text()).size();
  return needed.width() > room.width() || (label.wordWrap() && needed.height() > room.height());
}

bool Outgrows(const QAbstractButton& button) {
  return button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() > RoomIn(button).width();
}

}  // namespace

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
