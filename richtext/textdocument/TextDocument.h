// A page between its value and the toolkit's text document, run by run and without a detour over another
// markup.
//
// What the toolkit's document cannot say of itself, it carries along as properties of its formats
// (Formats.h), so that what is taken back is what was filled in: twips and half points that it would round,
// the list of a paragraph and measures that no page has room for (Paragraphs.h), the rows of tables
// (RowTables.h), pictures in the form in which they came (Pictures.h), text that is not shown (HiddenText.h).
// The hard part is what a person does in between: typing carries formats to where they were never meant, and
// the toolkit's own commands know nothing of the properties.
#pragma once

#include <cstddef>

#include <QtGui/QTextCharFormat>

#include "richtext/document/Document.h"

class QTextCursor;
class QTextDocument;

namespace richtext {

// Replaces the content of `target`, with no undo history before or after it.
void FillDocument(const Document& source, QTextDocument& target);
// Replaces it by plain text in one format; a line end makes a paragraph.
void FillPlain(const QString& text, const QTextCharFormat& format, QTextDocument& target);
// Puts the content in the place of the cursor's selection, as one step of undo. Its first paragraph joins the
// one at the cursor, whose text keeps its own format before and behind what comes in; an empty one takes on
// the format, but a single paragraph leaves a format that the empty one has. The cursor stands behind what
// came in.
void InsertDocument(const Document& source, QTextCursor& cursor);

// The same with plain text in one format.
void InsertPlain(const QString& text, const QTextCharFormat& format, QTextCursor& cursor);

// The whole content.
Document TakeDocument(const QTextDocument& source);

// A word that stands in the layout at a position of the document and not in the text. None where it is empty.
struct ComposedWord {
  QString text;
  int at = 0;
  QTextCharFormat format;

  bool operator==(const ComposedWord&) const = default;
};
struct TakenPart {
  Document page;
  int length = 0;        // positions of the document
  std::size_t work = 0;  // blocks, pieces of one format in them, and kilobytes of their pictures
};
// Whole paragraphs from `from` on, where one begins, up to `length` positions behind it, where one ends; not
// many more than `most` of work, but at least one paragraph. `word` is taken as text.
TakenPart TakePart(const QTextDocument& source, int from, int length, std::size_t most,
                   const ComposedWord& word);

// The selected content; one empty paragraph where nothing is selected.
Document TakeSelection(const QTextCursor& selection);

}  // namespace richtext
