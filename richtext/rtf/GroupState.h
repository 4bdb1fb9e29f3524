// What braces keep: every group starts with a copy of its surroundings, and its end brings them back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/Shading.h"

namespace richtext::rtf {

// Where the text of a group goes.
enum class Destination : std::uint8_t {
  Body,
  FontTable,
  ColorTable,
  ListTable,
  StyleSheet,
  Generator,
  ListLevelText,
  Numbering,
  NumberingBefore,
  NumberingAfter,
  Label,
  FieldInstruction,
  InnerInstruction,
  Picture,
  ShapeProperty,
  ShapeName,
  ShapeValue,
  ShapePicture,
  Discard
};

constexpr std::int32_t DefaultFontIndex = -1;
constexpr std::int32_t AutomaticColor = -1;

// The formats in force, in few bytes, since every brace copies them. What is long is kept elsewhere and has a
// number here; 0 is none.
struct CharacterState {
  std::int32_t font = DefaultFontIndex;  // index in the font table
  std::int32_t halfPoints = DefaultHalfPoints;
  std::int32_t color = AutomaticColor;       // or 0x00BBGGRR
  std::int32_t highlight = AutomaticColor;   // likewise; automatic is none
  std::int32_t background = AutomaticColor;  // likewise, where there is no highlight
  std::uint32_t link = 0;
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  bool doubleStrikethrough = false;
  bool hidden = false;
  UnderlineKind underline = UnderlineKind::None;
  Capitals capitals = Capitals::AsWritten;
  VerticalPlace place = VerticalPlace::Baseline;
};

struct ParagraphState {
  static constexpr std::int32_t NotTold = INT32_MIN;

  Alignment alignment = Alignment::Left;
  Direction direction = Direction::LeftToRight;
  TabKind nextTab = TabKind::Left;  // \tqr, \tldot and their like come before their \tx
  TabLeader nextLeader = TabLeader::None;
  bool multipleSpacing = false;  // \slmult
  bool inTable = false;          // \intbl
  bool autoBefore = false;
  bool autoAfter = false;
  std::int32_t leftIndent = 0;
  std::int32_t rightIndent = 0;
  std::int32_t startIndent = NotTold;  // \lin: where lines begin, whichever side that is
  std::int32_t endIndent = NotTold;    // \rin
  std::int32_t firstLineIndent = 0;
  std::int32_t spaceBefore = 0;
  std::int32_t spaceAfter = 0;
  std::int32_t lineSpacing = 0;
  Shading ground;
  std::uint32_t tabs = 0;
  std::uint32_t borders = 0;
  std::uint32_t numbering = 0;  // list of a \pn
  std::int32_t listNumber = 0;  // \ls
  std::int32_t listLevel = 0;   // \ilvl
};

struct GroupState {
  static constexpr std::uint32_t NotAsked = UINT32_MAX;

  CharacterState character;
  ParagraphState paragraph;
  std::int32_t fallbackLength = 1;  // \uc
  bool inCellAround = false;        // the text of a shape in a cell
  Destination destination = Destination::Body;
  Destination around = Destination::Body;    // \upr: where its \ud goes
  std::uint32_t fieldLink = 0;               // what \fldinst tells of the field's \fldrslt
  std::uint32_t formatNumber = NotAsked;     // the document's number of `character`, once text asked for it
  std::uint32_t paragraphNumber = NotAsked;  // likewise of `paragraph`
};

// The stack is a vector: input never recurses. Beyond MaxStoredDepth braces are counted but share one state;
// the deepest document met in the wild has 15 levels. A group that is passed over needs no state at all.
class GroupStack {
 public:
  static constexpr std::size_t MaxStoredDepth = 4096;

  GroupState& Top() { return states_.back(); }
  const GroupState& Top() const { return states_.back(); }

  std::size_t Depth() const { return depth_; }
  bool HasOwnState() const { return depth_ <= MaxStoredDepth; }
  void Push();
  void Pop();

  // Until the group in force ends, nothing in it counts. At least one group must be open.
  void SkipGroup() { skippedDepth_ = depth_; }
  bool Skipping() const { return skippedDepth_ != 0; }

 private:
  std::vector<GroupState> states_{GroupState{}};  // of depth 0, 1, 2 ...
  std::size_t depth_ = 0;
  std::size_t skippedDepth_ = 0;  // 0: nothing is passed over
};

}  // namespace richtext::rtf
