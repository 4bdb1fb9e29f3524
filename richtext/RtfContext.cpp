#include "richtext/RtfContext.h"

#include <utility>

namespace richtext {
namespace {

FormatKey KeyOf(const CharacterState& state, const RtfFontTable& fonts) {
  const std::uint32_t flags = (state.bold ? 1U : 0U) | (state.italic ? 2U : 0U) |
                              (state.strikethrough ? 4U : 0U) |
                              static_cast<std::uint32_t>(state.underline) << 8;
  return {fonts.At(state.font).name, state.halfPoints, state.color, flags};
}

CharacterFormat FormatOf(const CharacterState& state, const RtfFontTable& fonts) {
  CharacterFormat format;
  format.fontName = fonts.Name(fonts.At(state.font).name);
  format.halfPoints = state.halfPoints;
  format.bold = state.bold;
  format.italic = state.italic;
  format.strikethrough = state.strikethrough;
  format.underline = state.underline;
  if (state.color != AutomaticColor) format.color = static_cast<std::uint32_t>(state.color);
  return format;
}

}  // namespace

void RtfContext::BeginGroup() {
  decoder_.DropLeadByte();
  groups_.Push();
}

void RtfContext::EndGroup() {
  decoder_.DropLeadByte();
  const bool skipped = Skipping();
  const Destination ended = State().destination;
  if (!skipped && ended == Destination::FontTable) fonts_.EndGroup(Depth());
  groups_.Pop();
  if (skipped || State().destination == ended) return;
  if (ended == Destination::ColorTable) colors_.EndTable();
  if (ended == Destination::Picture) PutPicture();
}

void RtfContext::SkipGroup() {
  if (Depth() > 1) groups_.SkipGroup();
}

void RtfContext::SendTextTo(Destination destination) {
  if (Depth() <= 1) return;
  if (!groups_.HasOwnState()) return groups_.SkipGroup();
  State().around = State().destination;
  State().destination = destination;
}

CharacterState& RtfContext::ChangeCharacter() {
  State().formatNumber = GroupState::NotAsked;
  return State().character;
}

ParagraphFormat& RtfContext::ChangeParagraph() {
  State().paragraphNumber = GroupState::NotAsked;
  return State().paragraph;
}

void RtfContext::SetFont(std::int32_t number) {
  decoder_.DropLeadByte();
  ChangeCharacter().font = fonts_.Find(number);
}

void RtfContext::ResetCharacter() {
  decoder_.DropLeadByte();
  ChangeCharacter() = CharacterState();
}

void RtfContext::SetCharacterSetPage(std::int32_t page) {
  characterSetPage_ = FindCodePage(page);
}

void RtfContext::SetAnsiPage(std::int32_t page) {
  if (const CodePage* known = FindCodePage(page)) ansiPage_ = known;
}

const CodePage& RtfContext::DocumentPage() const {
  if (ansiPage_ != nullptr) return *ansiPage_;
  return characterSetPage_ != nullptr ? *characterSetPage_ : WesternCodePage();
}

const CodePage& RtfContext::TextPage() const {
  const CodePage* page = fonts_.At(groups_.Top().character.font).page;
  return page != nullptr ? *page : DocumentPage();
}

void RtfContext::PutBytes(std::string_view bytes) {
  switch (State().destination) {
    case Destination::Body:
      decoder_.AppendBytes(bytes, TextPage(), builder_.Text());
      return ClaimText();
    case Destination::FontTable:
      return fonts_.AppendText(bytes, DocumentPage());
    case Destination::ColorTable:
      return colors_.AppendText(bytes);
    case Destination::Picture:
      return picture_.AppendHex(bytes);
    case Destination::Discard:
      return;
  }
}

void RtfContext::PutLiteral(char byte) {
  if (State().destination == Destination::FontTable) return fonts_.AppendByte(byte, DocumentPage());
  if (State().destination == Destination::Body) PutBytes({&byte, 1});
}

void RtfContext::PutBinary(std::string_view bytes) {
  if (State().destination == Destination::Picture) picture_.AppendRaw(bytes);
}

void RtfContext::PutUnicode(std::int32_t number) {
  if (State().destination == Destination::FontTable) return fonts_.AppendUnicode(number);
  if (State().destination != Destination::Body) return;
  if (IsUnicodeParagraphEnd(number)) return EndParagraph();
  decoder_.AppendUnicode(number, builder_.Text());
  ClaimText();
}

void RtfContext::PutCharacter(char16_t character) {
  if (State().destination != Destination::Body) return;
  decoder_.AppendUnit(character, builder_.Text());
  ClaimText();
}

void RtfContext::EndParagraph() {
  if (State().destination != Destination::Body) return;
  decoder_.EndText(builder_.Text());
  ClaimText();
  builder_.EndParagraph(ParagraphNumber(State()), FormatNumber());
}

// The \par that ends the last paragraph is no more than its end; without it the paragraph is as it was
// written.
Document RtfContext::Take() {
  decoder_.EndText(builder_.Text());
  ClaimText();
  if (builder_.HasOpenText()) {
    builder_.EndParagraph(builder_.ParagraphFormatNumber(openParagraph_), FormatNumber());
  } else if (!builder_.HasParagraphs()) {
    builder_.EndParagraph(ParagraphNumber(State()), FormatNumber());
  }
  return builder_.Take();
}

std::uint32_t RtfContext::FormatNumber() {
  GroupState& state = State();
  if (state.formatNumber == GroupState::NotAsked) {
    const CharacterState& character = state.character;
    state.formatNumber =
        builder_.FormatNumber(KeyOf(character, fonts_), [&] { return FormatOf(character, fonts_); });
  }
  return state.formatNumber;
}

std::uint32_t RtfContext::ParagraphNumber(GroupState& state) {
  if (state.paragraphNumber == GroupState::NotAsked)
    state.paragraphNumber = builder_.ParagraphFormatNumber(state.paragraph);
  return state.paragraphNumber;
}

// Formats are asked for only where there is text, so that a document has none that nothing uses.
void RtfContext::ClaimText() {
  if (!builder_.HasUnclaimedText()) return;
  openParagraph_ = State().paragraph;
  builder_.ClaimText(FormatNumber());
}

// The picture stands in the group around it.
void RtfContext::PutPicture() {
  std::optional<Picture> picture = picture_.Take();
  if (!picture || State().destination != Destination::Body) return;
  decoder_.EndText(builder_.Text());
  ClaimText();
  openParagraph_ = State().paragraph;
  builder_.AddPicture(std::move(*picture), FormatNumber());
}

}  // namespace richtext
