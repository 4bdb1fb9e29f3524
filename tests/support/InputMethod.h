// An input method of our own, which composes a word in whatever has the focus. It stands in for the desktop's
// as long as it lives.
#pragma once

#include <utility>

#include <QtGui/QInputMethodEvent>
#include <QtGui/private/qinputmethod_p.h>
#include <QtGui/qpa/qplatforminputcontext.h>
#include <QtWidgets/QApplication>

namespace fixture {

// What becomes of the word when it is asked to commit: it comes at once, it is forgotten, with or without a
// word about it, or it comes when DeliverLate is called.
enum class Manner { Commits, Forgets, Clears, CommitsLate };
inline constexpr Manner AllManners[] = {Manner::Commits, Manner::Forgets, Manner::Clears,
                                        Manner::CommitsLate};

class InputMethod : public QPlatformInputContext {
 public:
  explicit InputMethod(Manner manner) : manner_(manner) { Current() = this; }
  ~InputMethod() override { Current() = nullptr; }
  Q_DISABLE_COPY_MOVE(InputMethod)

  bool isValid() const override { return true; }
  void commit() override {
    if (manner_ == Manner::Commits) Commit(std::exchange(word_, {}));
  }
  void reset() override {
    late_ = std::exchange(word_, {});
    if (manner_ == Manner::Clears) Send(QInputMethodEvent());
  }

  void Compose(const QString& word) {
    word_ = word;
    Send(QInputMethodEvent(word, {}));
  }
  void Commit(const QString& word) {
    QInputMethodEvent event;
    event.setCommitString(word);
    if (!word.isEmpty()) Send(std::move(event));
  }
  void DeliverLate() {
    if (manner_ == Manner::CommitsLate) Commit(std::exchange(late_, {}));
  }

 private:
  static QPlatformInputContext*& Current() {
    return QInputMethodPrivate::get(QGuiApplication::inputMethod())->testContext;
  }
  static void Send(QInputMethodEvent&& event) {
    if (QObject* focus = QGuiApplication::focusObject()) QCoreApplication::sendEvent(focus, &event);
  }

  Manner manner_;
  QString word_;
  QString late_;
};

}  // namespace fixture
