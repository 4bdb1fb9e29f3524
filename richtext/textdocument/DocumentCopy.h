// A copy of a text box's document that is brought up to date in steps.
//
// The toolkit gives a page block by block and piece by piece out of its trees, and of a long page that takes
// longer than a frame. So what has been copied is kept, and only the part in which something has changed is
// copied anew.
#pragma once

#include <cstddef>

#include <QtCore/QDeadlineTimer>

#include "richtext/document/PageParts.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {

class DocumentCopy {
 public:
  // Copies nothing yet. Who makes it must tell it of each QTextDocument::contentsChange.
  explicit DocumentCopy(const QTextDocument& source) : source_(source) {}
  void NoteChange(int at, int removed, int added);

  // Copies what is missing, in steps of about a millisecond, until the time is over. Whether the copy is
  // whole. Waits for a picture's file (KeepImage) only where there is no such time. `word` stands in it and
  // no other: the toolkit does not always tell that a word has come or gone.
  bool Refresh(const QDeadlineTimer& until, const ComposedWord& word);
  // The copy, when Refresh has just told that it is whole. A part that has not changed is the same value.
  PageParts Parts() const;

 private:
  struct Part {
    int length = 0;  // positions of the document
    std::size_t work = 0;
    ComposedWord word;                     // that stands in it, at a position of the part
    std::shared_ptr<const Document> page;  // none: to be copied yet
  };
  int Length() const;
  void Take(std::size_t index, int at, const ComposedWord& word);

  const QTextDocument& source_;
  std::vector<Part> parts_;  // as long as the document, one behind the other
};

}  // namespace richtext
