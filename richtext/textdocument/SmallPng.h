// A bitmap as the smallest PNG file that shows it unchanged.
#pragma once

#include <string>

#include <QtGui/QImage>

namespace richtext {

// Few colours go into a palette, an opaque picture carries no alpha, and nothing but the picture is kept.
// Empty when the image is null.
std::string SmallestPng(const QImage& image);

}  // namespace richtext
