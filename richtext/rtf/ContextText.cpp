// Text on its way into the document.
#include "richtext/document/ListLabel.h"
#include "richtext/rtf/Context.h"

namespace richtext::rtf {
namespace {

// Symbol fonts have their signs at U+F000 and a byte; \u tells these below zero, as a rule.
bool IsSign(std::int32_t number) {
  const std::int32_t unit = number < 0 ? number + 0x10000 : number;
  return unit > 0xF020 && unit <= 0xF0FF;
}

}  // namespace

// What is told in words holds no signs, also where the font of the text around it does.
const CodePage& Context::TextPage() const {
  const CodePage* page = fonts_.At(groups_.Top().character.font).page;
  if (page == nullptr) return page_.Page();
  const bool misread = page->number == SymbolPage && AsideText::IsWords(groups_.Top().destination);
  return misread ? page_.Page() : *page;
}

// Where text goes; nothing when it is passed over.
std::u16string* Context::TextInHand() {
  if (State().destination == Destination::Body) {
    SettleLabel();
    if (!State().character.hidden) note_.BeginText(builder_.Text());
    return &builder_.Text();
  }
  return AsideText::IsFor(State().destination) && aside_.HasRoom() ? &aside_.Text() : nullptr;
}

void Context::PutBytes(std::string_view bytes) {
  switch (State().destination) {
    case Destination::FontTable:
      return fonts_.AppendText(bytes, page_.Page());
    case Destination::ColorTable:
      return colors_.AppendText(bytes);
    case Destination::Picture:
      return picture_.AppendHex(bytes);
    default:
      break;
  }
  if (State().destination == Destination::Body && !State().character.hidden)
    bytes = note_.WithoutBlanks(bytes);
  if (bytes.empty()) return;
  if (std::u16string* text = TextInHand()) {
    decoder_.AppendBytes(bytes, TextPage(), *text);
    ClaimText();
  }
}

void Context::PutLiteral(char byte) {
  const Destination destination = State().destination;
  if (destination == Destination::FontTable) return fonts_.AppendByte(byte, page_.Page());
  const bool isMark = destination == Destination::ListLevelText && static_cast<unsigned char>(byte) < 0x20;
  if (isMark && aside_.HasRoom()) aside_.Text() += static_cast<char16_t>(byte);
  if (!isMark && destination != Destination::ColorTable && destination != Destination::Picture)
    PutBytes({&byte, 1});
}

void Context::PutBinary(std::string_view bytes) {
  if (State().destination == Destination::Picture) picture_.AppendRaw(bytes);
}

void Context::PutUnicode(std::int32_t number) {
  if (State().destination == Destination::FontTable) return fonts_.AppendUnicode(number);
  if (IsUnicodeParagraphEnd(number)) return EndParagraph();
  if (IsSign(number) && TextPage().number == SymbolPage) return PutLiteral(static_cast<char>(number & 0xFF));
  if (std::u16string* text = TextInHand()) {
    decoder_.AppendUnicode(number, *text);
    ClaimText();
  }
}

void Context::PutCharacter(char16_t character) {
  if (character == u'\t' && note_.PassesBlanks()) return;
  if (std::u16string* text = TextInHand()) {
    decoder_.AppendUnit(character, *text);
    ClaimText();
  }
}

void Context::EndText() {
  decoder_.EndText(builder_.Text());
  ClaimText();
}

void Context::EndParagraph() {
  if (State().destination != Destination::Body) return;
  if (note_.IsOpen()) return note_.EndParagraph();
  SettleLabel();
  EndText();
  EndParagraphAs(IsInCell(State().paragraph) ? Place::Cell : Place::Text, ParagraphNumber());
}

// Without a word that ends it: it is as it was written.
void Context::EndParagraphAsItBegan() {
  EndParagraphAs(IsInCell(openParagraph_) ? Place::Cell : Place::Text, ParagraphNumber(openParagraph_));
}

bool Context::IsInCell(const ParagraphState& paragraph) const {
  return paragraph.inTable || groups_.Top().inCellAround;
}

// Behind its text and its label.
void Context::EndParagraphAs(Place place, std::uint32_t format) {
  if (place == Place::Text) builder_.EndRow(rows_.Told());
  builder_.EndParagraph(format, MarkNumber(), place);
  linkTally_.EndParagraph();
}

void Context::EndOpenParagraph() {
  if (builder_.HasOpenText()) EndParagraph();
}

void Context::EndCell() {
  const bool isInText = State().destination == Destination::Body && !note_.IsOpen();
  if (!isInText || State().inCellAround || !builder_.HasRoomForCell()) return EndNestedCell();
  SettleLabel();
  EndText();
  EndParagraphAs(Place::CellEnd, ParagraphNumber());
}

// Tables within a cell are paragraphs of that, one for each row.
void Context::EndNestedCell() {
  PutCharacter(u'\t');
  label_.ForgetList();
}

// What is told of the row before its end is no format of its cells' paragraphs.
void Context::EndRow() {
  if (State().destination != Destination::Body) return;
  if (note_.IsOpen()) return note_.EndParagraph();
  if (State().inCellAround) return EndParagraph();
  SettleLabel();
  EndText();
  if (builder_.HasOpenText() && builder_.HasRoomForCell())
    EndParagraphAs(Place::CellEnd, ParagraphNumber(openParagraph_));
  else if (builder_.HasOpenText() || !builder_.HasOpenRow())
    EndParagraph();
  builder_.EndRow(rows_.Told());
}

// A label is no text where a list makes one, and else as much of a list as it tells.
void Context::SettleLabel() {
  const WrittenLabel::Kind kind = label_.TakeWaiting();
  if (kind == WrittenLabel::Kind::None || paragraphs_.IsListed(State().paragraph)) return;
  if (kind == WrittenLabel::Kind::ListText)
    label_.SetList(paragraphs_.OwnLists().NumberOfLabel(label_.Text()));
  if (label_.HasList()) return;
  for (const char16_t unit : label_.Text()) decoder_.AppendUnit(ShownBullet(unit), builder_.Text());
  ClaimText();
}

}  // namespace richtext::rtf
