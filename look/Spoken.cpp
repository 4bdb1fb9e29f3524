#include "look/Spoken.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>

namespace look {
namespace {

constexpr char RoleName[] = "SpokenRole";

QAccessibleInterface* WithItsRole(const QString& /*className*/, QObject* object) {
  const QVariant role = object->property(RoleName);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

// The description that a control has of its own comes back when the keyboard leaves it.
class Announced : public QObject {
 public:
  explicit Announced(QWidget& control)
      : QObject(&control), control_(control), before_(control.accessibleDescription()) {
    control.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::FocusOut) return false;
    control_.removeEventFilter(this);
    control_.setAccessibleDescription(before_);
    deleteLater();
    return false;
  }

 private:
  QWidget& control_;
  const QString before_;
};

}  // namespace

void SpeakAs(QWidget& control, QAccessible::Role role) {
  [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(&WithItsRole), true);
  control.setProperty(RoleName, static_cast<int>(role));
}

void Announce(const QString& text) {
  QWidget* control = QApplication::focusWidget();
  if (!control) return;
  static QPointer<Announced> last;
  if (!last || last->parent() != control) last = new Announced(*control);
  control->setAccessibleDescription(text);
}

}  // namespace look
