// The paragraph formats of a page as the text box holds them.
#pragma once

#include <QtGui/QTextBlockFormat>

#include "richtext/document/Document.h"

namespace richtext {

constexpr double WidestPage = 2000;  // pixels; wider than most screens

// Measures beyond the format's own range are held at its ends. An item of a list is shown with room for its
// label, which Labels.h draws. Indents are shown so that a quarter of a page of `width` pixels is left for
// the text, spaces and lines no higher than that; what the format tells is kept.
QTextBlockFormat ToBlockFormat(const ParagraphFormat& format, double width = WidestPage);
ParagraphFormat FromBlockFormat(const QTextBlockFormat& format);

ListFormat ListOf(const QTextBlockFormat& format);
bool IsListItem(const QTextBlockFormat& format);
// The same paragraph shown with lines of this height, in pixels.
QTextBlockFormat WithLineHeight(QTextBlockFormat format, double height);
// Whether its lines were so given another height than its own.
bool HasOtherLines(const QTextBlockFormat& format);
// The same paragraph as no item of a list; its text stays where it was.
QTextBlockFormat WithoutList(const QTextBlockFormat& format);
// Likewise without borders and ground.
QTextBlockFormat WithoutFrame(const QTextBlockFormat& format);

}  // namespace richtext
