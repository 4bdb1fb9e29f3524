// Where a reading of RTF stands: the groups, the tables and the document so far. Control words act on it;
// text goes where the group in force sends it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "richtext/rtf/ColorTable.h"
#include "richtext/rtf/DocumentBuilder.h"
#include "richtext/rtf/FontTable.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/Links.h"
#include "richtext/rtf/ParagraphFormats.h"
#include "richtext/rtf/PictureReader.h"
#include "richtext/rtf/TextDecoder.h"

namespace richtext::rtf {

class Context {
 public:
  // `length` of the input, which the text is shorter than.
  explicit Context(std::size_t length) { builder_.Text().reserve(length); }

  GroupState& State() { return groups_.Top(); }
  FontTable& Fonts() { return fonts_; }
  ColorTable& Colors() { return colors_; }
  PictureReader& PictureInHand() { return picture_; }
  bool& ModernPicture() { return modernPicture_; }  // whether a picture came since a \shppict began
  ParagraphFormats& Paragraphs() { return paragraphs_; }
  Numbering& NumberingInHand() { return numbering_; }

  std::size_t Depth() const { return groups_.Depth(); }
  bool Skipping() const { return groups_.Skipping(); }
  void BeginGroup();
  void EndGroup();
  // The group in force is passed over, or its text goes to `destination`. The outermost group is the document
  // whatever stands in it: neither does anything there.
  void SkipGroup();
  void SendTextTo(Destination destination);
  // Of a group whose text is read for what it tells of the text around it: sent there when the group stands
  // in text at all, else passed over.
  void SetAside(Destination destination);

  // Formats of the text that follows. What they change must be told, since the number of a format is kept.
  CharacterState& ChangeCharacter();
  ParagraphState& ChangeParagraph();
  void SetFont(std::int32_t number);
  void ResetCharacter();

  // The document's own code page: \ansicpg outranks the character set's.
  void SetCharacterSetPage(std::int32_t page);
  void SetAnsiPage(std::int32_t page);

  // Text, into the destination in force.
  void PutBytes(std::string_view bytes);
  void PutLiteral(char byte);  // one byte that is text whatever it means elsewhere
  void PutBinary(std::string_view bytes);
  void PutUnicode(std::int32_t number);
  void PutCharacter(char16_t character);
  void EndParagraph();
  void EndCell();
  void SetTabDistance(std::int32_t twips) { builder_.SetTabDistance(FittingTabDistance(twips)); }
  // A group begins whose text stands for itself, not within the paragraph around it.
  void BeginShapeText();
  // A shape tells of itself by properties, one of which can be its picture, and then again as older readers
  // know it, which counts where nothing of it was shown before.
  void BeginShape();
  void BeginShapeProperty();
  void BeginShapeValue();
  void BeginShapeResult();
  // The label that a writer put before a list's paragraph, for readers who know nothing of lists. One who
  // wrote \listtext meant a list in any case.
  void BeginLabel(bool isListText);

  // The document, when its last brace was met or the input ended.
  Document Take();

 private:
  const CodePage& DocumentPage() const;
  const CodePage& TextPage() const;
  std::uint32_t FormatNumber();
  std::uint32_t FormatNumberOf(const CharacterState& state);
  std::uint32_t MarkNumber();
  std::uint32_t ParagraphNumber(ParagraphState paragraph);
  std::uint32_t ParagraphNumber();
  std::u16string* TextInHand();
  void Finish(Destination ended);
  void FinishNumbering();
  void FinishLevelText();
  void SettleLabel();
  void EndText();
  void ClaimText();
  void CountLink();
  void FinishInstruction();
  void FinishSign();
  void FinishPicture();
  void PutPicture();

  GroupStack groups_;
  FontTable fonts_;
  ColorTable colors_;
  PictureReader picture_;
  bool modernPicture_ = false;
  bool shapeShown_ = false;      // whether something was shown since a shape began
  std::u16string propertyName_;  // of the shape's property in hand
  TextDecoder decoder_;
  ParagraphFormats paragraphs_;
  Links links_;
  // A field that is a sign shows it where its result shows nothing.
  struct Sign {
    std::int32_t number = 0;  // 0: none is in hand
    std::size_t depth = 0;    // of the field's group
    std::size_t place = 0;    // in the text
  };
  Sign sign_;
  std::uint32_t openLink_ = 0;  // of the text met last, in the open paragraph
  std::size_t linkText_ = 0;    // bytes, as of MaxLinkText
  Numbering numbering_;
  DocumentBuilder builder_;
  std::u16string aside_;  // text of the group that is set aside
  const CodePage* characterSetPage_ = nullptr;
  const CodePage* ansiPage_ = nullptr;
  ParagraphState openParagraph_;  // in force where the open paragraph's text was met last

  // Whether the label belongs to a list is known only where the paragraph's text begins.
  enum class LabelKind : std::uint8_t { None, Text, ListText };
  LabelKind labelKind_ = LabelKind::None;
  LabelKind waitingLabel_ = LabelKind::None;
  std::u16string label_;
  std::uint32_t labelList_ = 0;  // the list that the open paragraph's label tells of
};

}  // namespace richtext::rtf
