#include "look/SpokenChoice.h"

#include <utility>

#include <QtWidgets/QAccessibleWidget>

#include "look/AfterFocus.h"

namespace look {
namespace {

constexpr char ChoiceName[] = "SpokenChoice";

// Has the keyboard when its control has it, and lies where that lies.
class Choice : public QAccessibleInterface {
 public:
  Choice(QAccessibleInterface& control, const QString& text) : control_(control), text_(text) {}

  bool isValid() const override { return control_.isValid(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return &control_; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QRect rect() const override { return control_.rect(); }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override { return control_.state(); }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? text_ : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

 private:
  QAccessibleInterface& control_;
  const QString text_;
};

// Another choice is another part: of one that changes its name nothing is said. The one before stays until
// then, since with a part that has gone its whole window would be said again.
class Chooser : public QAccessibleWidget {
 public:
  explicit Chooser(QWidget* control) : QAccessibleWidget(control, QAccessible::Grouping) {}
  ~Chooser() override {
    for (const QAccessible::Id part : {choice_, before_}) Forget(part);
  }
  Q_DISABLE_COPY_MOVE(Chooser)

  int childCount() const override { return 1; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return 0; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return child(0); }
  QAccessibleInterface* focusChild() const override { return child(0); }
  QAccessibleInterface* child(int /*index*/) const override {
    const QString text = widget()->property(ChoiceName).toString();
    if (choice_ == 0 || text != told_) {
      Forget(std::exchange(before_, choice_));
      auto* self = const_cast<Chooser*>(this);
      choice_ = QAccessible::registerAccessibleInterface(new Choice(*self, text));
      told_ = text;
    }
    return QAccessible::accessibleInterface(choice_);
  }

 private:
  static void Forget(QAccessible::Id part) {
    if (part != 0) QAccessible::deleteAccessibleInterface(part);
  }

  mutable QAccessible::Id choice_ = 0;
  mutable QAccessible::Id before_ = 0;
  mutable QString told_;
};

QAccessibleInterface* WithItsChoice(const QString& /*className*/, QObject* object) {
  return object->property(ChoiceName).isValid() ? new Chooser(static_cast<QWidget*>(object)) : nullptr;
}

void Say(QWidget& control) {
  if (!QAccessible::isActive() || !control.hasFocus()) return;
  QAccessibleEvent event(QAccessible::queryAccessibleInterface(&control)->child(0), QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

// The toolkit says the control alone. What was told of it as it was being made, if anything, goes.
void Begin(QWidget& control) {
  AfterFocusComes(control, [&control] { Say(control); });
  if (!QAccessible::isActive()) return;
  if (QAccessibleInterface* before = QAccessible::queryAccessibleInterface(&control))
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
}

}  // namespace

void SpeakChoice(QWidget& control, const QString& choice) {
  [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(&WithItsChoice), true);
  const bool isNew = !control.property(ChoiceName).isValid();
  control.setProperty(ChoiceName, choice);
  if (isNew) Begin(control);
  Say(control);
}

}  // namespace look
