#include "platform/dialogs/MessageDress.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringTheSigns() {
  Q_INIT_RESOURCE(messages);
}

namespace platform {
namespace {

// In pixels.
constexpr int SignSize = 32;
constexpr int LeastTextWidth = 240;
constexpr int Margin = 16;

class SignStyle : public QProxyStyle {
 public:
  SignStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  QIcon standardIcon(StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const override {
    switch (sign) {
      case SP_MessageBoxCritical:
        return QIcon(QStringLiteral(":/messages/stop.png"));
      case SP_MessageBoxQuestion:
        return QIcon(QStringLiteral(":/messages/question.png"));
      default:
        return QProxyStyle::standardIcon(sign, option, widget);
    }
  }
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_MessageBoxIconSize ? SignSize : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

}  // namespace

void DrawOwnSigns(QMessageBox& box) {
  BringTheSigns();
  auto* style = new SignStyle;
  style->setParent(&box);
  box.setStyle(style);
}

// A short text stands beside the middle of the sign.
void GiveRoom(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!grid || !text) return;
  int row = 0, column = 0, rows = 0, columns = 0;
  grid->getItemPosition(grid->indexOf(text), &row, &column, &rows, &columns);
  grid->setRowMinimumHeight(row, SignSize);
  grid->setColumnMinimumWidth(column, LeastTextWidth);
  grid->setContentsMargins(Margin, Margin, Margin, Margin);
  grid->setVerticalSpacing(Margin / 2);  // there is an empty row before the buttons
}

}  // namespace platform
