// Where a reading of RTF stands: the groups, the tables and the document so far. Control words act on it;
// text goes where the group in force sends it.
#pragma once

#include <cstdint>
#include <string_view>

#include "richtext/DocumentBuilder.h"
#include "richtext/RtfColorTable.h"
#include "richtext/RtfFontTable.h"
#include "richtext/RtfGroupState.h"
#include "richtext/RtfPictureReader.h"
#include "richtext/RtfTextDecoder.h"

namespace richtext {

class RtfContext {
 public:
  GroupState& State() { return groups_.Top(); }
  RtfFontTable& Fonts() { return fonts_; }
  RtfColorTable& Colors() { return colors_; }
  RtfPictureReader& PictureInHand() { return picture_; }

  std::size_t Depth() const { return groups_.Depth(); }
  bool Skipping() const { return groups_.Skipping(); }
  void BeginGroup();
  void EndGroup();
  // The group in force is passed over, or its text goes to `destination`. The outermost group is the document
  // whatever stands in it: neither does anything there.
  void SkipGroup();
  void SendTextTo(Destination destination);

  // Formats of the text that follows. What they change must be told, since the number of a format is kept.
  CharacterState& ChangeCharacter();
  ParagraphFormat& ChangeParagraph();
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

  // The document, when its last brace was met or the input ended.
  Document Take();

 private:
  const CodePage& DocumentPage() const;
  const CodePage& TextPage() const;
  std::uint32_t FormatNumber();
  std::uint32_t ParagraphNumber(GroupState& state);
  void ClaimText();
  void PutPicture();

  GroupStack groups_;
  RtfFontTable fonts_;
  RtfColorTable colors_;
  RtfPictureReader picture_;
  RtfTextDecoder decoder_;
  DocumentBuilder builder_;
  const CodePage* characterSetPage_ = nullptr;
  const CodePage* ansiPage_ = nullptr;
  ParagraphFormat openParagraph_;  // in force where the open paragraph's text was met last
};

}  // namespace richtext
