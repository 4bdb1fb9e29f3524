// The picture that is being added: what is known of it before it has a row, its size at the present scale,
// and its preview.
#pragma once

#include <cstdint>
#include <string>

#include <QtGui/QPainter>
#include <QtGui/QPixmap>

extern std::int32_t AddFrameIndex;  // the entry chosen in List1: 0 none, n the n-th frame file
extern std::int32_t AddWidth;       // pixels that the picture has at the present scale
extern std::int32_t AddHeight;
extern double AddScale;      // 1.0 is the figure shown as 100%
extern std::string AddFile;  // the full path of the file chosen last, as the file dialog returned it

// Sets AddWidth and AddHeight for a picture of that many pixels at AddScale.
void MeasureAtScale(QSize picture);

// The preview: a square of 1000 logical pixels of paper, with what `picture` shows on it in AddWidth by
// AddHeight, cut at the square's edges. `natural` is the picture's own size, of which `picture` may be a
// reduced copy; `ratio` is device pixels to a logical pixel.
QPixmap DrawPreview(const QPixmap& picture, QSize natural, std::uint32_t paper, double ratio);

// Paper with the sign of something that is still to come.
QPixmap DrawWaiting(QSize size, std::uint32_t paper, double ratio);

// A field of paper, and the soft shadow that the picture, which is painted elsewhere, throws on it.
void PaintField(QPainter& painter, const QRect& field, const QRect& picture);

// "Scale: 25%"; "Scale: %" for what rounds to none.
std::string ScaleText();
