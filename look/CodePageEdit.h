// A box for a name or the password: it takes only characters that the data files can hold.
#pragma once

#include <string>

#include <QtWidgets/QLineEdit>

namespace look {

// A character outside Windows-1252 is not taken, and a tip at the box says at once which one and why. A
// pasted text that holds one is refused whole: half a password would be worse than none. So is a word of an
// input method, and what was selected when it was begun comes back.
class CodePageEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CodePageEdit(QWidget* parent = nullptr);

  // The text in the code page.
  std::string Bytes() const;

  // The box is for a password: each character shows as "*".
  void HideText();

 protected:
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  struct Content {
    QString text;
    int selectionStart;
    int selectionLength;
  };
  void ComeBack(const Content& content);

  Content beforeTheWord_{};
  bool isComposing_ = false;
  bool wasRefused_ = false;
};

}  // namespace look
