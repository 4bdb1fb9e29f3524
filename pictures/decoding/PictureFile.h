// The user's own picture files, as they come: decoded for the page and for the preview.
//
// A path is the system's bytes. Every failure is a platform::Failure whose sentence names the file: one that
// is gone, is a folder, a pipe or a device, is empty, is no picture, or is larger than
// MostPixels (pictures/decoding/PictureSource.h). Nothing
// here blocks on a pipe. Of a moving picture only the first one shows. All may be called on any thread.
#pragma once

#include <atomic>
#include <string>

#include <QtCore/QSize>
#include <QtGui/QImage>

#include "platform/files/Identity.h"

namespace pictures {

// A file stretched to `shown` logical pixels, times the ratio in device pixels.
struct WantedPicture {
  std::string path;
  QSize shown;
  double devicePixelRatio = 1;
  friend bool operator==(const WantedPicture&, const WantedPicture&) = default;
};

struct DecodedPicture {
  QImage image;  // null when a side of the wanted size is below 1
  platform::Identity file{};
};

// Whether the file begins as a picture does of a kind that can be read here. Fails where it cannot be opened.
bool IsPicture(const std::string& path);

// The picture's size in its own pixels, as it stands when its orientation mark is obeyed. Reads the head of
// the file alone where the format allows it.
QSize UprightSize(const std::string& path);

// The picture as it is wanted; its image carries the ratio. Decoded at about that size where the format
// allows it. A picture that is marked as lying on its side is set upright unless the wanted size has the
// shape that it has lying: so its row was stored before marks were obeyed. Transparent where the file is, and
// in the colours of an embedded profile, brought to those of the screen (sRGB). A size of more pixels than a
// screen could use comes back smaller, in the same shape, for the control to stretch. Once `isDropped` is
// true, the file counts as broken off where it was read to.
DecodedPicture Decode(const WantedPicture& wanted, const std::atomic<bool>* isDropped = nullptr);

// Whether the path still leads to that file, unchanged.
bool IsStill(const std::string& path, const platform::Identity& file);

// The picture upright, in its own shape and size, or as large as fits where it is larger than `most` pixels;
// an invalid size is no bound.
QImage LoadUpTo(const std::string& path, QSize most);
// The same in the screen's colours, its longer side up to 2000 pixels.
DecodedPicture LoadForPreview(const std::string& path, const std::atomic<bool>* isDropped = nullptr);

}  // namespace pictures
