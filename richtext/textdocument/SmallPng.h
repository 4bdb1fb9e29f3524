// A bitmap as a small PNG file that shows it unchanged.
#pragma once

#include <atomic>
#include <string>

#include <QtGui/QImage>

namespace richtext {

// Few colours go into a palette, an opaque picture carries no alpha, and nothing but the picture is kept. A
// small one is packed as tightly as can be; of a large one that would take a second a megapixel, for a
// twentieth of its bytes. Empty when the image is null, and when it is to stop meanwhile.
std::string SmallPng(const QImage& image, const std::atomic<bool>* stop = nullptr);

}  // namespace richtext
