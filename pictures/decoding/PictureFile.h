// The user's own picture files, as they come: decoded for the page and for the preview.
//
// A path is the system's bytes. Every failure is a platform::Failure whose sentence names the file: one that
// is gone, is a folder, a pipe or a device, is empty, is no picture, or is larger than MostPixels. Nothing
// here blocks on a pipe. Of a moving picture only the first one shows.
#pragma once

#include <cstdint>
#include <string>

#include <QtCore/QSize>
#include <QtGui/QImage>

namespace pictures {

// The largest picture that is decoded: what the largest cameras take.
inline constexpr std::int64_t MostPixels = 200'000'000;

// The picture's size in its own pixels, as it stands when its orientation mark is obeyed. Reads the head of
// the file alone where the format allows it.
QSize UprightSize(const std::string& path);

// The picture stretched to `shown` logical pixels, times the ratio in device pixels, which the image carries.
// Decoded at about that size where the format allows it. A picture that is marked as lying on its side is set
// upright unless `shown` has the shape that it has lying: so its row was stored before marks were obeyed.
// Transparent where the file is. A null image when a side of `shown` is below 1. A size of more pixels than
// a screen could use comes back smaller, in the same shape, for the control to stretch.
QImage LoadScaled(const std::string& path, QSize shown, double devicePixelRatio = 1);

// The picture upright, in its own shape and size, or as large as fits where it is larger than `most` pixels;
// an invalid size is no bound.
QImage LoadUpTo(const std::string& path, QSize most);
// The same, its longer side up to 2000 pixels.
QImage LoadForPreview(const std::string& path);

}  // namespace pictures
