// Where a reading of RTF stands: the place where the groups, the tables and the document so far meet. What
// has a rule of its own is a class of its own (AsideText, DocumentCodePage, FieldSign, HeldParagraphs,
// LinkTally, NoteText, ShapeState, WrittenLabel); here is only what one of them tells another.
//
// The order of calls. Groups open and close by BeginGroup and EndGroup. A word that names a destination acts
// on the group in force (SkipGroup, SendTextTo, SetAside) and comes before the group's text. What such a
// group told takes effect in EndGroup, when the group around it is in force again. Take is called once, last.
//
// The road of text. Each Put decodes what it is given behind the text so far, and claims in the same call
// what became text by it, in the character format in force: so a change of format never waits for text, and
// the half of a character has the format in which the other half comes. A paragraph gets the paragraph format
// that is in force at its end. Before the first text of a paragraph, and before its end, the label that waits
// is settled; before the end of a paragraph, a picture and what is set aside in text, half a character is
// given up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "richtext/rtf/AsideText.h"
#include "richtext/rtf/ColorTable.h"
#include "richtext/rtf/DocumentBuilder.h"
#include "richtext/rtf/DocumentCodePage.h"
#include "richtext/rtf/FieldSign.h"
#include "richtext/rtf/FontTable.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/HeldParagraphs.h"
#include "richtext/rtf/Links.h"
#include "richtext/rtf/NoteText.h"
#include "richtext/rtf/ParagraphFormats.h"
#include "richtext/rtf/PictureReader.h"
#include "richtext/rtf/RowWords.h"
#include "richtext/rtf/ShapeState.h"
#include "richtext/rtf/StyleSheet.h"
#include "richtext/rtf/TextDecoder.h"
#include "richtext/rtf/WrittenLabel.h"

namespace richtext::rtf {

class Context {
 public:
  // `length` of the input, which the text is shorter than.
  explicit Context(std::size_t length) { builder_.Text().reserve(length); }

  GroupState& State() { return groups_.Top(); }
  FontTable& Fonts() { return fonts_; }
  ColorTable& Colors() { return colors_; }
  DocumentCodePage& OwnPage() { return page_; }
  PictureReader& PictureInHand() { return picture_; }
  ShapeState& Shapes() { return shapes_; }
  RowWords& Rows() { return rows_; }
  ParagraphFormats& Paragraphs() { return paragraphs_; }
  StyleSheet& Styles() { return styles_; }
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
  // The paragraph is of this style; nothing where its writer tells all formats anyway.
  void SetStyle(std::int32_t number);

  // Text, into the destination in force.
  void PutBytes(std::string_view bytes);
  void PutLiteral(char byte);  // one byte that is text whatever it means elsewhere
  void PutBinary(std::string_view bytes);
  void PutUnicode(std::int32_t number);
  void PutCharacter(char16_t character);
  void EndParagraph();
  void EndCell();
  void EndNestedCell();
  void EndRow();
  void SetTabDistance(std::int32_t twips) { builder_.SetTabDistance(FittingTabDistance(twips)); }
  // A shape's group begins, and that of its text, whose paragraphs stand before the one around it.
  void BeginShape();
  void BeginShapeText();
  // A footnote's group begins.
  void BeginNote();
  // A label's group begins.
  void BeginLabel(WrittenLabel::Kind kind);

  // The document, when its last brace was met or the input ended.
  Document Take();

 private:
  void Finish(Destination ended);
  void EndNote();
  void EndShapeText();
  void FinishLevelText();
  void FinishNumbering();
  std::size_t LengthOfText();
  void FinishInstruction();
  void FinishInnerInstruction();
  void PutPicture();

  const CodePage& TextPage() const;
  std::u16string* TextInHand();
  void SettleLabel();
  void EndText();
  bool IsInCell(const ParagraphState& paragraph) const;
  void EndOpenParagraph();
  void EndParagraphAsItBegan();
  void EndParagraphAs(Place place, std::uint32_t format);
  void EndOpenGroups();

  std::uint32_t FormatNumber();
  std::uint32_t FormatNumberOf(const CharacterState& state);
  std::uint32_t MarkNumber();
  std::uint32_t ParagraphNumber(ParagraphState paragraph);
  std::uint32_t ParagraphNumber();
  void ClaimText();
  StyleSheet::Formats FormatsOfStyle(std::int32_t number, int depth);

  // What the groups and the tables tell.
  GroupStack groups_;
  FontTable fonts_;
  ColorTable colors_;
  DocumentCodePage page_;
  ParagraphFormats paragraphs_;
  StyleSheet styles_;
  Links links_;

  // What is in hand: begun by a group, and used where that, its paragraph or the group around it ends.
  PictureReader picture_;
  ShapeState shapes_;
  RowWords rows_;
  Numbering numbering_;
  WrittenLabel label_;
  FieldSign sign_;
  AsideText aside_;
  NoteText note_;
  HeldParagraphs held_;

  // The document so far.
  TextDecoder decoder_;
  DocumentBuilder builder_;
  LinkTally linkTally_;
  ParagraphState openParagraph_;  // in force where the open paragraph's text was met last
};

}  // namespace richtext::rtf
