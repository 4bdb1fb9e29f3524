// The formats of a page as the text box holds them. Every format in the box names its font and size, so that
// a page looks the same whatever font the desktop prefers.
#pragma once

#include <QtGui/QTextBlockFormat>
#include <QtGui/QTextCharFormat>

#include "richtext/Document.h"

namespace richtext {

// Properties that the toolkit's formats have no place for.
enum BoxProperty : int {
  NamelessFont = QTextFormat::UserProperty + 1,  // bool: the document names no font, the box chose one
  PictureKindOfFile,                             // int, a PictureKind
  PictureTwipsWide,                              // int, as the document told them
  PictureTwipsHigh,
};

constexpr double TwipsPerPixel = 15;        // 96 pixels to the inch
constexpr std::int32_t LargestFont = 3276;  // half points

QTextCharFormat ToTextFormat(const CharacterFormat& format);
CharacterFormat FromTextFormat(const QTextCharFormat& format);

// Indents beyond 22 inches are held at that.
QTextBlockFormat ToBlockFormat(const ParagraphFormat& format);
ParagraphFormat FromBlockFormat(const QTextBlockFormat& format);

// 0x00BBGGRR and the toolkit's colour.
QColor ToColor(std::uint32_t bgr);
std::uint32_t FromColor(const QColor& color);

// The attributes of a format of the box; a missing one reads as the box's own.
QString FontNameOf(const QTextCharFormat& format);
double FontSizeOf(const QTextCharFormat& format);      // points
std::uint32_t ColorOf(const QTextCharFormat& format);  // automatic reads as black
void SetFontName(QTextCharFormat& format, const QString& name);
void SetFontSize(QTextCharFormat& format, double points);  // to the nearest half point

}  // namespace richtext
