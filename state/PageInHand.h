// The page in hand: which journal's pages are in memory, which page is on show, whose text is in the text
// box, and what of it the file lacks. Six variables of state/State.h say so. Everybody reads them by these
// names; here alone they are set, each time by one of the steps below.
//
// The rule that they keep: a page goes back to the journal and the row that it was read from, and nowhere
// else.
//
//   TextPage        -1, or a row of Pages. -1 from before the text box gets another text until it holds all
//                   of it, and for good where that failed: what it then holds is no page's, and is stored
//                   nowhere. Otherwise CurrentPage, but for the moment between the turn to a page and its
//                   showing: a program that ends there stores the text to TextPage all the same.
//   CurrentPage     a row of Pages, as soon as there are any.
//   PagesJournal    0, or a row of Journals; Pages is written to its file and to no other.
//   CurrentJournal  the same. While the two differ the text box stores nothing.
//   no Pages        PagesJournal and CurrentPage 0, TextPage -1, PagesUnsaved false.
//
//   ┌──────────┐ PagesRead ┌─────────┐ TextIsIn ┌───────┐  TextChanged   ┌─────────┐
//   │ no pages │ ────────► │ no text │ ───────► │ shown │ ─────────────► │ changed │
//   └──────────┘           └─────────┘          └───────┘ ◄───────────── └─────────┘
//        ▲                      ▲                   │     TextIsAsStored     │
//        │                      │                   │ TurnedTo      TurnedTo │
//        │                      │                   ▼                        ▼
//        │                      │  TextLeaves   ┌──────────────────────────────────┐
//        │                      └────────────── │ turned: TextPage is the one left │
//        │                                      └──────────────────────────────────┘
//        └── PagesForgotten, from every state
//
// TextLeaves leads from `shown` and `changed` to `no text` too, where TurnedTo changes the page on show
// alone. While PagesJournal is not 0 SaveBegins sets PagesUnsaved and PagesSaved takes it back, and
// JournalClosed makes the pages nobody's: PagesJournal is 0 then, until they are forgotten. Those of the
// first run, before any journal is chosen, are nobody's from the start. PageDirty follows the text box in
// every state: an empty page comes to `changed` at once, and where TextPage is -1 it tells of no page.
#pragma once

#include "state/State.h"

// The six by value, for the steps and for what tests begin with.
struct PageInHandValues {
  std::int32_t CurrentJournal = 0;
  std::int32_t PagesJournal = 0;
  std::int32_t CurrentPage = 0;
  std::int32_t TextPage = -1;
  Flag PageDirty = False;
  bool PagesUnsaved = false;
};

// A debug build asserts the rule after each step, and that a step is taken only where it may be.
class PageInHand {
 public:
  // A person has chosen that row of Journals. Pages of another that are still here go on being that one's.
  static void JournalChosen(std::int32_t row);
  // Pages, which was erased before, has been filled for CurrentJournal.
  static void PagesRead();
  // That page is on show from here on. The text box has still to follow.
  static void TurnedTo(std::int32_t page);

  // The text box is about to get another text.
  static void TextLeaves();
  // The text box holds the text of CurrentPage, all of it.
  static void TextIsIn();
  // The text box tells a change; nothing else ever makes a page a changed one.
  static void TextChanged();
  // The row has the text that the box holds: it was shown from there, or has been stored in memory; or the
  // box holds no page's.
  static void TextIsAsStored();

  // Until PagesSaved the file of PagesJournal lacks what memory holds; a failure in between leaves it so.
  static void SaveBegins();
  static void PagesSaved();

  // The pages are nobody's from here on, and are not saved any more.
  static void JournalClosed();
  // Erases Pages, and its memory goes back to the system: no row is shown, nothing is dirty.
  static void PagesForgotten();

 private:
  friend struct Staging;  // the door of tests, benchmarks and fuzz targets, which are no rooms
                          // (tests/support)
  static PageInHandValues& Values();
};
