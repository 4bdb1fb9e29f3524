// Groups: where their text goes, and what they told when they end.
#include "richtext/rtf/Context.h"

#include <optional>
#include <utility>

#include "richtext/characters/Unicode.h"
#include "richtext/rtf/Hyperlink.h"
#include "richtext/rtf/SymbolField.h"

namespace richtext::rtf {

void Context::BeginGroup() {
  decoder_.DropLeadByte();
  groups_.Push();
}

void Context::EndGroup() {
  decoder_.DropLeadByte();
  const bool skipped = Skipping();
  const Destination ended = State().destination;
  const FieldSign::Shown shown = sign_.TakeAtEnd(Depth(), LengthOfText());
  if (shown.number != 0) PutUnicode(shown.number);
  for (const char16_t unit : shown.words) PutCharacter(unit);
  if (!skipped && ended == Destination::FontTable) fonts_.EndGroup(Depth());
  if (!skipped && AsideText::IsFor(ended)) decoder_.EndText(aside_.Text());
  if (note_.EndsAt(Depth())) EndNote();
  if (held_.WaitsForEndAt(Depth())) EndShapeText();
  shapes_.EndGroup(Depth());
  groups_.Pop();
  if (ended == Destination::StyleSheet) styles_.EndStyle();
  if (skipped || State().destination == ended) return;
  Finish(ended);
}

// A group of `ended` has ended within one of another destination, which is in force.
void Context::Finish(Destination ended) {
  switch (ended) {
    case Destination::ColorTable:
      return colors_.EndTable();
    case Destination::Picture:
      return PutPicture();
    case Destination::ListLevelText:
      return FinishLevelText();
    case Destination::NumberingBefore:
      numbering_.list.before = aside_.Text();
      return;
    case Destination::NumberingAfter:
      numbering_.list.after = aside_.Text();
      return;
    case Destination::Numbering:
      return FinishNumbering();
    case Destination::FieldInstruction:
      return FinishInstruction();
    case Destination::InnerInstruction:
      return FinishInnerInstruction();
    case Destination::ShapeName:
      shapes_.SetPropertyName(aside_.Text());
      return;
    case Destination::ShapeValue:
      return shapes_.SetPropertyValue(aside_.Text());
    case Destination::Generator:
      return styles_.SetGenerator(aside_.Text());
    case Destination::Label:
      label_.Read(aside_.Text());
      return;
    default:
      return;
  }
}

void Context::FinishLevelText() {
  std::u16string& text = aside_.Text();
  if (!text.empty() && text.back() == u';') text.pop_back();
  paragraphs_.Lists().SetText(text);
}

void Context::FinishNumbering() {
  ParagraphState& paragraph = ChangeParagraph();
  if (numbering_.list.level != 0) paragraph.listLevel = std::exchange(numbering_.list.level, 0);
  paragraph.numbering = paragraphs_.OwnLists().NumberOf(numbering_);
}

void Context::FinishInstruction() {
  const std::string instruction = ToUtf8(aside_.Text());
  State().fieldLink = links_.NumberOf(LinkOfInstruction(instruction));
  sign_.Await({SignOfInstruction(instruction), ToUtf16(ButtonOfInstruction(instruction))}, Depth(),
              builder_.Text().size());
}

// A sign may stand among the words on a button.
void Context::FinishInnerInstruction() {
  const std::int32_t sign = SignOfInstruction(ToUtf8(aside_.TakeInner()));
  sign_.Await({sign, {}}, Depth(), LengthOfText());
}

// Of the document, or of an instruction, where a field stands within one.
std::size_t Context::LengthOfText() {
  const bool isInner = State().destination == Destination::FieldInstruction;
  return isInner ? aside_.Text().size() : builder_.Text().size();
}

// The picture stands in the group around it.
void Context::PutPicture() {
  std::optional<Picture> picture = picture_.Take();
  const Destination around = State().destination;
  if (!picture || (around != Destination::Body && around != Destination::ShapePicture)) return;
  SettleLabel();
  EndText();
  if (around == Destination::ShapePicture) shapes_.Fit(*picture);
  shapes_.NotePicture();
  builder_.AddPicture(std::move(*picture));
  ClaimText();
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
  if (within == Destination::FieldInstruction && destination == within) {
    aside_.BeginInner();
    return SendTextTo(Destination::InnerInstruction);
  }
  const bool known = within == Destination::Body || within == Destination::Numbering ||
                     within == Destination::ListTable ||
                     (within == Destination::ShapeProperty &&
                      (destination == Destination::ShapeName || destination == Destination::ShapeValue));
  if (!known) return SkipGroup();
  if (within == Destination::Body) EndText();
  aside_.Begin();
  SendTextTo(destination);
}

void Context::BeginShape() {
  if (groups_.HasOwnState()) shapes_.BeginShape(Depth());
}

// Its paragraphs begin without formats. They belong to the cell that the shape stands in.
void Context::BeginShapeText() {
  if (State().destination != Destination::Body || !groups_.HasOwnState()) return;
  shapes_.NoteText();
  if (note_.IsOpen() || held_.WaitsForEndAt(Depth())) return;
  EndText();
  if (!builder_.CanHoldOpenText()) EndOpenParagraph();
  held_.Hold({Depth(), builder_.TakeOpenText(), std::exchange(label_, {}), openParagraph_});
  State().inCellAround = IsInCell(State().paragraph);
  ChangeParagraph() = ParagraphState();
}

void Context::EndShapeText() {
  EndText();
  if (builder_.HasOpenText()) EndParagraphAsItBegan();
  HeldParagraphs::Paragraph held = held_.Take();
  builder_.PutBack(held.text);
  label_ = std::move(held.label);
  openParagraph_ = held.state;
}

void Context::BeginNote() {
  const bool isInText = State().destination == Destination::Body && !note_.IsOpen();
  if (Depth() <= 1 || !isInText || !groups_.HasOwnState()) return SkipGroup();
  EndText();
  note_.Begin(Depth());
  ChangeCharacter();
}

void Context::EndNote() {
  decoder_.EndText(builder_.Text());
  if (note_.HasText()) {
    ChangeCharacter().hidden = false;
    builder_.Text() += u']';
    ClaimText();
  }
  note_.End();
}

// The text of a note is a part of the paragraph around it, which is no item for that.
void Context::BeginLabel(WrittenLabel::Kind kind) {
  if (note_.IsOpen()) return SkipGroup();
  label_.Begin(kind);
  if (State().destination == Destination::Body)
    SetAside(Destination::Label);
  else
    SkipGroup();
}

// What was read of a picture that the end of the input cuts off is one too.
void Context::EndOpenGroups() {
  while (Depth() > 0 && (Skipping() || State().destination == Destination::Picture)) EndGroup();
}

// The \par that ends the last paragraph is no more than its end; without it the paragraph is as it was
// written.
Document Context::Take() {
  EndOpenGroups();
  while (held_.HasAny()) EndShapeText();
  SettleLabel();
  EndText();
  if (builder_.HasOpenText()) {
    EndParagraphAsItBegan();
  } else if (!builder_.HasParagraphs()) {
    EndParagraphAs(Place::Text, ParagraphNumber(State().paragraph));
  }
  builder_.EndRow(rows_.Told());
  return builder_.Take();
}

}  // namespace richtext::rtf
