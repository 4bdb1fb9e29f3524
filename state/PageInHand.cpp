#include "state/PageInHand.h"

#include <cassert>
#include <malloc.h>

namespace {

constinit PageInHandValues hand;

template <class Row>
bool HasRow(const std::vector<Row>& rows, std::int32_t row) {
  return row >= 0 && static_cast<std::size_t>(row) < rows.size();
}

bool NothingIsInHand() {
  return PagesJournal == 0 && CurrentPage == 0 && TextPage == -1 && !PagesUnsaved;
}

[[maybe_unused]] bool RuleHolds() {
  return HasRow(Journals, CurrentJournal) && HasRow(Journals, PagesJournal) &&
         (TextPage == -1 || HasRow(Pages, TextPage)) && (!Pages.empty() || NothingIsInHand());
}

}  // namespace

constinit const std::int32_t& CurrentJournal = hand.CurrentJournal;
constinit const std::int32_t& PagesJournal = hand.PagesJournal;
constinit const std::int32_t& CurrentPage = hand.CurrentPage;
constinit const std::int32_t& TextPage = hand.TextPage;
constinit const Flag& PageDirty = hand.PageDirty;
constinit const bool& PagesUnsaved = hand.PagesUnsaved;

PageInHandValues& PageInHand::Values() {
  return hand;
}

void PageInHand::JournalChosen(std::int32_t row) {
  hand.CurrentJournal = row;
  assert(RuleHolds());
}

void PageInHand::PagesRead() {
  assert(!Pages.empty() && NothingIsInHand());
  hand.PagesJournal = CurrentJournal;
  assert(RuleHolds());
}

void PageInHand::TurnedTo(std::int32_t page) {
  assert(HasRow(Pages, page));
  hand.CurrentPage = page;
  assert(RuleHolds());
}

void PageInHand::TextLeaves() {
  hand.TextPage = -1;
  assert(RuleHolds());
}

void PageInHand::TextIsIn() {
  hand.TextPage = CurrentPage;
  assert(RuleHolds());
}

void PageInHand::TextChanged() {
  hand.PageDirty = True;
  assert(RuleHolds());
}

void PageInHand::TextIsAsStored() {
  hand.PageDirty = False;
  assert(RuleHolds());
}

void PageInHand::SaveBegins() {
  assert(PagesJournal != 0);
  hand.PagesUnsaved = true;
  assert(RuleHolds());
}

void PageInHand::PagesSaved() {
  assert(PagesUnsaved);
  hand.PagesUnsaved = false;
  assert(RuleHolds());
}

void PageInHand::JournalClosed() {
  hand.PagesJournal = 0;
  assert(RuleHolds());
}

void PageInHand::PagesForgotten() {
  const bool held = !Pages.empty();
  Pages = {};
  if (held) malloc_trim(0);  // the allocator would keep a long journal's memory for the next one
  PageCount = 0;
  AlienPageTold = false;
  hand = {.CurrentJournal = CurrentJournal};
  assert(RuleHolds());
}
