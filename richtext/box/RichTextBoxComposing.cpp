// The text box and the word that an input method is composing in it. Such a word lies in its paragraph's
// layout and not yet in the text.
//
// Asked to commit, one input method does so at once, another one later, by an event of its own, and many only
// forget the word. So what does not come at once is taken from the layout, and a commit of the same word that
// comes after all is passed over.
#include <chrono>
#include <utility>

#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>

#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

// How long a commit may be under way. The page may be stored meanwhile, on a slow disk.
constexpr std::chrono::seconds LateCommit{5};

}  // namespace

QString RichTextBox::Composition() const {
  return composing_.isNull() ? QString() : composing_.block().layout()->preeditAreaText();
}

bool RichTextBox::IsComposing() const {
  return !Composition().isEmpty();
}

// As TakeWord would put it in.
ComposedWord RichTextBox::Composed() const {
  const QString word = Composition();
  if (word.isEmpty()) return {};
  QTextCharFormat format = composing_.charFormat();
  format.clearProperty(QTextFormat::ObjectType);
  return {word, composing_.position(), format};
}

void RichTextBox::CommitComposition() {
  const QString word = Composition();
  if (!word.isEmpty() && !InputMethodCommits()) TakeWord(word);
}

void RichTextBox::TakeComposition() {
  if (const QString word = Composition(); !word.isEmpty()) TakeWord(word);
}

// An input method serves what has the focus, which may be another box by now.
bool RichTextBox::InputMethodCommits() {
  const unsigned before = commits_;
  if (QGuiApplication::focusObject() != this) return false;
  QGuiApplication::inputMethod()->commit();
  if (commits_ == before) QGuiApplication::inputMethod()->reset();
  return commits_ != before;
}

void RichTextBox::TakeWord(const QString& word) {
  AwaitLateCommit(word);
  QTextLayout& layout = *composing_.block().layout();
  layout.setPreeditArea(-1, {});
  layout.clearFormats();
  composing_.insertText(word);
}

// The text that it belongs to goes, and the word must not come into the next one.
void RichTextBox::DropComposition() {
  const QString word = Composition();
  if (word.isEmpty()) return;
  if (QGuiApplication::focusObject() == this) QGuiApplication::inputMethod()->reset();
  AwaitLateCommit(word);
}

void RichTextBox::AwaitLateCommit(const QString& word) {
  awaited_ = word;
  awaiting_.setRemainingTime(LateCommit);
}

// The next word, whatever it is, ends the waiting.
bool RichTextBox::IsLateCommit(const QInputMethodEvent& event) {
  if (event.commitString().isEmpty() && event.preeditString().isEmpty()) return false;
  const QString awaited = std::exchange(awaited_, {});
  return !awaited.isEmpty() && !awaiting_.hasExpired() && event.commitString() == awaited;
}

// The toolkit would take a selection away first, and its format with it. Whether nothing is left to do.
bool RichTextBox::ComposeOver(const QInputMethodEvent& event) {
  const bool isWord = !event.preeditString().isEmpty();
  if (!textCursor().hasSelection() || isReadOnly() || (!isWord && event.commitString().isEmpty()))
    return false;
  if (!isWord) return InsertText(event.commitString()), true;
  const QTextCharFormat format = caret_.OfLetters();
  CarryFormatOver([this] { textCursor().removeSelectedText(); });
  setCurrentCharFormat(format);
  return false;
}

// What is shown while a word is being composed is no change yet.
void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
  if (IsLateCommit(*event)) event->setCommitString({});
  if (!event->commitString().isEmpty()) ++commits_;
  if (ComposeOver(*event)) return event->accept();
  caret_.Apply();
  const bool composing =
      event->commitString().isEmpty() && event->replacementLength() == 0 && !textCursor().hasSelection();
  const QScopedValueRollback quiet(quiet_, quiet_ || composing);
  QTextEdit::inputMethodEvent(event);
  if (!event->preeditString().isEmpty()) composing_ = textCursor();
}

// The toolkit asks the input method to commit before the caret moves, and drops the word of one that does
// not.
void RichTextBox::mousePressEvent(QMouseEvent* event) {
  Q_EMIT MousePressed();
  const QString word = Composition();
  const unsigned before = commits_;
  QTextEdit::mousePressEvent(event);
  if (!word.isEmpty() && Composition().isEmpty() && commits_ == before) TakeWord(word);
}

}  // namespace richtext
