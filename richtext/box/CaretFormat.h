// The format of what is typed next in a text box.
//
// The toolkit keeps it in its cursor, and makes it anew from the letter before the caret with each move and
// each edit; what a person chooses lasts until then. That is what she means, but for three places, which are
// told here and nowhere else:
//
// 1. Over a selection the toolkit looks at the letter before the caret, which of a selection made from right
//    to left is another one. It is the selection's last letter that gives its format.
// 2. Beside a link letters would carry it on.
// 3. An empty paragraph has no letters, and the toolkit falls back to the format of its end: for what was
//    chosen there with any key, for what was typed there when the last letter is deleted. Both hold until the
//    next edit, wherever the caret has been.
//
// So InHand is asked, and Apply before the toolkit may put something in by itself.
#pragma once

#include <optional>

#include <QtGui/QTextCharFormat>

class QTextCursor;
class QTextEdit;

namespace richtext {

class CaretFormat {
 public:
  // Of this box, which must outlive it.
  explicit CaretFormat(QTextEdit& box) : box_(box) {}

  // Behind a picture or hidden text it tells of these too.
  QTextCharFormat InHand() const;
  // Of letters alone.
  QTextCharFormat OfLetters() const;

  // Has the toolkit's cursor keep it. Nothing where something is selected.
  void Apply();
  // Merges an attribute into it, where nothing is selected.
  void Choose(const QTextCharFormat& attribute);
  // The caret stands in a paragraph that an edit has left empty, before which `format` was in hand.
  void Keep(const QTextCharFormat& format);
  // To be called with each edit.
  void Forget() { kept_.reset(); }

 private:
  struct Kept {
    int position;
    QTextCharFormat format;
  };
  bool IsKeptAt(const QTextCursor& caret) const;

  QTextEdit& box_;
  std::optional<Kept> kept_;  // for an empty paragraph
};

}  // namespace richtext
