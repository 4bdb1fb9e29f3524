#include "look/Spoken.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

#include "look/AfterFocus.h"

namespace look {
namespace {

constexpr char RoleName[] = "SpokenRole";

class SpokenLink : public QAccessibleWidget {
 public:
  explicit SpokenLink(QWidget* link) : QAccessibleWidget(link, QAccessible::Link) {}

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
      QCoreApplication::sendEvent(widget(), &key);
    }
  }
};

QAccessibleInterface* WithItsRole(const QString& /*className*/, QObject* object) {
  const QVariant role = object->property(RoleName);
  if (!role.isValid()) return nullptr;
  auto* control = static_cast<QWidget*>(object);
  if (role.toInt() == QAccessible::Link) return new SpokenLink(control);
  return new QAccessibleWidget(control, static_cast<QAccessible::Role>(role.toInt()));
}

// In no window: of one within a dialog the dialog's own words would be said each time, too. Never destroyed:
// a window must not outlive the application object, and statics do.
QWidget& Notification() {
  static auto* const notification = [] {
    auto* made = new QWidget;
    made->setObjectName(QStringLiteral("Notification"));
    SpeakAs(*made, QAccessible::Notification);
    return made;
  }();
  return *notification;
}

// In the rows that are open, of a tree.
int RowOf(const QAbstractItemView& view, const QModelIndex& index) {
  const auto* tree = qobject_cast<const QTreeView*>(&view);
  if (!tree) return index.row();
  int row = 0;
  for (QModelIndex above = tree->indexAbove(index); above.isValid(); above = tree->indexAbove(above)) ++row;
  return row;
}

void SpeakCurrentOf(const QAbstractItemView& view) {
  if (!QAccessible::isActive() || !view.hasFocus() || !view.currentIndex().isValid()) return;
  auto* spoken = QAccessible::queryAccessibleInterface(const_cast<QAbstractItemView*>(&view));
  QAccessibleTableInterface* table = spoken ? spoken->tableInterface() : nullptr;
  QAccessibleInterface* entry = table ? table->cellAt(RowOf(view, view.currentIndex()), 0) : nullptr;
  if (!entry) return;
  QAccessibleEvent event(entry, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void SpeakAs(QWidget& control, QAccessible::Role role) {
  [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(&WithItsRole), true);
  control.setProperty(RoleName, static_cast<int>(role));
}

void Announce(const QString& text) {
  QWidget* control = QApplication::focusWidget();
  if (!control || !control->isVisible()) {
    QObject::connect(
        qApp, &QApplication::focusChanged, qApp, [text] { Announce(text); }, Qt::SingleShotConnection);
    return;
  }
  Notification().setAccessibleName(text);
  QAccessibleEvent appears(&Notification(), QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appears);
}

// The toolkit says the list, and the entry only when it changes.
void SpeakCurrentEntry(QAbstractItemView& view) {
  AfterFocusComes(view, [&view] { SpeakCurrentOf(view); });
}

}  // namespace look
