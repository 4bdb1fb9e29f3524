// The format of what is typed next in a text box.
//
// It lies in the toolkit's text cursor. The toolkit makes it anew from the letter before the caret with each
// move of the caret, and with each edit there; what a person chooses (SetSel... of the box) lasts until then.
// That is what she means, but for two places, which are set right here and nowhere else:
//
// 1. Beside a link letters would carry it on. A caret comes there by a move, by a key that edits and moves
//    nothing, and with a new page: LeaveLink is asked at each of these, also at the moves within an edit,
//    which the toolkit signals. It looks at the text as it stands, and does nothing elsewhere.
// 2. A paragraph whose last letter was deleted falls back to the format of its end. What was in hand is known
//    only before the edit, and that it is lost only behind it: so InHand is asked before all that may be an
//    edit, and CarryOn behind one. A key's LeaveLink comes last, since what is carried on may be a link's.
#pragma once

#include <QtGui/QTextCharFormat>

class QTextEdit;

namespace richtext {

class CaretFormat {
 public:
  // Of this box, which must outlive it.
  explicit CaretFormat(QTextEdit& box) : box_(box) {}

  // As the cursor has it: behind a picture or hidden text it tells of these too.
  QTextCharFormat InHand() const;
  // Of letters alone.
  QTextCharFormat OfLetters() const;

  // What is typed before or behind a link is no part of it.
  void LeaveLink();
  // An edit is over before which `format` was in hand: who goes on typing in a paragraph that it left empty
  // means that one.
  void CarryOn(const QTextCharFormat& format);

 private:
  QTextEdit& box_;
};

}  // namespace richtext
