#include "richtext/rtf/Context.h"

#include <optional>
#include <utility>

#include "richtext/characters/Unicode.h"
#include "richtext/document/ListLabel.h"
#include "richtext/rtf/Hyperlink.h"
#include "richtext/rtf/SymbolField.h"

namespace richtext::rtf {
namespace {

// Text that is set aside tells little in many words; this is more than any of it needs.
constexpr std::size_t MaxAside = 16'384;

bool IsAside(Destination destination) {
  switch (destination) {
    case Destination::Label:
    case Destination::FieldInstruction:
    case Destination::ListLevelText:
    case Destination::NumberingBefore:
    case Destination::NumberingAfter:
    case Destination::ShapeName:
      return true;
    default:
      return false;
  }
}

// Symbol fonts have their signs at U+F000 and a byte; \u tells these below zero, as a rule.
bool IsSign(std::int32_t number) {
  const std::int32_t unit = number < 0 ? number + 0x10000 : number;
  return unit > 0xF020 && unit <= 0xF0FF;
}

}  // namespace

void Context::BeginGroup() {
  decoder_.DropLeadByte();
  groups_.Push();
}

void Context::EndGroup() {
  decoder_.DropLeadByte();
  const bool skipped = Skipping();
  const Destination ended = State().destination;
  if (sign_.number != 0 && sign_.depth == Depth()) FinishSign();
  if (!skipped && ended == Destination::FontTable) fonts_.EndGroup(Depth());
  if (!skipped && IsAside(ended)) decoder_.EndText(aside_);
  groups_.Pop();
  if (skipped || State().destination == ended) return;
  Finish(ended);
}

void Context::Finish(Destination ended) {
  switch (ended) {
    case Destination::ColorTable:
      return colors_.EndTable();
    case Destination::Picture:
      return PutPicture();
    case Destination::ListLevelText:
      return FinishLevelText();
    case Destination::NumberingBefore:
      numbering_.list.before = aside_;
      return;
    case Destination::NumberingAfter:
      numbering_.list.after = aside_;
      return;
    case Destination::Numbering:
      return FinishNumbering();
    case Destination::FieldInstruction:
      return FinishInstruction();
    case Destination::ShapeName:
      propertyName_ = aside_;
      return;
    case Destination::Label:
      label_ = aside_;
      waitingLabel_ = labelKind_;
      return;
    default:
      return;
  }
}

void Context::FinishInstruction() {
  const std::string instruction = ToUtf8(aside_);
  State().fieldLink = links_.NumberOf(LinkOfInstruction(instruction));
  sign_ = {SignOfInstruction(instruction), Depth(), builder_.Text().size()};
}

void Context::FinishSign() {
  const Sign sign = std::exchange(sign_, {});
  if (builder_.Text().size() == sign.place) PutUnicode(sign.number);
}

void Context::FinishNumbering() {
  ParagraphState& paragraph = ChangeParagraph();
  if (numbering_.list.level != 0) paragraph.listLevel = std::exchange(numbering_.list.level, 0);
  paragraph.numbering = paragraphs_.NumberOf(numbering_);
}

void Context::FinishLevelText() {
  if (!aside_.empty() && aside_.back() == u';') aside_.pop_back();
  paragraphs_.Lists().SetText(aside_);
}

void Context::SkipGroup() {
  if (Depth() > 1) groups_.SkipGroup();
}

void Context::SendTextTo(Destination destination) {
  if (Depth() <= 1) return;
  if (!groups_.HasOwnState()) return groups_.SkipGroup();
  State().around = State().destination;
  State().destination = destination;
}

void Context::SetAside(Destination destination) {
  const Destination within = State().destination;
  const bool known = within == Destination::Body || within == Destination::Numbering ||
                     within == Destination::ListTable ||
                     (within == Destination::ShapeProperty && destination == Destination::ShapeName);
  if (!known) return SkipGroup();
  if (within == Destination::Body) EndText();
  aside_.clear();
  SendTextTo(destination);
}

void Context::SetCharacterSetPage(std::int32_t page) {
  characterSetPage_ = FindCodePage(page);
}

void Context::SetAnsiPage(std::int32_t page) {
  if (const CodePage* known = FindCodePage(page)) ansiPage_ = known;
}

const CodePage& Context::DocumentPage() const {
  if (ansiPage_ != nullptr) return *ansiPage_;
  return characterSetPage_ != nullptr ? *characterSetPage_ : WesternCodePage();
}

const CodePage& Context::TextPage() const {
  const CodePage* page = fonts_.At(groups_.Top().character.font).page;
  return page != nullptr ? *page : DocumentPage();
}

// Where text goes; nothing when it is passed over.
std::u16string* Context::TextInHand() {
  if (State().destination == Destination::Body) {
    SettleLabel();
    return &builder_.Text();
  }
  return IsAside(State().destination) && aside_.size() < MaxAside ? &aside_ : nullptr;
}

void Context::PutBytes(std::string_view bytes) {
  switch (State().destination) {
    case Destination::FontTable:
      return fonts_.AppendText(bytes, DocumentPage());
    case Destination::ColorTable:
      return colors_.AppendText(bytes);
    case Destination::Picture:
      return picture_.AppendHex(bytes);
    default:
      break;
  }
  if (std::u16string* text = TextInHand()) {
    decoder_.AppendBytes(bytes, TextPage(), *text);
    ClaimText();
  }
}

void Context::PutLiteral(char byte) {
  const Destination destination = State().destination;
  if (destination == Destination::FontTable) return fonts_.AppendByte(byte, DocumentPage());
  const bool isMark = destination == Destination::ListLevelText && static_cast<unsigned char>(byte) < 0x20;
  if (isMark && aside_.size() < MaxAside) aside_ += static_cast<char16_t>(byte);
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
  SettleLabel();
  EndText();
  builder_.EndParagraph(ParagraphNumber(), MarkNumber());
  openLink_ = 0;
}

void Context::EndCell() {
  PutCharacter(u'\t');
  labelList_ = 0;
}

void Context::BeginShapeText() {
  shapeShown_ = true;
  if (builder_.HasOpenText()) EndParagraph();
}

void Context::BeginShape() {
  shapeShown_ = false;
}

void Context::BeginShapeProperty() {
  propertyName_.clear();
  if (State().destination != Destination::Body) return SkipGroup();
  SendTextTo(Destination::ShapeProperty);
}

void Context::BeginShapeValue() {
  const bool isPicture = State().destination == Destination::ShapeProperty && propertyName_ == u"pib";
  if (!isPicture) return SkipGroup();
  SendTextTo(Destination::ShapePicture);
}

void Context::BeginShapeResult() {
  if (shapeShown_ || State().destination != Destination::Body) return SkipGroup();
  SendTextTo(Destination::ShapePicture);
}

void Context::BeginLabel(bool isListText) {
  labelKind_ = isListText ? LabelKind::ListText : LabelKind::Text;
  if (State().destination == Destination::Body)
    SetAside(Destination::Label);
  else
    SkipGroup();
}

// A label is no text where a list makes one, and else as much of a list as it tells.
void Context::SettleLabel() {
  const LabelKind kind = std::exchange(waitingLabel_, LabelKind::None);
  if (kind == LabelKind::None || paragraphs_.IsListed(State().paragraph)) return;
  if (kind == LabelKind::ListText) labelList_ = paragraphs_.NumberOfLabel(label_);
  if (labelList_ != 0) return;
  for (const char16_t unit : label_) decoder_.AppendUnit(ShownBullet(unit), builder_.Text());
  ClaimText();
}

// What was read of a picture that the end of the input cuts off is one too.
void Context::FinishPicture() {
  while (Depth() > 0 && (Skipping() || State().destination == Destination::Picture)) EndGroup();
}

// The \par that ends the last paragraph is no more than its end; without it the paragraph is as it was
// written.
Document Context::Take() {
  FinishPicture();
  SettleLabel();
  EndText();
  if (builder_.HasOpenText()) {
    builder_.EndParagraph(ParagraphNumber(openParagraph_), MarkNumber());
  } else if (!builder_.HasParagraphs()) {
    builder_.EndParagraph(ParagraphNumber(State().paragraph), MarkNumber());
  }
  return builder_.Take();
}

// The picture stands in the group around it.
void Context::PutPicture() {
  std::optional<Picture> picture = picture_.Take();
  const Destination around = State().destination;
  if (!picture || (around != Destination::Body && around != Destination::ShapePicture)) return;
  SettleLabel();
  EndText();
  modernPicture_ = shapeShown_ = true;
  builder_.AddPicture(std::move(*picture));
  ClaimText();
}

}  // namespace richtext::rtf
