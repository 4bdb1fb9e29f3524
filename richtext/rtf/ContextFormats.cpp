// The formats of what is being read, and the numbers that the document gives them.
#include <algorithm>

#include "richtext/rtf/Characters.h"
#include "richtext/rtf/Context.h"

namespace richtext::rtf {

CharacterState& Context::ChangeCharacter() {
  State().formatNumber = GroupState::NotAsked;
  return State().character;
}

ParagraphState& Context::ChangeParagraph() {
  State().paragraphNumber = GroupState::NotAsked;
  return State().paragraph;
}

void Context::SetFont(std::int32_t number) {
  decoder_.DropLeadByte();
  ChangeCharacter().font = fonts_.Find(number);
}

void Context::ResetCharacter() {
  decoder_.DropLeadByte();
  const std::uint32_t link = State().character.link;
  ChangeCharacter() = CharacterState();
  State().character.link = link;  // what a field is does not hang on its look
}

// Made as the words would make it in a group that has no text. The style that it is based on comes first, no
// deeper than so.
StyleSheet::Formats Context::FormatsOfStyle(std::int32_t number, int depth) {
  if (const StyleSheet::Formats* const known = styles_.Known(number)) return *known;
  const StyleSheet::Style* const style = styles_.Find(number);
  if (style == nullptr || depth == 0) return {};
  StyleSheet::Formats formats = FormatsOfStyle(style->base, depth - 1);
  const GroupState before = State();
  State() = GroupState();
  State().destination = Destination::StyleSheet;
  State().character = formats.character;
  State().paragraph = formats.paragraph;
  for (const StyleSheet::Step& step : style->own)
    if (step.word->name != "tx" || formats.tabStops++ < StyleSheet::MostTabStops)
      step.word->handle(*this, step.word->argument, step.parameter);
  formats.character = State().character;
  formats.paragraph = State().paragraph;
  State() = before;
  styles_.Keep(number, formats);
  return formats;
}

void Context::SetStyle(std::int32_t number) {
  if (!styles_.Counts() || State().destination != Destination::Body) return;
  const StyleSheet::Formats formats = FormatsOfStyle(number, StyleSheet::DeepestBase);
  const std::uint32_t link = State().character.link;
  const bool inTable = State().paragraph.inTable;
  ChangeCharacter() = formats.character;
  State().character.link = link;
  ChangeParagraph() = formats.paragraph;
  State().paragraph.inTable = inTable;
}

std::uint32_t Context::FormatNumberOf(const CharacterState& state) {
  CharacterState shown = state;
  if (note_.IsOpen()) shown.halfPoints = std::min(shown.halfPoints, NoteText::MostHalfPoints);
  return builder_.FormatNumber(KeyOf(shown, fonts_), [&] { return FormatOf(shown, fonts_, links_); });
}

std::uint32_t Context::FormatNumber() {
  GroupState& state = State();
  if (state.formatNumber == GroupState::NotAsked) state.formatNumber = FormatNumberOf(state.character);
  return state.formatNumber;
}

// The end of a paragraph leads nowhere.
std::uint32_t Context::MarkNumber() {
  if (State().character.link == 0) return FormatNumber();
  CharacterState mark = State().character;
  mark.link = 0;
  return FormatNumberOf(mark);
}

std::uint32_t Context::ParagraphNumber(ParagraphState paragraph) {
  const std::uint32_t labelList = label_.TakeList();
  if (!paragraphs_.IsListed(paragraph)) paragraph.numbering = labelList;
  return builder_.ParagraphFormatNumber(paragraphs_.FormatOfNext(paragraph));
}

std::uint32_t Context::ParagraphNumber() {
  GroupState& state = State();
  if (label_.HasList() || paragraphs_.IsListed(state.paragraph)) return ParagraphNumber(state.paragraph);
  paragraphs_.PassUnlisted();
  if (state.paragraphNumber == GroupState::NotAsked) state.paragraphNumber = ParagraphNumber(state.paragraph);
  return state.paragraphNumber;
}

// Formats are asked for only where there is text, so that a document has none that nothing uses.
void Context::ClaimText() {
  if (!builder_.HasUnclaimedText()) return;
  if (!note_.IsOpen()) openParagraph_ = State().paragraph;
  if (!linkTally_.Admits(State().character.link, links_)) ChangeCharacter().link = 0;
  builder_.ClaimText(FormatNumber());
}

}  // namespace richtext::rtf
