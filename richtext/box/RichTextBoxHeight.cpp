// The text box and what the toolkit's layout makes of its page: paragraphs that take long, pages that are too
// high.
#include <QtCore/QTimer>

#include "richtext/box/RestNote.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/LongParagraphs.h"
#include "richtext/textdocument/PageHeight.h"

namespace richtext {

void RichTextBox::GuardHeight(int at, int removed, int added) {
  SpareLongParagraphs(*document(), at, added);
  guard_->NoteChange(at, removed, added);
  TellOfRest();
}

// The note takes its place when an edit is over, since that lays the page out.
void RichTextBox::TellOfRest() {
  if (guard_->IsAllShown() != rest_->IsShown()) return;
  QTimer::singleShot(0, this, [this] {
    rest_->Show(!guard_->IsAllShown());
    setViewportMargins(0, 0, 0, rest_->HeightFor(viewport()->width()));
    rest_->PlaceBelow(*viewport());
  });
}

void RichTextBox::resizeEvent(QResizeEvent* event) {
  guard_->SetWidth(viewport()->width());
  QTextEdit::resizeEvent(event);
  TellOfRest();
  rest_->PlaceBelow(*viewport());
}

}  // namespace richtext
