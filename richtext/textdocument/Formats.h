// The character formats of a page as the text box holds them. Every format in the box names its font and
// size, so that a page looks the same whatever font the desktop prefers.
#pragma once

#include <QtGui/QTextCharFormat>

#include "platform/Colors.h"
#include "richtext/document/Document.h"

namespace richtext {

// Properties that the toolkit's formats have no place for.
enum BoxProperty : int {
  NamelessFont = QTextFormat::UserProperty + 1,  // bool: the document names no font, the box chose one
  UnderlineOfDocument,  // int, the UnderlineKind, of which the toolkit draws some alike
  HiddenText,           // QString, see HiddenText.h
  HiddenMark,           // bool: the end of the paragraph is hidden
  PictureTwipsWide,     // int, as the document told them
  PictureTwipsHigh,
  LineSpacingOfDocument,  // int
  LeftIndentOfDocument,   // int, twips, as the others: what is shown otherwise, see Paragraphs.h
  RightIndentOfDocument,
  FirstIndentOfDocument,
  SpaceBeforeOfDocument,
  SpaceAfterOfDocument,
  AutoSpaceBefore,  // bool
  AutoSpaceAfter,
  LineRuleOfDocument,  // int, a LineSpacingRule
  ListKindOfDocument,  // int, a ListKind
  ListStartOfDocument,
  ListLevelOfDocument,
  TwinListOfDocument,  // bool
  TextBeforeNumber,    // QString
  TextAfterNumber,
  RowOfTable,          // QByteArray, see Rows.h and RowTables.h
  BeforeRow,           // bool, see RowTables.h
  OddRow,              // bool
  ParagraphOfCellEnd,  // QTextFormat
  EndOfRow,            // bool
  BordersOfParagraph,  // QByteArray, see PackedRow.h; none where there are none
  LastTabOfDocument,   // int, twips
  LeadersOfTabs,       // QByteArray, of TabLeaders, one for each of its tab stops; none where there are none
};

// int, twips, of a document that was filled.
constexpr char TabDistanceProperty[] = "tabDistance";
// int, pixels, of a document that is to be laid out so wide.
constexpr char PageWidthProperty[] = "pageWidth";

// Hidden text has the format of shown text here: that it is hidden is told beside it.
QTextCharFormat ToTextFormat(const CharacterFormat& format);
CharacterFormat FromTextFormat(const QTextCharFormat& format);

// The format of a paragraph's end, which can be hidden and has no link.
QTextCharFormat ToMarkFormat(const CharacterFormat& format);
CharacterFormat FromMarkFormat(const QTextCharFormat& format);

using platform::FromColor;
using platform::ToColor;

// The attributes of a format of the box; a missing one reads as the box's own.
QString FontNameOf(const QTextCharFormat& format);
double FontSizeOf(const QTextCharFormat& format);      // points
std::uint32_t ColorOf(const QTextCharFormat& format);  // automatic reads as black
bool IsUnderlined(const QTextCharFormat& format);
void SetFontName(QTextCharFormat& format, const QString& name);
void SetFontSize(QTextCharFormat& format, double points);  // to the nearest half point
void SetUnderline(QTextCharFormat& format, UnderlineKind kind);

}  // namespace richtext
