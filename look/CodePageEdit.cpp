#include "look/CodePageEdit.h"

#include <utility>

#include <QtGui/QValidator>
#include <QtWidgets/QToolTip>

#include "look/PaperStyle.h"
#include "look/Spoken.h"
#include "platform/CodePage.h"

namespace look {
namespace {

constexpr int SideMargin = 3;  // pixels, besides the style's own

void TellRefused(QWidget& box, const QString& character) {
  const QString text = CodePageEdit::tr(
                           "“%1” cannot be used here: the diary's files hold only letters and "
                           "signs of Western Europe (Windows-1252).")
                           .arg(character);
  Announce(text);
  QToolTip::showText(box.mapToGlobal(box.rect().bottomLeft()), text, &box);
}

class CodePageValidator : public QValidator {
 public:
  explicit CodePageValidator(QWidget* box) : QValidator(box), box_(box) {}

  State validate(QString& text, int& /*position*/) const override {
    const QString foreign = platform::FirstForeignCharacter(text);
    if (foreign.isEmpty()) return Acceptable;
    TellRefused(*box_, foreign);
    return Invalid;
  }

 private:
  QWidget* box_;
};

// A style sheet could say the same, but takes the form's colours away from the box.
class AsteriskStyle : public PaperStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_LineEdit_PasswordCharacter ? '*' : PaperStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

CodePageEdit::CodePageEdit(QWidget* parent) : QLineEdit(parent) {
  setValidator(new CodePageValidator(this));
  setTextMargins(SideMargin, 0, SideMargin, 0);
  connect(this, &QLineEdit::inputRejected, this, [this] { wasRefused_ = true; });
}

std::string CodePageEdit::Bytes() const {
  return platform::ToCodePage(text()).value_or(std::string());
}

// The toolkit takes the selection away with the first letter of a word, and asks about the word at its end.
void CodePageEdit::inputMethodEvent(QInputMethodEvent* event) {
  if (!std::exchange(isComposing_, !event->preeditString().isEmpty()))
    beforeTheWord_ = {text(), selectionStart(), selectionLength()};
  wasRefused_ = false;
  QLineEdit::inputMethodEvent(event);
  if (wasRefused_ && !isComposing_ && beforeTheWord_.selectionLength > 0) ComeBack(beforeTheWord_);
}

void CodePageEdit::ComeBack(const Content& content) {
  selectAll();
  insert(content.text);
  setSelection(content.selectionStart, content.selectionLength);
}

void CodePageEdit::HideText() {
  setEchoMode(Password);
  setInputMethodHints(inputMethodHints() | Qt::ImhHiddenText | Qt::ImhSensitiveData |
                      Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  auto* style = new AsteriskStyle;
  style->setParent(this);
  setStyle(style);
}

}  // namespace look
