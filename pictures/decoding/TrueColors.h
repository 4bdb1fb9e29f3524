// Pixels of a file as a screen shows them.
#pragma once

#include <QtGui/QImage>

namespace pictures {

// Whether a picture of this format is to be scaled when it has been read whole and brought to 8 bits: the
// toolkit's readers take the colours beneath half-transparent pixels for brighter than they are, mix in those
// of transparent ones, and leave out pixels of two colours.
bool IsScaledAfterReading(QImage::Format format);

// 8 bits to a colour, and no palette.
QImage InEightBits(const QImage& image);

// The colours of the image's profile brought to sRGB, and as few bytes to a pixel as keep them all.
QImage ForTheScreen(const QImage& image);

}  // namespace pictures
